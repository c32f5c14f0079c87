#include "treechangedetector.h"

#include <QDomDocument>

namespace {

constexpr int AnotherLength = -1;

const QLatin1String ListedName("listed");
const QLatin1String OtherName("other");

} // namespace

TreeChangeDetector::TreeChangeDetector(const QDomDocument& document)
    : m_iUnchangedLength(AnotherLength)
{
    QDomDocument maker(document);
    m_probe = maker.createElement(OtherName);
    m_child = maker.createElement(ListedName);
    m_probe.appendChild(m_child);
    m_list = m_probe.elementsByTagName(ListedName);
}

void TreeChangeDetector::Reset()
{
    m_iUnchangedLength = m_list.count();
    m_child.setTagName(m_iUnchangedLength == 0 ? ListedName : OtherName);
}

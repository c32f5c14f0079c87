#include "treechangedetector_p.h"

#include <QDomDocument>

namespace {

constexpr int AnotherLength = -1;

} // namespace

TreeChangeDetector::TreeChangeDetector(const QDomDocument& document)
    : m_sListedName(QStringLiteral("listed"))
    , m_sOtherName(QStringLiteral("other"))
    , m_iUnchangedLength(AnotherLength)
{
    QDomDocument maker(document);
    m_probe = maker.createElement(m_sOtherName);
    m_child = maker.createElement(m_sListedName);
    m_probe.appendChild(m_child);
    m_list = m_probe.elementsByTagName(m_sListedName);
}

void TreeChangeDetector::Reset()
{
    m_iUnchangedLength = m_list.count();
    m_child.setTagName(m_iUnchangedLength == 0 ? m_sListedName : m_sOtherName);
}

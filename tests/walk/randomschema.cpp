#include "randomschema.h"

#include <utility>

namespace {

constexpr int MaxDepth = 4;
constexpr int MaxElements = 40;
constexpr unsigned MaxTypes = 3;

} // namespace

QString RandomSchema::Make()
{
    m_iElementsLeft = 2 + static_cast<int>(below(MaxElements));
    m_iTypes = static_cast<int>(below(MaxTypes + 1));
    QString text = QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>");
    for (int type = 0; type < m_iTypes; ++type) {
        // Types stand in front of their users: those that come later are laid out in other ways, tested elsewhere.
        const int typesBefore = std::exchange(m_iTypes, type);
        text += QStringLiteral("<xs:complexType name='T%1'>").arg(type) + content(MaxDepth - 1)
            + QStringLiteral("</xs:complexType>");
        m_iTypes = typesBefore;
    }
    text += QStringLiteral("<xs:element name='%1'><xs:complexType>").arg(elementName()) + content(0)
        + QStringLiteral("</xs:complexType></xs:element></xs:schema>");
    return text;
}

QString RandomSchema::elementName()
{
    return QString(QLatin1Char(static_cast<char>('a' + below(isOneIn(2) ? 3 : 9))));
}

QString RandomSchema::occurs()
{
    QString text;
    if (isOneIn(2)) {
        text += QStringLiteral(" minOccurs='%1'").arg(isOneIn(6) ? 2 : 0);
    }
    if (isOneIn(2)) {
        text += isOneIn(3) ? QStringLiteral(" maxOccurs='unbounded'")
                           : QStringLiteral(" maxOccurs='%1'").arg(1 + below(3));
    }
    return text;
}

QString RandomSchema::element(int depth)
{
    --m_iElementsLeft;
    const QString begin = QStringLiteral("<xs:element name='%1'").arg(elementName()) + occurs();
    if (m_iTypes > 0 && isOneIn(6)) {
        return begin + QStringLiteral(" type='T%1'/>").arg(below(static_cast<unsigned>(m_iTypes)));
    }
    if (depth < MaxDepth && isOneIn(3)) {
        return begin + QStringLiteral("><xs:complexType>") + content(depth + 1)
            + QStringLiteral("</xs:complexType></xs:element>");
    }
    const QString type = isOneIn(4) ? QStringLiteral("xs:double") : QStringLiteral("xs:string");
    const QString defaultText = isOneIn(8) ? QStringLiteral(" default='d'") : QString();
    return begin + QStringLiteral(" type='%1'").arg(type) + defaultText + QStringLiteral("/>");
}

QString RandomSchema::content(int depth)
{
    const QString group = isOneIn(4) ? QStringLiteral("choice") : QStringLiteral("sequence");
    QString text;
    for (unsigned count = 1 + below(6); count > 0 && m_iElementsLeft > 0; --count) {
        text += element(depth);
    }
    return QStringLiteral("<xs:%1>").arg(group) + text + QStringLiteral("</xs:%1>").arg(group);
}

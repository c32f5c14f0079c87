#include <valueframework/valuetext.h>

ValueText::ValueText(const QString& name, const QString& text)
    : ValueBase(name)
    , m_sText(text)
{
}

ValueText::~ValueText() = default;

void ValueText::SetText(const QString& text)
{
    m_sText = text;
}

QString ValueText::GetText() const
{
    return m_sText;
}

#include <valueframework/valueselection.h>

ValueSelection::ValueSelection(const QString& name)
    : ValueBase(name)
{
}

ValueSelection::~ValueSelection() = default;

void ValueSelection::AddChoice(double value, const QString& text)
{
    m_choices.push_back({value, text});
}

void ValueSelection::Select(int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < m_choices.size()) {
        m_uSelected = static_cast<std::size_t>(index);
    }
}

double ValueSelection::GetNumericValue() const
{
    return GetSelected().value;
}

QString ValueSelection::GetText() const
{
    return GetSelected().text;
}

ValueSelection::Choice ValueSelection::GetSelected() const
{
    return m_choices.empty() ? Choice() : m_choices[m_uSelected];
}

#ifndef VALUEFRAMEWORK_VALUESELECTION_H
#define VALUEFRAMEWORK_VALUESELECTION_H

#include <valueframework/valuebase.h>
#include <vector>

/// A value that is one out of a list of choices, each a number with the text that is shown for it, such as 150000 and
/// "150 kHz".
///
/// The first choice is the selected one until another is selected. It is deliberately no IValueNumeric: its number
/// and its text may be in different units, and who reads it must look at both.
class VALUEFRAMEWORK_EXPORT ValueSelection : public ValueBase
{
public:
    explicit ValueSelection(const QString& name);
    ~ValueSelection() override;

    void AddChoice(double value, const QString& text);

    /// Selects a choice by its place in the order of AddChoice, from 0. An index without a choice changes nothing.
    void Select(int index);

    /// The number of the selected choice; 0 when there is no choice.
    double GetNumericValue() const;

    /// The text of the selected choice; empty when there is no choice.
    QString GetText() const override;

private:
    struct Choice
    {
        double value = 0.0;
        QString text;
    };

    Choice GetSelected() const;

    std::vector<Choice> m_choices;
    std::size_t m_uSelected = 0;
};

#endif

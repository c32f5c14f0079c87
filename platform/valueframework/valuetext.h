#ifndef VALUEFRAMEWORK_VALUETEXT_H
#define VALUEFRAMEWORK_VALUETEXT_H

#include <valueframework/valuebase.h>

/// A value that is a text.
class VALUEFRAMEWORK_EXPORT ValueText : public ValueBase
{
public:
    ValueText(const QString& name, const QString& text);
    ~ValueText() override;

    void SetText(const QString& text);
    QString GetText() const override;

private:
    QString m_sText;
};

#endif

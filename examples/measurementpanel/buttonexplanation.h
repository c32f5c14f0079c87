#ifndef MEASUREMENTPANEL_BUTTONEXPLANATION_H
#define MEASUREMENTPANEL_BUTTONEXPLANATION_H

#include <QObject>
#include <QString>

class QWidget;

/// Adds to a button's tool tip why the button is disabled, in lines of their own.
///
/// The tool tip stays the button's: when its owner changes it, the explanation is added to the new one. An owner lets
/// the tool tip follow the language only while it is its own, so the explanation makes room for the change.
class ButtonExplanation : public QObject
{
    Q_OBJECT

public:
    /// @param button  becomes the parent
    explicit ButtonExplanation(QWidget& button);
    ~ButtonExplanation() override;

    /// @param explanation  empty: there is nothing to explain
    void Explain(const QString& explanation);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Q_DISABLE_COPY(ButtonExplanation)

    void apply();

    QWidget& m_button;
    QString m_sOwnToolTip; ///< the button's, without the explanation
    QString m_sExplanation;
    QString m_sShown; ///< both together
};

#endif

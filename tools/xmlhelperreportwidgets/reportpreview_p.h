#ifndef XMLHELPERREPORTWIDGETS_REPORTPREVIEW_P_H
#define XMLHELPERREPORTWIDGETS_REPORTPREVIEW_P_H

#include <QByteArray>
#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QTimer>

/// What a report would be if it were saved now, while a comment dialog asks for its comment. ReportNews says how a
/// dialog tells it.
class ReportPreview : public QObject
{
    Q_OBJECT

public:
    explicit ReportPreview(QObject* parent = nullptr);
    ~ReportPreview() override;

    /// @param dialog  that can still be answered; null for none
    void Follow(QDialog* dialog);
    /// The bytes; empty when the dialog does not tell them, or there is none.
    const QByteArray& GetContent() const { return m_content; }

Q_SIGNALS:
    /// The operator has typed on.
    void Changed();

private:
    Q_DISABLE_COPY(ReportPreview)

    QByteArray read() const;
    void readAgain();

    QPointer<QDialog> m_pDialog;
    QByteArray m_content;
    QTimer m_timer;
};

#endif

#ifndef XMLHELPERREPORTWIDGETS_XMLVIEW_P_H
#define XMLHELPERREPORTWIDGETS_XMLVIEW_P_H

#include <QPlainTextEdit>

class QSyntaxHighlighter;

/// Shows an XML file as text, coloured, to read only.
class XmlView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit XmlView(QWidget* parent = nullptr);
    ~XmlView() override;

    /// Shows the file as it is now, of a large one the beginning; nothing when it cannot be read.
    void ShowFile(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY(XmlView)

    QSyntaxHighlighter* m_pColours = nullptr; ///< the document's
};

#endif

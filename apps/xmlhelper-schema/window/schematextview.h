#ifndef SCHEMADOCTOR_SCHEMATEXTVIEW_H
#define SCHEMADOCTOR_SCHEMATEXTVIEW_H

#include <QPlainTextEdit>

namespace schemadoctor {

class SchemaHighlighter;

/// A schema to read, coloured, with the numbers of its lines, one of them marked.
class SchemaTextView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SchemaTextView(QWidget* parent = nullptr);

    /// Shows another text. Of lines that nobody can read, only the beginning is shown: laying them out takes too long.
    void ShowText(const QString& text);

    /// Marks a line, the first being 1, and shows it in the middle. 0 marks none and shows the beginning.
    void ShowLine(int line);
    int MarkedLine() const { return m_iMarkedLine; }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Margin;

    int marginWidth() const;
    void paintMargin(QPaintEvent* event);
    void updateMarginWidth();

    Margin* m_pMargin; // a child
    SchemaHighlighter* m_pHighlighter; // the document's
    int m_iMarkedLine = 0;
};

} // namespace schemadoctor

#endif

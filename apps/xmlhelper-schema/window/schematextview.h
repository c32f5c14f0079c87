#ifndef SCHEMADOCTOR_SCHEMATEXTVIEW_H
#define SCHEMADOCTOR_SCHEMATEXTVIEW_H

#include <QPlainTextEdit>

namespace schemadoctor {

/// A text to read, with the numbers of its lines, one of them marked.
class SchemaTextView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SchemaTextView(QWidget* parent = nullptr);

    /// Marks a line, the first being 1, and shows it in the middle. 0 marks none and shows the beginning.
    void ShowLine(int line);
    int MarkedLine() const { return m_iMarkedLine; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Margin;

    int marginWidth() const;
    void paintMargin(QPaintEvent* event);
    void updateMarginWidth();

    Margin* m_pMargin; // a child
    int m_iMarkedLine = 0;
};

} // namespace schemadoctor

#endif

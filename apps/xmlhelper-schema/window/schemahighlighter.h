#ifndef SCHEMADOCTOR_SCHEMAHIGHLIGHTER_H
#define SCHEMADOCTOR_SCHEMAHIGHLIGHTER_H

#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QTimer>

class QPalette;

namespace schemadoctor {

/// Colours XML: tags, the attributes in them and their values, comments. Text that is not well formed is coloured as
/// far as it goes. A long text is coloured piece by piece, while the window goes on working.
class SchemaHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// @param document  is coloured, and owns this
    explicit SchemaHighlighter(QTextDocument* document);

    /// Takes colours that can be read on the base of @p palette. To be followed by rehighlight() when there is text.
    void ChooseColours(const QPalette& palette);

    /// Another text comes.
    void Restart();

protected:
    void highlightBlock(const QString& text) override;

private:
    /// What the end of a line stands in.
    enum State { Text, Tag, DoubleQuotes, SingleQuotes, Comment, Data, Instruction };

    void colourNextLines();
    int colourNext(const QString& text, int from);
    int colourPlain(const QString& text, int from);
    int colourTag(const QString& text, int from);
    int colourUntil(const QString& text, int from, const QString& end, State next, const QTextCharFormat& format);

    QTextCharFormat m_tag;
    QTextCharFormat m_attribute;
    QTextCharFormat m_value;
    QTextCharFormat m_comment;
    State m_state = Text;
    QTimer m_next;
    int m_iLines; ///< from the beginning: they are coloured
};

} // namespace schemadoctor

#endif

#ifndef XMLHELPER_TEXTSINPIECES_H
#define XMLHELPER_TEXTSINPIECES_H

#include <vector>

#include <QDomDocument>
#include <QString>

/// A text node of @p document. All that the library puts into documents is made here: they are looked through for long
/// texts when they are saved, which takes half as long as saving, only once there has been one.
QDomText createText(QDomDocument& document, const QString& text);

/// Whether createText() has ever made a long text.
bool isLongTextKnown();

/// Whether a text of so many code units is a long one.
bool isLongText(int length);

/// Stands the long texts below a node in pieces while it lives, so that Qt saves it in a time in proportion to their
/// length: what it needs to escape one text grows with the square of its length, to an hour for ten million characters.
/// Neighbouring texts are saved to the same bytes as one. In the end every text is whole again, in its own node.
class TextsInPieces
{
public:
    /// @param top  must not be changed by anybody else meanwhile, nor what is below it
    explicit TextsInPieces(const QDomNode& top);
    ~TextsInPieces();

private:
    Q_DISABLE_COPY(TextsInPieces)

    struct LongText
    {
        QDomText firstPiece;
        QString data;
        std::vector<QDomText> furtherPieces;
    };

    void split(QDomText text);

    std::vector<LongText> m_texts;
};

#endif

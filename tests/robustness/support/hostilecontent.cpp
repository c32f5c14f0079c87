#include "hostilecontent.h"

#include <random>

#include <QString>
#include <QtTest>

namespace {

/// What stands in the literal @p text, zeros included.
template <std::size_t Size> QByteArray bytes(const char (&text)[Size])
{
    return QByteArray(text, static_cast<int>(Size) - 1);
}

/// @p text in UTF-16, least or greatest byte first.
QByteArray utf16(const QString& text, bool isLittleEndian)
{
    QByteArray result;
    for (const QChar c : text) {
        const char low = static_cast<char>(c.unicode() & 0xFF);
        const char high = static_cast<char>(c.unicode() >> 8);
        result += isLittleEndian ? low : high;
        result += isLittleEndian ? high : low;
    }
    return result;
}

/// @p text, which is ASCII, in UTF-32.
QByteArray utf32(const QByteArray& text, bool isLittleEndian)
{
    QByteArray result;
    for (const char c : text) {
        result += isLittleEndian ? c + QByteArray(3, '\0') : QByteArray(3, '\0') + c;
    }
    return result;
}

/// Bytes without any order, the same ones each time.
QByteArray noise()
{
    QByteArray result;
    std::minstd_rand number;
    for (int i = 0; i < 65536; ++i) {
        result += static_cast<char>(number() >> 16);
    }
    return result;
}

QByteArray declared(const char* encoding, const QByteArray& content)
{
    return QByteArray("<?xml version='1.0' encoding='") + encoding + "'?>" + content;
}

std::vector<HostileContent> encodings()
{
    const QString content = QStringLiteral("<r k='\u00E4'>\u20AC</r>");
    const QString loneSurrogate = QStringLiteral("<r>") + QChar(0xD83D) + QStringLiteral("</r>");
    return {
        {"utf-8-with-byte-order-mark", "\xEF\xBB\xBF" + content.toUtf8(), Verdict::Sound},
        {"utf-16-with-byte-order-mark-little-endian", "\xFF\xFE" + utf16(content, true), Verdict::Sound},
        {"utf-16-with-byte-order-mark-big-endian", "\xFE\xFF" + utf16(content, false), Verdict::Sound},
        {"utf-16-without-byte-order-mark-little-endian", utf16(content, true), Verdict::Tolerated},
        {"utf-16-without-byte-order-mark-big-endian", utf16(content, false), Verdict::Tolerated},
        {"utf-16-that-ends-inside-of-a-character", "\xFF\xFE" + utf16(content, true).chopped(1), Verdict::Broken},
        {"utf-32-with-byte-order-mark-little-endian", bytes("\xFF\xFE\0\0") + utf32("<r/>", true), Verdict::Tolerated},
        {"utf-32-with-byte-order-mark-big-endian", bytes("\0\0\xFE\xFF") + utf32("<r/>", false), Verdict::Tolerated},
        {"utf-32-without-byte-order-mark", utf32("<r/>", false), Verdict::Tolerated},
        {"latin-1-as-declared", declared("ISO-8859-1", "<r k='\xE4'/>"), Verdict::Sound},
        {"latin-1-not-declared", "<r k='\xE4'/>", Verdict::Tolerated},
        {"latin-1-declared-as-utf-8", declared("UTF-8", "<r k='\xE4'/>"), Verdict::Tolerated},
        {"utf-8-declared-as-latin-1", declared("ISO-8859-1", content.toUtf8()), Verdict::Sound},
        {"utf-8-declared-as-utf-16", declared("UTF-16", content.toUtf8()), Verdict::Tolerated},
        {"utf-8-declared-as-utf-32", declared("UTF-32", content.toUtf8()), Verdict::Tolerated},
        {"encoding-that-nobody-knows", declared("x-nobody-knows", "<r/>"), Verdict::Tolerated},
        {"encoding-with-a-long-name", declared(QByteArray(100000, 'x').constData(), "<r/>"), Verdict::Tolerated},
        {"encoding-without-name", declared("", "<r/>"), Verdict::Tolerated},
        {"overlong-slash-in-two-bytes", "<r>\xC0\xAF</r>", Verdict::Tolerated},
        {"overlong-tag-in-two-bytes", "\xC0\xBCr/>", Verdict::Broken},
        {"overlong-nul-in-three-bytes", "<r>\xE0\x80\x80</r>", Verdict::Tolerated},
        {"utf-8-beyond-unicode", "<r>\xF7\xBF\xBF\xBF</r>", Verdict::Tolerated},
        {"utf-8-cut-by-a-tag", "<r>\xE2\x82</r>", Verdict::Tolerated},
        {"utf-8-cut-by-the-end", "<r>\xE2\x82", Verdict::Broken},
        {"utf-8-that-begins-inside-of-a-character", "<r>\x82\xAC</r>", Verdict::Tolerated},
        {"lone-surrogate-in-utf-8", "<r>\xED\xA0\xBD</r>", Verdict::Tolerated},
        {"lone-surrogate-in-utf-16", "\xFF\xFE" + utf16(loneSurrogate, true), Verdict::Tolerated},
        {"surrogate-pair-in-utf-8", "<r>\xED\xA0\xBD\xED\xB8\x80</r>", Verdict::Tolerated},
        {"character-of-four-bytes", "<r>\xF0\x9F\x98\x80</r>", Verdict::Sound},
    };
}

std::vector<HostileContent> characters()
{
    return {
        {"nul-in-a-text", bytes("<r>\0</r>"), Verdict::Tolerated},
        {"nul-in-a-name", bytes("<r\0/>"), Verdict::Tolerated},
        {"nul-in-an-attribute", bytes("<r k='\0'/>"), Verdict::Tolerated},
        {"nul-behind-the-root", bytes("<r/>\0"), Verdict::Tolerated},
        {"nothing-but-nul", QByteArray(4096, '\0'), Verdict::Broken},
        {"control-characters-in-a-text", "<r>\x01\x08\x0B\x1F\x7F</r>", Verdict::Tolerated},
        {"control-characters-in-an-attribute", "<r k='\x01\x1B'/>", Verdict::Tolerated},
        {"control-characters-in-a-comment", "<r><!--\x01\x1B--></r>", Verdict::Tolerated},
        {"characters-that-are-none-in-a-text", "<r>\xEF\xBF\xBE\xEF\xBF\xBF</r>", Verdict::Tolerated},
        {"reference-to-nul", "<r>&#0;</r>", Verdict::Tolerated},
        {"reference-to-a-control-character", "<r k='&#1;'>&#x1B;</r>", Verdict::Tolerated},
        {"reference-to-a-lone-surrogate", "<r>&#xD83D;</r>", Verdict::Tolerated},
        {"reference-beyond-the-basic-plane", "<r>&#x1F600;</r>", Verdict::Tolerated},
        {"reference-beyond-unicode", "<r>&#x110000;</r>", Verdict::Tolerated},
        {"reference-with-a-hundred-digits", "<r>&#" + QByteArray(100, '9') + ";</r>", Verdict::Tolerated},
        {"reference-without-digits", "<r>&#;</r>", Verdict::Broken},
        {"reference-that-is-cut", "<r>&#12", Verdict::Broken},
        {"reference-to-an-undeclared-entity", "<r>&never;</r>", Verdict::Tolerated},
        {"reference-to-an-undeclared-entity-in-an-attribute", "<r k='&never;'/>", Verdict::Tolerated},
        {"ampersand-by-itself", "<r>a & b</r>", Verdict::Broken},
        {"less-than-in-an-attribute", "<r k='<'/>", Verdict::Broken},
        {"end-of-a-section-in-a-text", "<r>]]></r>", Verdict::Tolerated},
        {"two-hyphens-in-a-comment", "<r><!-- -- --></r>", Verdict::Tolerated},
    };
}

std::vector<HostileContent> markup()
{
    return {
        {"empty", QByteArray(), Verdict::Broken},
        {"blanks-only", " \t\r\n", Verdict::Broken},
        {"byte-order-mark-only", "\xEF\xBB\xBF", Verdict::Broken},
        {"half-a-byte-order-mark", "\xFF", Verdict::Broken},
        {"declaration-only", "<?xml version='1.0' encoding='UTF-8'?>", Verdict::Broken},
        {"declaration-behind-a-blank", " <?xml version='1.0'?><r/>", Verdict::Tolerated},
        {"declaration-twice", "<?xml version='1.0'?><?xml version='1.0'?><r/>", Verdict::Tolerated},
        {"declaration-of-another-version", "<?xml version='1.1'?><r/>", Verdict::Tolerated},
        {"comment-only", "<!-- -->", Verdict::Broken},
        {"document-type-only", "<!DOCTYPE r>", Verdict::Broken},
        {"noise", noise(), Verdict::Broken},
        {"noise-in-a-text", "<r>" + noise() + "</r>", Verdict::Tolerated},
        {"picture", bytes("\x89PNG\r\n\x1A\n\0\0\0\rIHDR"), Verdict::Broken},
        {"page-of-the-web", "<!DOCTYPE html><html><br></html>", Verdict::Broken},
        {"less-than-only", "<", Verdict::Broken},
        {"tags-without-names", "<></>", Verdict::Broken},
        {"name-that-begins-with-a-digit", "<1/>", Verdict::Broken},
        {"name-with-colons", "<r><a:b:c/></r>", Verdict::Tolerated},
        {"prefix-that-stands-for-nothing", "<r><p:a p:k='v'/></r>", Verdict::Tolerated},
        {"name-of-a-million-letters", "<r><" + QByteArray(1000000, 'x') + "/></r>", Verdict::Sound},
        {"attribute-twice", "<r k='1' k='2'/>", Verdict::Tolerated},
        {"attribute-without-value", "<r k/>", Verdict::Broken},
        {"attribute-that-is-cut", "<r k='v", Verdict::Broken},
        {"comment-that-is-cut", "<r><!-- ", Verdict::Broken},
        {"section-that-is-cut", "<r><![CDATA[ ", Verdict::Broken},
        {"instruction-that-is-cut", "<r><?p ", Verdict::Broken},
        {"end-tag-that-is-cut", "<r></r", Verdict::Broken},
        {"end-tag-only", "</r>", Verdict::Broken},
        {"tags-that-overlap", "<r><a><b></a></b></r>", Verdict::Broken},
    };
}

std::vector<HostileContent> documentTypes()
{
    return {
        {"document-type-that-is-cut", "<!DOCTYPE r [<!ELEMENT r", Verdict::Broken},
        {"document-type-of-another-root", "<!DOCTYPE s><r/>", Verdict::Sound},
        {"document-type-behind-the-root", "<r/><!DOCTYPE r>", Verdict::Broken},
        {"document-type-twice", "<!DOCTYPE r><!DOCTYPE r><r/>", Verdict::Tolerated},
        {"content-model", "<!DOCTYPE r [<!ELEMENT r (a|(b,c)*)><!ATTLIST r k (x|y) 'x'>]><r/>", Verdict::Sound},
        {"parameter-entity", "<!DOCTYPE r [<!ENTITY % p '<!ELEMENT r ANY>'>%p;]><r/>", Verdict::Sound},
        {"parameter-entity-that-is-not-declared", "<!DOCTYPE r [%p;]><r/>", Verdict::Tolerated},
        {"parameter-entities-inside-of-each-other",
         "<!DOCTYPE r [<!ENTITY % a '<!ELEMENT r ANY>'><!ENTITY % b '%a;'>%b;]><r/>", Verdict::Tolerated},
        {"entity-that-holds-half-an-element", "<!DOCTYPE r [<!ENTITY e '<a>'>]><r>&e;</a></r>", Verdict::Tolerated},
        {"entity-that-holds-an-element", "<!DOCTYPE r [<!ENTITY e '<a/>'>]><r>&e;</r>", Verdict::Sound},
        {"entity-that-is-cut", "<!DOCTYPE r [<!ENTITY e 'x", Verdict::Broken},
        {"entities-that-multiply-in-order",
         "<!DOCTYPE r [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
         "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]><r>&d;</r>",
         Verdict::Tolerated},
        {"notation", "<!DOCTYPE r [<!NOTATION n SYSTEM 'never'><!ENTITY e SYSTEM 'never' NDATA n>]><r/>",
         Verdict::Sound},
        {"reference-to-an-unparsed-entity",
         "<!DOCTYPE r [<!NOTATION n SYSTEM 'never'><!ENTITY e SYSTEM 'never' NDATA n>]><r>&e;</r>", Verdict::Tolerated},
        {"conditional-section", "<!DOCTYPE r [<![INCLUDE[<!ELEMENT r ANY>]]>]><r/>", Verdict::Broken},
    };
}

} // namespace

std::vector<HostileContent> hostileContents()
{
    std::vector<HostileContent> all;
    for (const auto& some : {encodings(), characters(), markup(), documentTypes()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

void addRowsOfHostileContent()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Verdict>("verdict");
    for (const HostileContent& content : hostileContents()) {
        QTest::newRow(content.name) << content.bytes << content.verdict;
    }
}

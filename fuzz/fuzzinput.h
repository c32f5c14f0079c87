#ifndef XMLHELPER_FUZZ_FUZZINPUT_H
#define XMLHELPER_FUZZ_FUZZINPUT_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QByteArray>
#include <QString>

/// The bytes of one input, read as choices. An input is made of parts with a line "%%" between them; what reads beyond
/// the end finds zeros and empty texts.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size);
    explicit FuzzInput(const QByteArray& bytes);

    bool IsAtEnd() const { return m_position >= m_bytes.size(); }
    int Byte();
    /// A number from 0 to @p count - 1.
    int Choice(int count);
    template <class Table> auto Of(const Table& table)
    {
        return table[static_cast<std::size_t>(Choice(int(std::size(table))))];
    }

    /// The rest of the line. Characters of the private use area from U+E000 to U+E7FF stand for single surrogates,
    /// which UTF-8 cannot carry.
    QString Line();
    /// What is left of the part; the next part begins behind its separator.
    QByteArray Part();
    void Rewind() { m_position = 0; }

private:
    QByteArray m_bytes;
    int m_position = 0;
};

/// What generated XML is made of. Attributes are given whole, such as a="1".
struct Vocabulary
{
    const char* root; ///< the start tag, without its brackets
    std::vector<const char*> tags;
    std::vector<const char*> attributes;
    std::vector<const char*> contents; ///< texts, comments and whatever else may stand in an element
};

/// The XML that @p part stands for: behind a "#" its bytes choose from @p vocabulary, so that mutations stay well
/// formed; any other part is XML as it stands.
QByteArray xmlOf(const QByteArray& part, const Vocabulary& vocabulary);

#endif

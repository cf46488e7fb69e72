#include "limits/json/tree_size.h"

namespace jsonlimits {

namespace {

// Measured with Qt 6.4, including the reserve of a growing list.
constexpr qint64 ValueBytes = 32;
constexpr qint64 ListBytes = 184; ///< a list or an object that is not empty
constexpr qint64 TextBytes = 16;  ///< in addition to its characters
// Characters are kept in one block that doubles; two bytes each if one of them is not Latin-1.
constexpr qint64 CharacterBytes = 2;
// The most that one byte can add.
constexpr qint64 WorstBytes = ListBytes + ValueBytes + CharacterBytes;

bool isSpace(char character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// Adds up the memory for the characters of a text.
class Estimate
{
public:
    [[nodiscard]] qint64 bytes() const { return m_bytes; }
    void take(char character);

private:
    void takeOutside(char character);

    qint64 m_bytes = ValueBytes;
    bool m_inText = false;
    bool m_isEscaped = false;
    bool m_isOpening = false; ///< after an opening bracket: an empty list takes no block
};

void Estimate::take(char character)
{
    if (!m_inText) {
        takeOutside(character);
    } else if (m_isEscaped) {
        m_isEscaped = false;
    } else if (character == '\\') {
        m_isEscaped = true;
    } else if (character == '"') {
        m_inText = false;
    }
}

void Estimate::takeOutside(char character)
{
    if (isSpace(character)) {
        return;
    }
    const bool isClosing = character == ']' || character == '}';
    m_bytes += m_isOpening && !isClosing ? ListBytes + ValueBytes : 0;
    m_isOpening = character == '[' || character == '{';
    m_bytes += character == ',' ? ValueBytes : 0;
    if (character == '"') {
        m_inText = true;
        m_bytes += TextBytes;
    }
}

} // namespace

qint64 treeBytes(const QByteArray& json, qint64 enough)
{
    if (json.size() < enough / WorstBytes) {
        return json.size() * WorstBytes;
    }
    const qint64 characters = json.size() * CharacterBytes;
    Estimate estimate;
    for (const char character : json) {
        estimate.take(character);
        if (estimate.bytes() + characters > enough) {
            break;
        }
    }
    return estimate.bytes() + characters;
}

} // namespace jsonlimits

#include "limits/json/tree_size.h"

namespace jsonbounds {

namespace {

// Measured with Qt 6.4, what a growing list holds in reserve included.
constexpr qint64 kValue = 32;
constexpr qint64 kList = 184; ///< a list or an object that is not empty
constexpr qint64 kText = 16;  ///< beside its letters
// Letters are kept in one block that doubles, two bytes each where one of them is foreign.
constexpr qint64 kLetter = 2;
// No byte stands for more.
constexpr qint64 kWorstByte = kList + kValue + kLetter;

bool isSpace(char letter)
{
    return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
}

/// Adds up what the letters of a text stand for.
class Estimate
{
public:
    [[nodiscard]] qint64 bytes() const { return m_bytes; }
    void take(char letter);

private:
    void takeOutside(char letter);

    qint64 m_bytes = kValue;
    bool m_inText = false;
    bool m_isEscaped = false;
    bool m_isOpening = false; ///< behind a bracket: an empty list takes no block
};

void Estimate::take(char letter)
{
    if (!m_inText) {
        takeOutside(letter);
    } else if (m_isEscaped) {
        m_isEscaped = false;
    } else if (letter == '\\') {
        m_isEscaped = true;
    } else if (letter == '"') {
        m_inText = false;
    }
}

void Estimate::takeOutside(char letter)
{
    if (isSpace(letter)) {
        return;
    }
    const bool isClosing = letter == ']' || letter == '}';
    m_bytes += m_isOpening && !isClosing ? kList + kValue : 0;
    m_isOpening = letter == '[' || letter == '{';
    m_bytes += letter == ',' ? kValue : 0;
    if (letter == '"') {
        m_inText = true;
        m_bytes += kText;
    }
}

} // namespace

qint64 treeBytes(const QByteArray& json, qint64 enough)
{
    if (json.size() < enough / kWorstByte) {
        return json.size() * kWorstByte;
    }
    const qint64 letters = json.size() * kLetter;
    Estimate estimate;
    for (const char letter : json) {
        estimate.take(letter);
        if (estimate.bytes() + letters > enough) {
            break;
        }
    }
    return estimate.bytes() + letters;
}

} // namespace jsonbounds

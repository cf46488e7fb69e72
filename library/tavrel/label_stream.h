#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QSizeF>
#include <QString>
#include <QtEndian>

#include <array>
#include <span>
#include <tuple>

/// Reads values from a label's stream, in QDataStream's encodings.
///
/// A value that the stream cuts short is zero or empty and leaves the stream at its end. The
/// stream's status is ignored: old labels that end early must be read as far as possible. Lengths
/// are checked against the rest of the stream before memory is allocated.
namespace tavrel {

/// Bytes between the stream's position and its end.
[[nodiscard]] qint64 bytesLeft(const QDataStream& stream);
/// Skips bytes, at most to the end of the stream.
void skipBytes(QDataStream& stream, qint64 count);
/// Reads bytes without decoding, as many as there are.
/// @return the number of bytes read
qsizetype readRaw(QDataStream& stream, std::span<char> to);

/// One byte; any value but 0 is true.
bool readBool(QDataStream& stream);
qint32 readInt32(QDataStream& stream);
quint32 readUInt32(QDataStream& stream);
/// Eight bytes; may be infinite or not a number.
double readDouble(QDataStream& stream);
/// Width, then height.
QSizeF readSize(QDataStream& stream);
/// A length in bytes, then UTF-16. With an odd length, however large, the text is empty and only
/// the length is consumed. With an even length beyond the end, the text is empty and the stream is
/// at its end.
QString readText(QDataStream& stream);
/// Skips a text by the rules of readText().
void skipText(QDataStream& stream);
/// A length, then bytes. With a length beyond the end, there are no bytes and the stream is at its
/// end.
QByteArray readBytes(QDataStream& stream);

/// The bytes of consecutive fields, as many as the stream contained.
class FieldBytes
{
public:
    explicit FieldBytes(std::span<const char> bytes)
        : m_left(bytes)
    {}

    /// Decodes the next field. A field that is cut short is zero, and so are all after it.
    template <typename Field>
    [[nodiscard]] Field take()
    {
        if (m_left.size() < sizeof(Field)) {
            m_left = {};
            return Field{};
        }
        const char* const bytes = m_left.data();
        m_left = m_left.subspan(sizeof(Field));
        return decoded(bytes, Field{});
    }

private:
    static bool decoded(const char* byte, bool) { return *byte != 0; }
    template <typename Number>
    static Number decoded(const char* bytes, Number)
    {
        return qFromBigEndian<Number>(bytes);
    }

    std::span<const char> m_left;
};

/// Reads consecutive fields of fixed size: flags (`bool`, one byte), `qint32`, `quint32` and
/// `double`. Same result as reading each field alone, also if the stream ends among them; but a
/// device needs nearly as long for one byte as for a hundred, and most of a record is such fields.
template <typename... Field>
[[nodiscard]] std::tuple<Field...> readFields(QDataStream& stream)
{
    static_assert(sizeof(bool) == 1);
    std::array<char, (sizeof(Field) + ...)> bytes;
    const qsizetype count = readRaw(stream, bytes);
    FieldBytes left({bytes.data(), static_cast<std::size_t>(count)});
    return std::tuple<Field...>{left.take<Field>()...}; // Braces: evaluated from left to right.
}

} // namespace tavrel

#pragma once

#include <QByteArray>
#include <QString>

#include <bit>

namespace tavrel_test {

/// The bytes of a hexadecimal text; blanks are ignored.
inline QByteArray hex(const char* text)
{
    return QByteArray::fromHex(QByteArray(text));
}

/// Writes a file's values one after another, by hand and not by a stream, so that tests do
/// not depend on the stream's own format.
class Bytes
{
public:
    Bytes& raw(const QByteArray& bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    Bytes& flag(bool value) { return raw(QByteArray(1, value ? '\1' : '\0')); }
    Bytes& word(quint32 value) { return bigEndian(value, 4); }
    Bytes& number(qint32 value) { return word(static_cast<quint32>(value)); }
    Bytes& real(double value) { return bigEndian(std::bit_cast<quint64>(value), 8); }
    Bytes& text(const QString& value)
    {
        word(static_cast<quint32>(value.size() * 2));
        for (const QChar character : value) {
            bigEndian(character.unicode(), 2);
        }
        return *this;
    }
    Bytes& data(const QByteArray& value)
    {
        return word(static_cast<quint32>(value.size())).raw(value);
    }

    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

private:
    Bytes& bigEndian(quint64 value, int size)
    {
        for (int shift = (size - 1) * 8; shift >= 0; shift -= 8) {
            m_bytes += static_cast<char>(value >> shift);
        }
        return *this;
    }

    QByteArray m_bytes;
};

/// The item header that the record tests share: movable, at 1 by 2 inches, layer 3,
/// turned by 90 degrees, 1 by 1/2 inch large.
inline constexpr char HeaderHex[] = "00"                        // locked
                                    "3FF0000000000000"          // x 1.0
                                    "4000000000000000"          // y 2.0
                                    "4008000000000000"          // layer 3.0
                                    "4056800000000000"          // rotation 90.0
                                    "00000006 0031 002F 0031"   // width "1/1"
                                    "00000006 0031 002F 0032 "; // height "1/2"

} // namespace tavrel_test

#pragma once

#include <QByteArray>
#include <QString>

namespace migration {

/// Reads the bytes of a binary label, whose numbers have their highest byte first.
///
/// Values beyond the end of the file are empty; then isCut() is true.
class ByteCursor
{
public:
    explicit ByteCursor(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] bool atEnd() const { return m_at >= m_bytes.size(); }
    /// Whether a value beyond the end of the file was requested.
    [[nodiscard]] bool isCut() const { return m_isCut; }

    /// Skips so many bytes, a number, a text or an array of bytes with its length.
    void skip(qint64 count);
    [[nodiscard]] qint32 takeNumber();
    [[nodiscard]] QString takeText();
    void skipText() { (void)takeText(); }
    void skipBytes();
    /// A number, and a PNG unless the number is 0. Returns whether there is a picture.
    [[nodiscard]] bool skipPicture();

private:
    [[nodiscard]] qint64 left() const { return m_bytes.size() - m_at; }
    void skipPng();

    QByteArray m_bytes;
    qint64 m_at = 0;
    bool m_isCut = false;
};

} // namespace migration

#pragma once

#include <QByteArray>
#include <QString>

namespace migration {

/// Goes over the bytes of a binary label, whose numbers have their highest byte first.
///
/// What the end of the file cuts off counts as empty and is remembered: isCut().
class ByteCursor
{
public:
    explicit ByteCursor(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] bool atEnd() const { return m_at >= m_bytes.size(); }
    /// Whether something was asked for that the file no longer holds.
    [[nodiscard]] bool isCut() const { return m_isCut; }

    void skip(qint64 count);
    [[nodiscard]] qint32 takeNumber();
    [[nodiscard]] QString takeText();
    void skipText() { (void)takeText(); }
    void skipBytes();
    /// A number that is 0 for no picture, else a PNG behind it. True when there is one.
    [[nodiscard]] bool skipPicture();

private:
    [[nodiscard]] qint64 left() const { return m_bytes.size() - m_at; }
    void skipPng();

    QByteArray m_bytes;
    qint64 m_at = 0;
    bool m_isCut = false;
};

} // namespace migration

#include "migration/census/byte_cursor.h"

#include <QtEndian>

#include <algorithm>

namespace migration {

namespace {

constexpr quint32 kNoLength = 0xFFFFFFFF;
constexpr qint64 kSignature = 8;
// Length, type and checksum of a PNG's chunk.
constexpr qint64 kChunkFrame = 12;

} // namespace

void ByteCursor::skip(qint64 count)
{
    m_isCut = m_isCut || count > left();
    m_at += std::min(count, left());
}

qint32 ByteCursor::takeNumber()
{
    const bool isThere = left() >= 4;
    const qint32 number = isThere ? qFromBigEndian<qint32>(m_bytes.constData() + m_at) : 0;
    skip(4);
    return number;
}

QString ByteCursor::takeText()
{
    const auto length = static_cast<quint32>(takeNumber());
    // Half a letter is no text: writers of such lengths wrote nothing behind them.
    if (length == kNoLength || length % 2 != 0) {
        return {};
    }
    if (length > left()) {
        skip(length);
        return {};
    }
    QString text(length / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(m_bytes.constData() + m_at, text.size(), text.data());
    m_at += length;
    return text;
}

void ByteCursor::skipBytes()
{
    const auto length = static_cast<quint32>(takeNumber());
    if (length != kNoLength) {
        skip(length);
    }
}

bool ByteCursor::skipPicture()
{
    if (takeNumber() == 0) {
        return false;
    }
    m_isCut = m_isCut || atEnd();
    if (m_bytes.mid(m_at, kSignature) == QByteArray("\x89PNG\r\n\x1a\n", kSignature)) {
        skipPng();
    }
    return true;
}

void ByteCursor::skipPng()
{
    skip(kSignature);
    while (!atEnd()) {
        const bool isLast = m_bytes.mid(m_at + 4, 4) == "IEND";
        const auto length = static_cast<quint32>(takeNumber());
        skip(kChunkFrame - 4 + length);
        if (isLast) {
            return;
        }
    }
    m_isCut = true;
}

} // namespace migration

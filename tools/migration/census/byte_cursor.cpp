#include "migration/census/byte_cursor.h"

#include "limits/image/png_chunks.h"

#include <QtEndian>

#include <algorithm>

namespace migration {

namespace {

constexpr quint32 NoLength = 0xFFFFFFFF;

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
    // An odd length is not a text: writers of such lengths wrote nothing after them.
    if (length == NoLength || length % 2 != 0) {
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
    if (length != NoLength) {
        skip(length);
    }
}

bool ByteCursor::skipPicture()
{
    if (takeNumber() == 0) {
        return false;
    }
    m_isCut = m_isCut || atEnd();
    if (QByteArrayView(m_bytes).sliced(m_at).startsWith(imagelimits::PngSignature)) {
        skipPng();
    }
    return true;
}

void ByteCursor::skipPng()
{
    skip(imagelimits::PngSignature.size());
    imagelimits::PngChunks chunks(QByteArrayView(m_bytes).sliced(m_at));
    bool isComplete = false;
    while (chunks.next()) {
        skip(chunks.chunk().bytes.size());
        isComplete = chunks.chunk().isComplete && chunks.chunk().type == imagelimits::PngEndType;
    }
    if (!isComplete) {
        skip(left() + 1);
    }
}

} // namespace migration

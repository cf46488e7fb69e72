#include "opendocument/picture_store.h"

#include "opendocument/log.h"
#include "opendocument/opendocument_limits.h"

#include "limits/image/safe_picture.h"
#include "messages/refusals.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

qint64 pixelsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

// Qt's renderer would paint a drawing with a picture's name, and open the local files
// that the drawing refers to.
bool isDrawing(const QByteArray& format)
{
    return format.startsWith("svg") || format == "pdf";
}

// Whether the picture, by the size in its header, may be decoded within this number of pixels.
bool isWithin(QByteArray bytes, qint64 pixels)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    if (!reader.canRead() || isDrawing(reader.format())) {
        return false;
    }
    return pixelsOf(reader.size()) <= pixels;
}

} // namespace

PictureStore::PictureStore(ReadMember readMember)
    : m_readMember(std::move(readMember))
    , m_bytesLeft(limits::AllPicturesBytes)
    , m_pixelsLeft(limits::AllPicturesPixels)
{}

QByteArray PictureStore::read(const QString& name)
{
    const QByteArray bytes = m_readMember(name, std::min(limits::PictureBytes, m_bytesLeft));
    m_bytesLeft -= bytes.size();
    return bytes;
}

QByteArray PictureStore::bytes(const QString& name)
{
    if (!m_bytes.contains(name)) {
        m_bytes.insert(name, read(name));
    }
    return m_bytes.value(name);
}

QPixmap PictureStore::decode(const QString& name)
{
    const QByteArray stored = read(name);
    if (stored.isEmpty()) {
        return {};
    }
    const QByteArray bytes = imagelimits::safePicture(stored);
    QPixmap pixmap;
    if (!isWithin(bytes, std::min(limits::PicturePixels, m_pixelsLeft)) ||
        !pixmap.loadFromData(bytes)) {
        logDebug("picture_store", __LINE__, Q_FUNC_INFO,
                 u"The picture %1 cannot be decoded or is too large"_s.arg(name),
                 refusals::PackagePictureUnreadable);
        return {};
    }
    m_pixelsLeft -= pixelsOf(pixmap.size());
    return pixmap;
}

QPixmap PictureStore::pixmap(const QString& name)
{
    if (!m_pixmaps.contains(name)) {
        m_pixmaps.insert(name, decode(name));
    }
    return m_pixmaps.value(name);
}

} // namespace opendocument

#include "orvanta/raster_picture.h"

#include "limits/image/bounded_picture.h"
#include "messages/refusals.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace orvanta {

namespace {

// Formats that hold pixels and nothing else.
constexpr const char* RasterFormats[] = {
    "bmp",    "cur", "gif", "icns",   "ico", "jp2", "jpeg", "jpg",  "pbm",  "pbmraw", "pgm",
    "pgmraw", "png", "ppm", "ppmraw", "tga", "tif", "tiff", "wbmp", "webp", "xbm",    "xpm",
};

bool isRasterFormat(const QByteArray& format)
{
    return std::any_of(std::begin(RasterFormats), std::end(RasterFormats),
                       [&format](const char* known) { return format == known; });
}

RasterPicture refused(const char* code, const QString& reason)
{
    return {QImage(), reason, code};
}

} // namespace

qint64 pixelCount(const QSize& size)
{
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

RasterPicture decodeRasterPicture(const QByteArray& bytes, qint64 pixelsLeft)
{
    QBuffer buffer;
    buffer.setData(imagebounds::boundedPicture(bytes));
    if (buffer.data().isEmpty() && !bytes.isEmpty()) {
        return refused(refusals::PictureTooLarge,
                       QStringLiteral("a picture that takes more work than any real one"));
    }
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (format.isEmpty()) {
        return {};
    }
    if (!isRasterFormat(format)) {
        return refused(refusals::PictureFormat,
                       QStringLiteral("a picture of the format %1 is not decoded")
                           .arg(QString::fromLatin1(format)));
    }
    const QSize claimed = reader.size();
    if (pixelCount(claimed) > std::min(pixelsLeft, MaximumPicturePixels)) {
        return refused(refusals::PictureTooLarge,
                       QStringLiteral("a picture of %1 by %2 pixels is too large")
                           .arg(claimed.width())
                           .arg(claimed.height()));
    }
    const QImage image = reader.read();
    if (pixelCount(image.size()) > pixelsLeft) {
        return refused(refusals::PictureTooLarge,
                       QStringLiteral("the pictures of the label are too large"));
    }
    return {image, QString()};
}

} // namespace orvanta

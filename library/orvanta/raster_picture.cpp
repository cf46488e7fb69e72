#include "orvanta/raster_picture.h"

#include "limits/image/safe_picture.h"
#include "limits/svg/svg_sanitizer.h"
#include "messages/refusals.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

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

// The picture of an open buffer, whose size is checked before a pixel is decoded.
RasterPicture decode(QBuffer& buffer, const QByteArray& format, qint64 pixelsLeft)
{
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize claimed = reader.size();
    if (pixelCount(claimed) > std::min(pixelsLeft, MaximumPicturePixels)) {
        return refused(refusals::PictureTooLarge,
                       u"a picture of %1 by %2 pixels is too large"_s.arg(claimed.width())
                           .arg(claimed.height()));
    }
    const QImage image = reader.read();
    if (pixelCount(image.size()) > pixelsLeft) {
        return refused(refusals::PictureTooLarge, u"the pictures of the label are too large"_s);
    }
    return {image, QString()};
}

// The renderer would open the files that a drawing names.
RasterPicture renderSvg(const QByteArray& svg, qint64 pixelsLeft)
{
    const auto safe = svglimits::sanitizeSvg(svg, svglimits::LengthUnits::AsWritten);
    if (!safe) {
        return refused(refusals::PictureUnreadable, u"a drawing that is damaged or too large"_s);
    }
    QBuffer buffer;
    buffer.setData(safe->document());
    buffer.open(QIODevice::ReadOnly);
    return decode(buffer, "svg", pixelsLeft);
}

} // namespace

qint64 pixelCount(const QSize& size)
{
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

RasterPicture decodeRasterPicture(const QByteArray& bytes, qint64 pixelsLeft)
{
    QBuffer buffer;
    buffer.setData(imagelimits::safePicture(bytes));
    if (buffer.data().isEmpty() && !bytes.isEmpty()) {
        return refused(refusals::PictureTooLarge,
                       u"a picture that takes more work than any real one"_s);
    }
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader(&buffer).format();
    if (format.isEmpty()) {
        return {};
    }
    if (format == "svg") {
        return renderSvg(buffer.data(), pixelsLeft);
    }
    if (!isRasterFormat(format)) {
        return refused(refusals::PictureFormat, u"a picture of the format %1 is not decoded"_s.arg(
                                                    QString::fromLatin1(format)));
    }
    return decode(buffer, format, pixelsLeft);
}

} // namespace orvanta

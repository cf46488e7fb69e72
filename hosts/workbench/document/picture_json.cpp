#include "workbench/document/item_json_values.h"

#include "limits/image/png_chunks.h"
#include "limits/image/safe_picture.h"
#include "workbench/document/document_limits.h"
#include "workbench/pictures/png_encoder.h"

#include <QBuffer>
#include <QImageReader>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace fields {

namespace {

namespace limits = workbench::document::limits;

constexpr QLatin1String PngKey("png");
constexpr QLatin1String PixelsKey("pixels");

/// How pixels are held in memory, and as what they are written.
struct PixelKind
{
    QStringView name;
    QImage::Format format;
    /// PNG has no colors multiplied by their alpha. They are written as if they were not
    /// multiplied, because converting them there and back would change them.
    QImage::Format written;
};

constexpr std::array<PixelKind, 3> PixelKinds{{
    {u"rgb", QImage::Format_RGB32, QImage::Format_RGB32},
    {u"argb", QImage::Format_ARGB32, QImage::Format_ARGB32},
    {u"premultiplied", QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32},
}};

[[nodiscard]] const PixelKind* kindOf(QImage::Format format)
{
    const auto found =
        std::find_if(PixelKinds.begin(), PixelKinds.end(),
                     [format](const PixelKind& each) { return each.format == format; });
    return found == PixelKinds.end() ? nullptr : &*found;
}

[[nodiscard]] const PixelKind* kindOf(const QString& name)
{
    const auto found = std::find_if(PixelKinds.begin(), PixelKinds.end(),
                                    [&](const PixelKind& each) { return each.name == name; });
    return found == PixelKinds.end() ? nullptr : &*found;
}

[[nodiscard]] QByteArray toPng(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return workbench::encodePng(image, buffer) ? bytes : QByteArray();
}

[[nodiscard]] QImage fromPng(const QByteArray& stored)
{
    // The header that claimedPixels() has counted. Qt's own limit is as high, at four bytes per
    // pixel, but a program may have changed it.
    const auto header = imagelimits::pngHeader(stored);
    if (!header || header->width > limits::PictureSide || header->height > limits::PictureSide ||
        header->pixels() > limits::PicturePixels) {
        return {};
    }
    QByteArray bytes = imagelimits::safePicture(stored);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

} // namespace

QJsonValue Json<QImage>::write(const QImage& value)
{
    if (value.isNull()) {
        return {};
    }
    QImage image = value;
    if (!kindOf(image.format())) {
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    }
    const PixelKind& kind = *kindOf(image.format());
    if (!image.reinterpretAsFormat(kind.written)) {
        return {};
    }
    return QJsonObject{{PngKey, Json<QByteArray>::write(toPng(image))},
                       {PixelsKey, kind.name.toString()}};
}

bool Json<QImage>::read(const QJsonValue& json, QImage& value)
{
    if (json.isNull()) {
        value = QImage();
        return true;
    }
    const QJsonObject object = json.toObject();
    const PixelKind* kind = kindOf(object.value(PixelsKey).toString());
    QByteArray png;
    if (!kind || !Json<QByteArray>::read(object.value(PngKey), png)) {
        return false;
    }
    QImage image = fromPng(png);
    if (image.isNull()) {
        return false;
    }
    image.convertTo(kind->written);
    if (!image.reinterpretAsFormat(kind->format)) {
        return false;
    }
    value = image;
    return true;
}

} // namespace fields

#include "workbench/document/json_values.h"

#include "limits/image/bounded_picture.h"
#include "workbench/document/document_limits.h"

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
    /// PNG knows no colors that are multiplied by their alpha. They are written as if they
    /// were not, because a conversion there and back would change them.
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
    return image.save(&buffer, "png") ? bytes : QByteArray();
}

[[nodiscard]] QImage fromPng(const QByteArray& stored)
{
    QByteArray bytes = imagebounds::boundedPicture(stored);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    // Its own limit is as high, at four bytes a pixel, but a program may have changed it.
    const QSize size = reader.size();
    const bool fits = size.width() > 0 && size.height() > 0 &&
                      size.width() <= limits::PictureSide && size.height() <= limits::PictureSide &&
                      qint64{size.width()} * size.height() <= limits::PicturePixels;
    return fits ? reader.read() : QImage();
}

} // namespace

QJsonValue Json<QImage>::write(const QImage& value)
{
    if (value.isNull())
        return {};
    QImage image = value;
    if (!kindOf(image.format()))
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const PixelKind& kind = *kindOf(image.format());
    if (!image.reinterpretAsFormat(kind.written))
        return {};
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
    if (!kind || !Json<QByteArray>::read(object.value(PngKey), png))
        return false;
    QImage image = fromPng(png);
    if (image.isNull())
        return false;
    image.convertTo(kind->written);
    if (!image.reinterpretAsFormat(kind->format))
        return false;
    value = image;
    return true;
}

} // namespace fields

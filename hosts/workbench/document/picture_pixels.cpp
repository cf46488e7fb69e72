#include "workbench/document/picture_pixels.h"

#include "limits/image/png_chunks.h"
#include "workbench/document/document_limits.h"

#include <QJsonArray>

#include <algorithm>

namespace workbench::document {

namespace {

// Characters of base64 that hold a PNG's header.
constexpr qsizetype HeaderTextSize = (imagelimits::PngHeaderEnd + 2) / 3 * 4;

[[nodiscard]] qint64 claimedPixelsOf(const QJsonValue& item)
{
    const QString png =
        item[QLatin1String("picture")][QLatin1String("image")][QLatin1String("png")].toString();
    const QByteArray bytes = QByteArray::fromBase64(png.left(HeaderTextSize).toLatin1());
    // Without a header the picture is not read.
    const auto header = imagelimits::pngHeader(bytes);
    return header ? std::min(header->pixels(), limits::AllPicturePixels + 1) : 0;
}

} // namespace

qint64 claimedPixels(const QJsonObject& label)
{
    qint64 pixels = 0;
    const QJsonArray items = label[QLatin1String("items")].toArray();
    for (qsizetype i = 0; i < items.size() && pixels <= limits::AllPicturePixels; ++i) {
        pixels += claimedPixelsOf(items[i]);
    }
    return pixels;
}

qint64 pixelsOf(const SavedLabel& label)
{
    qint64 pixels = 0;
    for (const ItemValues& item : label.items) {
        if (item.picture) {
            pixels += qint64{item.picture->image.width()} * item.picture->image.height();
        }
    }
    return pixels;
}

} // namespace workbench::document

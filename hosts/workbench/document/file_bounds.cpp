#include "workbench/document/file_bounds.h"

#include "workbench/document/document_limits.h"

#include <QJsonArray>
#include <QtEndian>

#include <algorithm>

namespace workbench::document {

namespace {

constexpr qsizetype WidthOffset = 16;
constexpr qsizetype HeightOffset = 20;
constexpr qsizetype HeaderSize = 24;
// What it takes in base64 to tell a PNG's size.
constexpr qsizetype HeaderTextSize = HeaderSize / 3 * 4;

[[nodiscard]] qint64 claimedPixelsOf(const QJsonValue& item)
{
    const QString png =
        item[QLatin1String("picture")][QLatin1String("image")][QLatin1String("png")].toString();
    const QByteArray header = QByteArray::fromBase64(png.left(HeaderTextSize).toLatin1());
    if (header.size() < HeaderSize)
        return 0;
    const qint64 width = qFromBigEndian<quint32>(header.constData() + WidthOffset);
    const qint64 height = qFromBigEndian<quint32>(header.constData() + HeightOffset);
    return std::min(width, limits::AllPicturePixels + 1) *
           std::min<qint64>(height, limits::PictureSide + 1);
}

} // namespace

qint64 claimedPixels(const QJsonObject& label)
{
    qint64 pixels = 0;
    const QJsonArray items = label[QLatin1String("items")].toArray();
    for (qsizetype i = 0; i < items.size() && pixels <= limits::AllPicturePixels; ++i)
        pixels += claimedPixelsOf(items[i]);
    return pixels;
}

qint64 pixelsOf(const SavedLabel& label)
{
    qint64 pixels = 0;
    for (const ItemValues& item : label.items) {
        if (item.picture)
            pixels += qint64{item.picture->image.width()} * item.picture->image.height();
    }
    return pixels;
}

} // namespace workbench::document

#include "tavrel/item_header.h"

#include "numeric/fraction.h"
#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"
#include "tavrel/printer_dots.h"
#include "tavrel/tavrel_limits.h"

namespace tavrel {
namespace {

// More than the items of any real label, so that layers do not overlap.
constexpr double LayerDistance = 1000.0;

QPointF positionFromDots(QPointF dots, const Resolution& resolution)
{
    return {dots.x() / resolution.x * PointsPerInch, dots.y() / resolution.y * PointsPerInch};
}

QPointF positionFromInches(QPointF inches, const Resolution&)
{
    return inches * PointsPerInch;
}

constexpr std::array PositionLayouts{
    Layout{OldestVersion, &positionFromDots},
    Layout{FirstWithPositionsInInches, &positionFromInches},
};

double readLength(QDataStream& stream)
{
    const QString text = readText(stream);
    const bool readable = text.size() <= MaximumLengthCharacters;
    return Fraction(readable ? text : QString()).toDouble() * PointsPerInch;
}

} // namespace

qint64 takeItemNumber()
{
    static qint64 next = 0;
    return next++;
}

ItemHeader readItemHeader(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    ItemHeader header;
    const auto [locked, x, y, layer, rotation] =
        readFields<bool, double, double, double, double>(stream);
    const QPointF position = layoutFor(PositionLayouts, file.version)({x, y}, file.resolution);
    header.movable = !locked;
    header.x = position.x();
    header.y = position.y();
    header.zValue = LayerDistance * layer + double(itemNumber);
    header.rotation = rotation;
    header.width = readLength(stream);
    header.height = readLength(stream);
    return header;
}

QSizeF contentSize(const ItemHeader& header, const Resolution& resolution, const QSizeF& ownSize)
{
    return {header.width / resolution.x * ownSize.width(),
            header.height / resolution.y * ownSize.height()};
}

} // namespace tavrel

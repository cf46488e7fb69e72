#include "tavrel/item_header.h"

#include "numeric/fraction.h"
#include "tavrel/bounded_stream.h"
#include "tavrel/bounds.h"
#include "tavrel/field_run.h"
#include "tavrel/file_versions.h"

namespace tavrel {
namespace {

constexpr double PointsPerInch = 72.0;
// More than a label ever had items, so that layers do not mix.
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

} // namespace tavrel

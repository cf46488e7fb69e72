#include "tavrel/item_header.h"

#include "numeric/fraction.h"
#include "tavrel/bounded_stream.h"
#include "tavrel/bounds.h"
#include "tavrel/file_versions.h"

namespace tavrel {
namespace {

constexpr double PointsPerInch = 72.0;
// More than a label ever had items, so that layers do not mix.
constexpr double LayerDistance = 1000.0;

void readPositionInDots(QDataStream& stream, const Resolution& resolution, ItemHeader& header)
{
    header.x = readDouble(stream) / resolution.x * PointsPerInch;
    header.y = readDouble(stream) / resolution.y * PointsPerInch;
}

void readPositionInInches(QDataStream& stream, const Resolution&, ItemHeader& header)
{
    header.x = readDouble(stream) * PointsPerInch;
    header.y = readDouble(stream) * PointsPerInch;
}

constexpr std::array PositionLayouts{
    Layout{OldestVersion, &readPositionInDots},
    Layout{FirstWithPositionsInInches, &readPositionInInches},
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
    header.movable = !readBool(stream); // The file tells whether the item is locked.
    layoutFor(PositionLayouts, file.version)(stream, file.resolution, header);
    header.zValue = LayerDistance * readDouble(stream) + double(itemNumber);
    header.rotation = readDouble(stream);
    header.width = readLength(stream);
    header.height = readLength(stream);
    return header;
}

} // namespace tavrel

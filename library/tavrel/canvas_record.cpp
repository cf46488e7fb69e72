#include "tavrel/canvas_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"

namespace tavrel {
namespace {

constexpr double PointsPerInch = 72.0;

// The printers of the dot-sized versions were said to have 300 by 305 dots per inch; old
// labels depend on the two numbers being different.
constexpr double DotsPerInch = 300.0;
constexpr double CrossDotsPerInch = 305.0;

void readSizeInDots(QDataStream& stream, CanvasRecord& record)
{
    record.height = readInt32(stream) * PointsPerInch / DotsPerInch;
    record.width = readInt32(stream) * PointsPerInch / CrossDotsPerInch;
}

void readSizeInInches(QDataStream& stream, CanvasRecord& record)
{
    record.height = readDouble(stream) * PointsPerInch;
    record.width = readDouble(stream) * PointsPerInch;
}

bool orientationFlagOf(qint32 code)
{
    return code == 0 || code == 2;
}

Resolution usualResolution(bool orientationFlag)
{
    return orientationFlag ? Resolution{DotsPerInch, CrossDotsPerInch}
                           : Resolution{CrossDotsPerInch, DotsPerInch};
}

// All that every version has behind the size.
void readSuppliesAndFlags(QDataStream& stream, CanvasRecord& record)
{
    record.labelType = readInt32(stream);
    record.ribbonType = readInt32(stream);
    skipText(stream);
    skipText(stream);
    record.canvasFlag = readBool(stream);
    record.orientationFlag = orientationFlagOf(readInt32(stream));
    readInt32(stream);
    readBool(stream);
    readSize(stream);
    readSize(stream);
    record.resolution = usualResolution(record.orientationFlag);
}

CanvasRecord readInDots(QDataStream& stream)
{
    CanvasRecord record;
    readBool(stream);
    readSizeInDots(stream, record);
    readSuppliesAndFlags(stream, record);
    return record;
}

CanvasRecord readInInches(QDataStream& stream)
{
    CanvasRecord record;
    readBool(stream);
    readSizeInInches(stream, record);
    readSuppliesAndFlags(stream, record);
    return record;
}

CanvasRecord readWithResolutions(QDataStream& stream)
{
    CanvasRecord record = readInInches(stream);
    record.resolution.x = readDouble(stream);
    record.resolution.y = readDouble(stream);
    return record;
}

constexpr std::array Layouts{
    Layout{OldestVersion, &readInDots},
    Layout{FirstWithCanvasInInches, &readInInches},
    Layout{FirstWithResolutions, &readWithResolutions},
};

} // namespace

CanvasRecord readCanvasRecord(QDataStream& stream, quint32 version)
{
    return layoutFor(Layouts, version)(stream);
}

} // namespace tavrel

#include "tavrel/page_records.h"

#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"
#include "tavrel/printer_dots.h"

namespace tavrel {
namespace {

// Assumed for the printers of the versions that store dots. Old labels depend on the two numbers
// being different.
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

Resolution defaultResolution(bool orientationFlag)
{
    return orientationFlag ? Resolution{DotsPerInch, CrossDotsPerInch}
                           : Resolution{CrossDotsPerInch, DotsPerInch};
}

// The fields after the size, the same in every version.
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
    record.resolution = defaultResolution(record.orientationFlag);
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

constexpr std::array CanvasLayouts{
    Layout{OldestVersion, &readInDots},
    Layout{FirstWithCanvasInInches, &readInInches},
    Layout{FirstWithResolutions, &readWithResolutions},
};

SequenceSettings readWithoutTrailingValue(QDataStream& stream)
{
    SequenceSettings settings;
    settings.sequenceStart = readInt32(stream);
    settings.sequenceEnd = readInt32(stream);
    settings.sequenceStep = readInt32(stream);
    settings.sequenceZeroPad = readInt32(stream);
    settings.sequencePrefix = readText(stream);
    settings.sequenceSuffix = readText(stream);
    settings.sequenceTrailingValue = settings.sequenceStart;
    return settings;
}

SequenceSettings readWithTrailingValue(QDataStream& stream)
{
    SequenceSettings settings = readWithoutTrailingValue(stream);
    settings.sequenceTrailingValue = readInt32(stream);
    return settings;
}

constexpr std::array SequenceLayouts{
    Layout{OldestVersion, &readWithoutTrailingValue},
    Layout{FirstWithSequenceTrailingValue, &readWithTrailingValue},
};

bool isFilePath(const QString& path)
{
    return path.contains(u'/') || path.contains(u'\\');
}

} // namespace

bool CanvasHeader::isSupported() const
{
    return version >= OldestVersion;
}

CanvasHeader readCanvasHeader(QDataStream& stream)
{
    readInt32(stream); // Not needed for reading; old labels contain any value here.
    CanvasHeader header;
    header.version = readUInt32(stream);
    return header;
}

CanvasRecord readCanvasRecord(QDataStream& stream, quint32 version)
{
    return layoutFor(CanvasLayouts, version)(stream);
}

SequenceSettings readSequenceSettings(QDataStream& stream, quint32 version)
{
    return layoutFor(SequenceLayouts, version)(stream);
}

bool readDatabaseList(QDataStream& stream)
{
    readInt32(stream);
    readInt32(stream);
    const qint32 selected = readInt32(stream);
    const qint32 count = readInt32(stream);
    bool linked = false;
    // The stored count may be anything, so the end of the stream is the limit. All entries are
    // read, because the items follow the last one.
    for (qint32 i = 0; i < count && !stream.atEnd(); ++i) {
        const QString path = readText(stream);
        readInt32(stream);
        linked = linked || (i == selected && isFilePath(path));
    }
    return linked;
}

} // namespace tavrel

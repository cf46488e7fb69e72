#include "tavrel/barcode_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"
#include "tavrel/whole_numbers.h"

#include <Qt>

namespace tavrel {
namespace {

// The symbology whose option is a number (of columns) instead of a flag.
constexpr qint32 SymbologyWithNumberOption = 55;

int alignmentOf(qint32 placementCode)
{
    constexpr qint32 left = 1;
    constexpr qint32 right = 2;
    switch (placementCode) {
    case left:
        return Qt::AlignLeft;
    case right:
        return Qt::AlignRight;
    default:
        return Qt::AlignCenter;
    }
}

// From the unused flag to the unused value: the run that all layouts share.
void readSymbolSettings(QDataStream& stream, const FileContext& file, BarcodeRecord& record)
{
    readBool(stream);
    readText(stream);
    record.moduleWidth = roundedPoints(readInt32(stream), file.resolution.x);
    record.textAlignment = alignmentOf(readInt32(stream));
    record.flag1 = readBool(stream);
    record.flag2 = readBool(stream);
    record.flag3 = readBool(stream);
    record.flag4 = readBool(stream);
    record.number = readText(stream).toInt();
    record.value1 = readInt32(stream);
    record.value2 = readInt32(stream);
    readInt32(stream);
}

void readKeyFirst(QDataStream& stream, const FileContext& file, BarcodeRecord& record)
{
    record.datasourceKey = readText(stream);
    record.symbology = readInt32(stream);
    record.content = readText(stream);
    readSymbolSettings(stream, file, record);
    record.datasourceText = readText(stream);
}

void readContentFirst(QDataStream& stream, const FileContext& file, BarcodeRecord& record)
{
    record.content = readText(stream);
    record.datasourceText = readText(stream);
    record.datasourceKey = readText(stream);
    record.symbology = readInt32(stream);
    readSymbolSettings(stream, file, record);
}

constexpr std::array Layouts{
    Layout{OldestVersion, &readKeyFirst},
    Layout{FirstWithContentFirst, &readContentFirst},
};

} // namespace

int BarcodeRecord::option() const
{
    return symbology == SymbologyWithNumberOption ? value2 : int(flag4);
}

BarcodeRecord readBarcodeRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    BarcodeRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    layoutFor(Layouts, file.version)(stream, file, record);
    return record;
}

} // namespace tavrel

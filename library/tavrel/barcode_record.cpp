#include "tavrel/barcode_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/field_run.h"
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
    skipText(stream);
    const auto [dots, placement, flag1, flag2, flag3, flag4] =
        readFields<qint32, qint32, bool, bool, bool, bool>(stream);
    record.moduleWidth = roundedPoints(dots, file.resolution.x);
    record.textAlignment = alignmentOf(placement);
    record.flag1 = flag1;
    record.flag2 = flag2;
    record.flag3 = flag3;
    record.flag4 = flag4;
    record.number = readText(stream).toInt();
    std::tie(record.value1, record.value2, std::ignore) =
        readFields<qint32, qint32, qint32>(stream);
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

#include "tavrel/barcodes.h"

#include "host/items/barcode_item.h"
#include "host/services/common_lists.h"
#include "tavrel/datasource_binder.h"
#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"
#include "tavrel/printer_dots.h"

#include <Qt>

namespace tavrel {
namespace {

// PDF417, the only symbology with a number as its option.
constexpr qint32 SymbologyWithColumns = 55;

int alignmentOf(qint32 placementCode)
{
    constexpr qint32 Left = 1;
    constexpr qint32 Right = 2;
    switch (placementCode) {
    case Left:
        return Qt::AlignLeft;
    case Right:
        return Qt::AlignRight;
    default:
        return Qt::AlignCenter;
    }
}

// The fields that are the same in all layouts, from an unused flag to an unused number.
void readSymbolSettings(QDataStream& stream, const FileContext& file, BarcodeRecord& record)
{
    readBool(stream);
    skipText(stream);
    const auto [dots, placement, flag1, flag2, flag3, flag4] =
        readFields<qint32, qint32, bool, bool, bool, bool>(stream);
    record.moduleWidth = roundedPoints(dots, file.resolution.x);
    record.textAlignment = alignmentOf(placement);
    record.hasQuietZones = flag1;
    record.hasBearerBars = flag2;
    record.hasText = flag3;
    record.hasCheckDigit = flag4;
    record.size = readText(stream).toInt();
    std::tie(record.errorCorrection, record.columns, std::ignore) =
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

constexpr std::array BarcodeLayouts{
    Layout{OldestVersion, &readKeyFirst},
    Layout{FirstWithContentFirst, &readContentFirst},
};

} // namespace

int BarcodeRecord::option() const
{
    return symbology == SymbologyWithColumns ? columns : int(hasCheckDigit);
}

BarcodeRecord readBarcodeRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    BarcodeRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    layoutFor(BarcodeLayouts, file.version)(stream, file, record);
    return record;
}

bool isValidSymbology(qint32 symbology, bool linear)
{
    const auto code = static_cast<unsigned short>(symbology);
    return linear ? CommonLists::isValidBarcode1D(code) : CommonLists::isValidBarcode2D(code);
}

BuildResult buildBarcode(const HostCanvas& host, const BarcodeRecord& record,
                         const DatasourceBinder& binder)
{
    auto item = building::createItem<BarcodeItem>(host.factory, KestTypes::Barcode);
    if (!item) {
        return BuildResult::NoItem;
    }
    item->importBarcodeProperties(record.symbology, record.content, record.hasText,
                                  record.textAlignment, record.moduleWidth, record.hasQuietZones,
                                  record.hasBearerBars, record.option(), record.size,
                                  record.errorCorrection);
    item->setItemSize(record.header.size());
    item->setItemRotation(record.header.rotation);
    setLayerAndLock(*item, record.header);
    item->setForegroundColor(host.model->canvasDefaultPenColor());
    item->setBackgroundColor(host.model->canvasBackgroundColor());
    item->setPos(record.header.position());
    binder.bindDatasource(*item, record.datasourceKey, record.datasourceText);
    host.model->importItem(item.release());
    return BuildResult::Built;
}

} // namespace tavrel

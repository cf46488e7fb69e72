#include "tavrel/barcode_builder.h"

#include "host/items/barcode_item.h"
#include "host/services/common_lists.h"
#include "tavrel/datasource_binder.h"

namespace tavrel {

bool isValidSymbology(qint32 symbology, bool linear)
{
    const auto code = static_cast<unsigned short>(symbology);
    return linear ? CommonLists::isValidBarcode1D(code) : CommonLists::isValidBarcode2D(code);
}

BuildResult buildBarcode(const HostCanvas& host, const BarcodeRecord& record,
                         const DatasourceBinder& binder)
{
    std::unique_ptr<BarcodeItem> item = createItem<BarcodeItem>(host, KestTypes::Barcode);
    if (!item) {
        return BuildResult::NoItem;
    }
    item->importBarcodeProperties(record.symbology, record.content, record.flag3,
                                  record.textAlignment, record.moduleWidth, record.flag1,
                                  record.flag2, record.option(), record.number, record.value1);
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

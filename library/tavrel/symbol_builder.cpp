#include "tavrel/symbol_builder.h"

#include "host/items/symbol_item.h"
#include "tavrel/content_size.h"

namespace tavrel {

BuildResult buildSymbol(const HostCanvas& host, const ItemHeader& header,
                        const Resolution& resolution, const QByteArray& data)
{
    std::unique_ptr<SymbolItem> item = createItem<SymbolItem>(host, KestTypes::Symbol);
    if (!item) {
        return BuildResult::NoItem;
    }
    item->loadItemFromData(data);
    const QSizeF ownSize = item->getItemSize();
    if (ownSize.width() <= 0.0 || ownSize.height() <= 0.0) {
        return BuildResult::NoSize;
    }
    item->setItemSize(contentSize(header, resolution, ownSize));
    item->setItemRotation(header.rotation);
    placeItem(*item, header);
    item->setForegroundColor(host.model->canvasDefaultPenColor());
    item->setBackgroundColor(host.model->canvasBackgroundColor());
    host.model->importItem(item.release());
    return BuildResult::Built;
}

} // namespace tavrel

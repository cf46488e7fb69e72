#include "tavrel/picture_builder.h"

#include "host/items/pix_map_item.h"
#include "tavrel/content_size.h"

#include <QPixmap>

#include <utility>

namespace tavrel {

BuildResult buildPicture(const HostCanvas& host, PictureRecord record, const Resolution& resolution)
{
    std::unique_ptr<PixMapItem> item = createItem<PixMapItem>(host, KestTypes::Picture);
    if (!item) {
        return BuildResult::NoItem;
    }
    item->pixmapImportActions(QPixmap::fromImage(std::move(record.picture.image)));
    item->setItemSize(contentSize(record.header, resolution, item->getItemSize()));
    item->setItemRotation(record.header.rotation);
    placeItem(*item, record.header);
    host.model->importItem(item.release());
    return BuildResult::Built;
}

} // namespace tavrel

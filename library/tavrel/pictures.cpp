#include "tavrel/pictures.h"

#include "host/items/pix_map_item.h"

#include <QPixmap>

#include <utility>

namespace tavrel {

PictureRecord readPictureRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber,
                                qint64& pixelsLeft)
{
    PictureRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    record.picture = readPicture(stream, pixelsLeft);
    return record;
}

BuildResult buildPicture(const HostCanvas& host, PictureRecord record, const Resolution& resolution)
{
    auto item = building::createItem<PixMapItem>(host.factory, KestTypes::Picture);
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

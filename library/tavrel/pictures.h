#pragma once

#include "tavrel/item_building.h"
#include "tavrel/stream_picture.h"

/// Picture items.
namespace tavrel {

/// A picture item as the file stores it.
struct PictureRecord
{
    ItemHeader header;
    StreamPicture picture;
};

/// @param pixelsLeft pixels that the file's pictures may still have, see readPicture()
[[nodiscard]] PictureRecord readPictureRecord(QDataStream& stream, const FileContext& file,
                                              qint64 itemNumber, qint64& pixelsLeft);

/// Builds a picture item, of size 0 by 0 without a picture. Consumes the record, so that the
/// pixels are not copied.
BuildResult buildPicture(const HostCanvas& host, PictureRecord record,
                         const Resolution& resolution);

} // namespace tavrel

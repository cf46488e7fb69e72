#pragma once

#include "tavrel/item_header.h"
#include "tavrel/stream_picture.h"

namespace tavrel {

struct PictureRecord
{
    ItemHeader header;
    StreamPicture picture;
};

/// @param pixelsLeft what the file's pictures may still unpack, see readPicture()
[[nodiscard]] PictureRecord readPictureRecord(QDataStream& stream, const FileContext& file,
                                              qint64 itemNumber, qint64& pixelsLeft);

} // namespace tavrel

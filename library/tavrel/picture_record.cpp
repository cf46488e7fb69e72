#include "tavrel/picture_record.h"

namespace tavrel {

PictureRecord readPictureRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber,
                                qint64& pixelsLeft)
{
    PictureRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    record.picture = readPicture(stream, pixelsLeft);
    return record;
}

} // namespace tavrel

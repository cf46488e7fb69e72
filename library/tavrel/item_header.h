#pragma once

#include "tavrel/page_records.h"

#include <QDataStream>
#include <QPointF>
#include <QSizeF>

namespace tavrel {

/// What item records depend on from the records before them.
struct FileContext
{
    quint32 version = 0;
    Resolution resolution;
};

/// The start of every item record. Lengths are in points and not checked: they may be infinite or
/// not a number.
struct ItemHeader
{
    bool movable = false;
    double x = 0.0;
    double y = 0.0;
    double zValue = 0.0;
    double rotation = 0.0; ///< degrees
    double width = -1.0;
    double height = -1.0;

    [[nodiscard]] QPointF position() const { return {x, y}; }
    [[nodiscard]] QSizeF size() const { return {width, height}; }
};

/// The number of the next item. There is one counter per process, from 0 and never reset, so that
/// the items of an import are in front of those of an earlier import. Call it from one thread
/// only, like the complete reader.
[[nodiscard]] qint64 takeItemNumber();

/// @param itemNumber from takeItemNumber(); of two items in a layer, the later one is in front
[[nodiscard]] ItemHeader readItemHeader(QDataStream& stream, const FileContext& file,
                                        qint64 itemNumber);

/// The size of a picture or symbol in points. The file stores the size that one unit of the
/// content's own size has at the printer's resolution.
[[nodiscard]] QSizeF contentSize(const ItemHeader& header, const Resolution& resolution,
                                 const QSizeF& ownSize);

} // namespace tavrel

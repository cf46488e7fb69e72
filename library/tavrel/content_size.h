#pragma once

#include "tavrel/file_context.h"
#include "tavrel/item_header.h"

#include <QSizeF>

namespace tavrel {

/// The size of a picture or symbol in points. The file stores how large one unit of the
/// content's own size becomes at the printer's resolution.
[[nodiscard]] inline QSizeF contentSize(const ItemHeader& header, const Resolution& resolution,
                                        const QSizeF& ownSize)
{
    return {header.width / resolution.x * ownSize.width(),
            header.height / resolution.y * ownSize.height()};
}

} // namespace tavrel

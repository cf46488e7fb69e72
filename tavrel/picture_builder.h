#pragma once

#include "tavrel/item_building.h"
#include "tavrel/picture_record.h"

namespace tavrel {

/// Builds a picture item; a record without a picture gives an item of size 0 by 0.
BuildResult buildPicture(const HostCanvas& host, const PictureRecord& record,
                         const Resolution& resolution);

} // namespace tavrel

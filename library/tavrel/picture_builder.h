#pragma once

#include "tavrel/item_building.h"
#include "tavrel/picture_record.h"

namespace tavrel {

/// Builds a picture item; a record without a picture gives an item of size 0 by 0. The record
/// is consumed: its pixels become the item's without a second copy of them.
BuildResult buildPicture(const HostCanvas& host, PictureRecord record,
                         const Resolution& resolution);

} // namespace tavrel

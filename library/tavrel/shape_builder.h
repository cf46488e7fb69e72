#pragma once

#include "tavrel/item_building.h"
#include "tavrel/shape_record.h"

namespace tavrel {

/// Builds a shape or a line. A host that makes nothing for a line stops the process.
BuildResult buildShape(const HostCanvas& host, const ShapeRecord& record);

} // namespace tavrel

#pragma once

#include "repair/object_items.h"
#include "repair/page_end.h"

#include <QMap>

#include <optional>

namespace repair {

/// Places the objects of a text document, whose texts have their sizes: its rows one below the
/// other, and the objects in its texts at their marks.
///
/// @param objects by their order
/// @return where the page is full, if its rows need another one
std::optional<PageEnd> placeObjects(const QMap<int, ObjectItems>& objects, const PagePlan& page);

} // namespace repair

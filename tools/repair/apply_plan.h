#pragma once

#include "repair/item_plan.h"
#include "repair/page_end.h"

#include <optional>

namespace workbench {
class Canvas;
}

namespace repair {

/// Sets on the items of a canvas what the reader could not carry. The items must come from
/// the document that the plan was made for.
/// @return where the page is full, if its text needs another one
std::optional<PageEnd> applyPlan(workbench::Canvas& canvas, const PagePlan& plan);

} // namespace repair

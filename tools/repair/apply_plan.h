#pragma once

#include "repair/item_plan.h"

namespace workbench {
class Canvas;
}

namespace repair {

/// Sets on the items of a canvas what the reader could not carry. The items must come from
/// the document that the plan was made for.
void applyPlan(workbench::Canvas& canvas, const PagePlan& plan);

} // namespace repair

#pragma once

#include "migration/losses/matching.h"

namespace workbench {
class Canvas;
}

namespace migration {

/// Paints the label where it can matter, and finds texts that have too little contrast to what is
/// under them, and shapes that cannot be seen. Without such candidates, nothing is painted.
void checkRendering(const workbench::Canvas& canvas, const Matching& matching, LabelFacts& label);

} // namespace migration

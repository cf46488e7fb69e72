#pragma once

#include "window/review/corrections.h"

class QUndoStack;
class QWidget;

namespace window {

/// The text of a correction's button.
[[nodiscard]] QString titleOf(Correction correction);

/// Corrects the items of an issue, or the selected ones if the issue names none: asks for what the
/// correction needs, and makes one step that can be undone. Fonts and sizes are corrected on all
/// items.
/// @return false if the user canceled or nothing changes
bool applyCorrection(Correction correction, const Issue& issue, OpenLabel& label, QUndoStack& stack,
                     QWidget* window);

} // namespace window

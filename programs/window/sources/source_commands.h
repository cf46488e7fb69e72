#pragma once

#include "window/sources/source_changes.h"

#include <memory>

class QWidget;

namespace window {

/// Asks for a CSV file and the columns that items show. A label has one CSV file: another one
/// replaces it. Null if the user canceled.
[[nodiscard]] std::unique_ptr<QUndoCommand>
connectCsv(OpenLabel& label, const ChangeSources::Changed& changed, QWidget* window);

/// Edits a data source in a dialog. Null if the user canceled or changed nothing.
[[nodiscard]] std::unique_ptr<QUndoCommand>
editSource(OpenLabel& label, int id, const ChangeSources::Changed& changed, QWidget* window);

} // namespace window

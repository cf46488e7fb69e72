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

/// Asks for a new data source of this kind, which those of the items show that can. Null if the
/// user canceled.
[[nodiscard]] std::unique_ptr<QUndoCommand> addSource(OpenLabel& label, const QString& kind,
                                                      const QList<workbench::CanvasItem*>& items,
                                                      const ChangeSources::Changed& changed,
                                                      QWidget* window);

/// Shows a data source in those of the items that can; asks for the columns of a CSV file. Null if
/// nothing changes.
[[nodiscard]] std::unique_ptr<QUndoCommand> showSource(OpenLabel& label, int id,
                                                       const QList<workbench::CanvasItem*>& items,
                                                       const ChangeSources::Changed& changed,
                                                       QWidget* window);

} // namespace window

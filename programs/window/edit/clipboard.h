#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QList>

#include <memory>

class QMimeData;

namespace window {

/// The items for the clipboard: as a saved label, and their texts as plain text.
[[nodiscard]] std::unique_ptr<QMimeData>
copyItems(const QList<workbench::CanvasItem*>& items,
          const workbench::datasources::DatasourceController& sources);

[[nodiscard]] bool hasItems(const QMimeData* data);

/// The items of the clipboard for a label with these data sources; none if it has no items.
///
/// The data comes from another program and is checked as a file is. A binding to a data source is
/// kept if the label has the same source, and removed otherwise.
[[nodiscard]] QList<workbench::ItemValues>
pastedItems(const QMimeData* data, const workbench::datasources::DatasourceController& sources);

} // namespace window

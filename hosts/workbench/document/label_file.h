#pragma once

#include "workbench/document/label_json.h"
#include "workbench/document/saved_label.h"

#include <QString>

namespace workbench::document {

/// All of a canvas and its data sources. The z values are numbered from 0 in their order.
[[nodiscard]] SavedLabel snapshot(const Canvas& canvas,
                                  const datasources::DatasourceController& datasources);

/// Replaces what is on the canvas and in the data sources. Items that are bound to a data
/// source show its first record.
/// @return false, and nothing is changed, when the data sources do not fit together
[[nodiscard]] bool restore(const SavedLabel& label, Canvas& canvas,
                           datasources::DatasourceController& datasources);

/// Saves a label. The file is replaced completely or not at all.
/// @return user-visible reason why it could not be saved; empty on success
[[nodiscard]] QString saveLabel(
    const QString& path, const Canvas& canvas, const datasources::DatasourceController& datasources,
    Origin origin = Origin::User, const Heartbeat& heartbeat = [] {});

/// Whether a file is a label that an import saved and that is unchanged since.
[[nodiscard]] bool isUneditedImport(const QString& path);

/// Opens a saved label in place of what is on the canvas.
/// @return user-visible reason why it could not be opened, and nothing is changed;
///         empty when it was
[[nodiscard]] QString openLabel(const QString& path, Canvas& canvas,
                                datasources::DatasourceController& datasources);

} // namespace workbench::document

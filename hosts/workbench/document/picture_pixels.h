#pragma once

#include "workbench/document/saved_label.h"

#include <QJsonObject>

/// The size of all pictures of a saved label, for checking limits before decoding them.
namespace workbench::document {

/// The pixels of all pictures according to their headers; decodes none of them.
[[nodiscard]] qint64 claimedPixels(const QJsonObject& label);

/// The pixels of all pictures of a label.
[[nodiscard]] qint64 pixelsOf(const SavedLabel& label);

} // namespace workbench::document

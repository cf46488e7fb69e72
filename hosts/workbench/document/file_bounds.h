#pragma once

#include "workbench/document/saved_label.h"

#include <QJsonObject>

/// What a saved label's file asks for as a whole, found out before it is taken.
namespace workbench::document {

/// The pixels of all pictures by what their own headers say; none of them is decoded.
[[nodiscard]] qint64 claimedPixels(const QJsonObject& label);

/// The pixels of all pictures of a label.
[[nodiscard]] qint64 pixelsOf(const SavedLabel& label);

} // namespace workbench::document

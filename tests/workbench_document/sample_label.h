#pragma once

#include "workbench/document/saved_label.h"

/// A label with an item of every type and a data source of every kind.
[[nodiscard]] workbench::document::SavedLabel sampleLabel();

/// The values of an item of this type; no group has the defaults.
[[nodiscard]] workbench::ItemValues sampleItem(KestTypes::ShapeType type);

/// All item types.
[[nodiscard]] QList<KestTypes::ShapeType> allTypes();

#pragma once

#include "workbench/document/saved_label.h"

/// A label with an item of every type and a data source of every kind.
[[nodiscard]] workbench::document::SavedLabel sampleLabel();

/// What an item of this type remembers, every group with values that are not the defaults.
[[nodiscard]] workbench::ItemValues sampleItem(KestTypes::ShapeType type);

/// Every type of item.
[[nodiscard]] QList<KestTypes::ShapeType> allTypes();

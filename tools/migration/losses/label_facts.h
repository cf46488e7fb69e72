#pragma once

#include "importer/reader_choice.h"
#include "migration/model/file_report.h"
#include "workbench/items/item_values.h"

namespace workbench {
class Canvas;
struct ImportResult;
} // namespace workbench

namespace migration {

/// Fills in what the label shows: page, items by kind, data sources, issues.
void describeLabel(const workbench::ImportResult& result, FileReport& report);

/// Every item, one by one.
[[nodiscard]] QList<ItemReport> itemListOf(const workbench::ImportResult& result);

/// A small picture of the label as PNG, at most 160 pixels a side and a few kilobytes.
/// Empty when it cannot be painted.
[[nodiscard]] QByteArray thumbnailOf(const workbench::Canvas& canvas);

/// The small picture that a file contains, of the same size: of an OpenDocument package or a binary
/// label. Empty if it has none.
[[nodiscard]] QByteArray previewOf(const QByteArray& file, ReaderKind reader);

} // namespace migration

#pragma once

#include "repair/repair.h"

#include "workbench/import/label_import.h"

namespace repair {

/// One page of a document on a canvas.
struct RepairedImport
{
    workbench::ImportResult result;
    /// Empty if the document was imported as it is written.
    QList<Repair> repairs;
    /// Whether the repaired document was imported. If not, the original was.
    bool isRepaired = false;
    /// Pages of the document; 1 if it could not be repaired.
    int pageCount = 1;
};

/// Repairs an OpenDocument file, imports the result, and sets what the reader cannot carry. A
/// document that cannot be repaired, or whose repaired form is refused, is imported as it is
/// written.
///
/// @param page from 1
[[nodiscard]] RepairedImport importRepaired(const QString& fileName, int page = 1);

} // namespace repair

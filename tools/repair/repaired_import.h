#pragma once

#include "repair/repair.h"

#include "workbench/import/label_import.h"

#include <memory>

namespace repair {

/// One page of a document on a canvas.
struct RepairedImport
{
    workbench::ImportResult result;
    /// Empty if the document was imported as it is written.
    QList<Repair> repairs;
    /// The repaired document that was imported; empty if the original was.
    QByteArray package;
    /// Pages of the document as far as known: text that does not fit on a page adds some. 1 if it
    /// could not be repaired.
    int pageCount = 1;
    /// Has the further pages; null if there are none.
    std::shared_ptr<DocumentRepair> document;

    [[nodiscard]] bool isRepaired() const { return !package.isEmpty(); }
};

/// Repairs an OpenDocument file, imports the result, and sets what the reader cannot carry. A
/// document that cannot be repaired, or whose repaired form is refused, is imported as it is
/// written; an issue of the result mentions that.
[[nodiscard]] RepairedImport importRepaired(const QString& fileName);

/// Imports a further page of a document, once, which cannot be imported without repair.
///
/// @param page from 2
[[nodiscard]] RepairedImport importFurtherPage(DocumentRepair& document, int page);

} // namespace repair

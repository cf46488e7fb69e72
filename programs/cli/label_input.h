#pragma once

#include "console/file_name.h"
#include "importer/reader_choice.h"
#include "repair/repaired_import.h"
#include "workbench/import/label_import.h"

#include <QString>

#include <memory>
#include <optional>

namespace cli {

/// One file to open: decided once, and not looked at again.
class LabelInput
{
public:
    /// Selects the reader by the name, or else by the content.
    /// @param file   what is opened; see console/file_name.h
    /// @param name   of the file, for its suffix
    /// @param reader overrides the selection
    LabelInput(const QString& file, const QString& name, std::optional<ReaderKind> reader);

    /// A path for Qt's file classes; valid as long as this object.
    [[nodiscard]] const QString& path() const { return m_reachable.path(); }
    /// The reader of a legacy label; empty for a saved label.
    [[nodiscard]] std::optional<ReaderKind> reader() const { return m_reader; }

private:
    console::ReachablePath m_reachable;
    std::optional<ReaderKind> m_reader;
};

/// A label that was imported, or opened from the workbench's own format.
struct OpenedLabel : workbench::ImportResult
{
    [[nodiscard]] bool isOpen() const { return isImported(); }
    [[nodiscard]] bool isRepaired() const { return !package.isEmpty(); }

    QList<repair::Repair> repairs = {};
    /// The repaired document that was imported; empty if it was not repaired.
    QByteArray package = {};
    int pageCount = 1; ///< of the document; further pages are labels of their own
    /// Has the further pages; null if there are none.
    std::shared_ptr<repair::DocumentRepair> document = {};
};

/// Opens the label; error says why that failed.
/// @param asWritten without repair
[[nodiscard]] OpenedLabel openLabel(const LabelInput& input, bool asWritten = false);
/// Opens a further page of a document that was repaired, from 2. Each can be opened once.
[[nodiscard]] OpenedLabel openFurtherPage(repair::DocumentRepair& document, int page);

} // namespace cli

#pragma once

#include "console/file_name.h"
#include "importer/reader_choice.h"
#include "workbench/import/label_import.h"

#include <QString>

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
};

/// Opens the label; error says why that failed.
[[nodiscard]] OpenedLabel openLabel(const LabelInput& input);

} // namespace cli

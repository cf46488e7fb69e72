#pragma once

#include "archive/input_list.h"
#include "cli/import_options.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>

namespace cli {

/// The files of a command, or why they cannot be listed.
struct ImportInputs
{
    archive::InputList list;
    /// The copy of standard input; removed with this object.
    std::unique_ptr<QTemporaryFile> standardInput;
    QString error;
};

/// Lists all files that a command imports: reads lists, searches folders, and copies standard
/// input to a temporary file.
[[nodiscard]] ImportInputs findInputs(const ImportOptions& options);

/// The suffixes of the files that are taken from folders, without dots.
[[nodiscard]] QStringList importedSuffixes();

} // namespace cli

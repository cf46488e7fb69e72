#pragma once

#include "cli/import_options.h"
#include "archive/input_list.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>

namespace cli {

/// Most bytes that are read from standard input.
inline constexpr qint64 MaximumInputBytes = 1LL << 30;

/// The files of a command, or why they cannot be told.
struct ImportInputs
{
    archive::InputList list;
    /// Holds what came through standard input, while this lives.
    std::unique_ptr<QTemporaryFile> standardInput;
    QString error;
};

/// Finds all files that a command is to import; reads lists, searches folders, and keeps
/// what comes through standard input in a temporary file.
[[nodiscard]] ImportInputs findInputs(const ImportOptions& options);

/// The suffixes of the files that are taken from folders.
[[nodiscard]] QStringList importedSuffixes();

} // namespace cli

#pragma once

#include "archive/input_list.h"
#include "archive/output_names.h"
#include "archive/shard.h"
#include "cli/import_options.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>
#include <optional>

namespace cli {

/// What a prepared list states besides its files.
struct PreparedPart
{
    archive::Shard shard;
    QList<archive::OutputName> names;
};

/// The files of a command, or why they cannot be listed.
struct ImportInputs
{
    archive::InputList list;
    std::optional<PreparedPart> part;
    /// The copy of standard input; removed with this object.
    std::unique_ptr<QTemporaryFile> standardInput;
    QString error;
};

/// Lists all files that a command imports: reads lists, searches folders, and copies standard
/// input to a temporary file.
[[nodiscard]] ImportInputs findInputs(const ImportOptions& options);

/// Reports the folders that could not be searched.
void printUnreadableFolders(const archive::InputList& list);

/// The suffixes of the files that are taken from folders, without dots.
[[nodiscard]] QStringList importedSuffixes();

} // namespace cli

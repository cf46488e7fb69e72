#pragma once

#include "archive/file_stamp.h"

#include <QList>
#include <QString>

namespace cli {

/// Whether an existing file is a picture, drawing or document that this program wrote, or an
/// imported label that was saved by this program and has not been edited since.
[[nodiscard]] bool isOurOutput(const QString& fileName);

/// Whether a file may be written under this name: none exists, it is our output, or it is an
/// unchanged output of an earlier command. Never if a folder has this name.
[[nodiscard]] bool mayOverwrite(const QString& fileName, const QList<archive::FileStamp>& known);

/// Why a report cannot be written to a file, for a person; empty if it can. A file that is not a
/// report of ours is not overwritten.
/// @param mayOverwrite overwrites it even so
[[nodiscard]] QString reportProblem(const QString& fileName, bool mayOverwrite);

/// Why a name is not that of a report, for a person; empty for *.json and *.html.
[[nodiscard]] QString reportNameProblem(const QString& fileName);

} // namespace cli

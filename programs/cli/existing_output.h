#pragma once

#include <QString>

namespace cli {

/// Whether an existing file is a picture, drawing or document that this program wrote, or an
/// imported label that was saved by this program and has not been edited since.
[[nodiscard]] bool isOurOutput(const QString& fileName);

/// Why a report cannot be written to a file, for a person; empty if it can. A file that is not a
/// report of ours is not overwritten.
/// @param mayOverwrite overwrites it even so
[[nodiscard]] QString reportProblem(const QString& fileName, bool mayOverwrite);

/// Why a name is not that of a report, for a person; empty for *.json and *.html.
[[nodiscard]] QString reportNameProblem(const QString& fileName);

} // namespace cli

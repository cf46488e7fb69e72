#pragma once

#include <QString>

namespace cli {

/// Whether an existing file is a picture, drawing or document that this program wrote, or an
/// imported label that was saved by this program and has not been edited since.
[[nodiscard]] bool isOurOutput(const QString& fileName);

/// User-visible reason why a report cannot replace a file; empty if it can. A file that is not a
/// report of ours is not overwritten.
/// @param mayOverwrite overwrites it even so
[[nodiscard]] QString reportProblem(const QString& fileName, bool mayOverwrite);

/// User-visible reason why a name is not that of a report; empty for *.json and *.html.
[[nodiscard]] QString reportNameProblem(const QString& fileName);

} // namespace cli

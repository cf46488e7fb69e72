#pragma once

#include "archive/progress.h"
#include "archive/run.h"

#include <QByteArray>

namespace cli {

/// The version of the events and the exit statuses; docs/scripting.md describes them. It increases
/// when a key is removed or changes its meaning; further keys may be added without.
inline constexpr int EventVersion = 1;

/// The line of JSON that --json prints for a file.
[[nodiscard]] QByteArray fileEvent(const archive::Delivery& delivery);

/// The last line of JSON: the counts, and the exit status of the command.
/// @param ignoredFiles files of folders without the suffix of a label
[[nodiscard]] QByteArray endEvent(const archive::Progress& progress, qint64 ignoredFiles,
                                  int status);

} // namespace cli

#pragma once

#include <QStringList>

namespace cli {

/// Runs `labelport import` with the arguments that follow these words and returns the
/// program's exit status.
[[nodiscard]] int runImport(const QStringList& arguments);

} // namespace cli

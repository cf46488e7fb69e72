#pragma once

#include <QStringList>

namespace cli {

/// Runs `labelport report merge`: makes one report of those of several commands.
[[nodiscard]] int runReport(const QStringList& arguments);

} // namespace cli

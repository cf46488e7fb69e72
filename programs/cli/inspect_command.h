#pragma once

#include <QStringList>

namespace cli {

/// Runs `labelport inspect`: tells what one label holds and what of it came over.
[[nodiscard]] int runInspect(const QStringList& arguments);

} // namespace cli

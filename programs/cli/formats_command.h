#pragma once

#include <QStringList>

namespace cli {

/// Runs `labelport formats`: tells what is read and what is written.
[[nodiscard]] int runFormats(const QStringList& arguments);

} // namespace cli

#pragma once

#include <QStringList>

namespace sandbox {

/// The system files that our programs read after they have started: libraries and plug-ins that
/// are loaded later, fonts with their settings and caches, time zones, the program itself.
///
/// Reads the settings of the fonts, and updates their caches, because a confined process cannot.
[[nodiscard]] QStringList systemFiles();

} // namespace sandbox

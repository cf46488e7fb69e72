#pragma once

#include <QStringList>

namespace sandbox {

/// What a program of ours reads of the system after it has started: libraries and plug-ins that
/// are loaded later, fonts with their settings and caches, time zones, itself.
///
/// Reads the settings of the fonts, and brings their caches up to date: a confined process cannot.
[[nodiscard]] QStringList systemFiles();

} // namespace sandbox

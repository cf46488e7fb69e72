#pragma once

#include <QStringList>

namespace sandbox {

/// From this version on the rules cover TCP.
inline constexpr int FirstVersionWithNetwork = 4;

/// The version of Landlock that the kernel offers; 0 without it.
[[nodiscard]] int fileRulesVersion();

/// Restricts this process to these files, irrevocably. Missing files are ignored.
///
/// @param readable files, and folders with all that is in them
/// @param writable folders
/// @return the active version of Landlock; 0 if the process is not restricted
[[nodiscard]] int applyFileRules(const QStringList& readable, const QStringList& writable);

} // namespace sandbox

#pragma once

#include <QStringList>

namespace sandbox {

/// From this version on the rules cover TCP.
inline constexpr int FirstVersionWithNetwork = 4;

/// The version of Landlock that the kernel offers; 0 without it.
[[nodiscard]] int fileRulesVersion();

/// Restricts this process to these files, irrevocably. Missing files are left out.
///
/// @param readable files, and folders with all that is in them
/// @param writable folders
/// @return the version that is in force; 0 if nothing has changed
[[nodiscard]] int applyFileRules(const QStringList& readable, const QStringList& writable);

} // namespace sandbox

#pragma once

#include <QString>

namespace workbench {

/// Why a file cannot be read at all, in words for a person; empty when it can.
[[nodiscard]] QString whyFileCannotBeRead(const QString& fileName);

} // namespace workbench

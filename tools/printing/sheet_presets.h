#pragma once

#include "printing/sheet.h"

#include <optional>

namespace printing {

/// The common sheets of sheets.json, in its order.
[[nodiscard]] const QList<Sheet>& sheetPresets();

/// The preset of a name, or plain paper, without regard to case; empty for an unknown name.
///
/// @param label size of the labels, which decides how many plain paper takes
[[nodiscard]] std::optional<Sheet> sheetOfName(const QString& name, const QSizeF& label);

/// Papers and presets, by their first names.
[[nodiscard]] QStringList sheetNames();

} // namespace printing

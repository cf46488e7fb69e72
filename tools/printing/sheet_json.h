#pragma once

#include "printing/sheet.h"

#include <QJsonObject>

#include <optional>

namespace printing {

/// A sheet as in sheets.json, and with "size", the size of the paper, if it has no name.
[[nodiscard]] QJsonObject toJson(const Sheet& sheet);
/// Empty if the object is not a usable sheet.
[[nodiscard]] std::optional<Sheet> sheetFromJson(const QJsonObject& object);

} // namespace printing

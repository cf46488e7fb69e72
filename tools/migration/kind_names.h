#pragma once

#include "host/kest_types.h"

#include <QString>

namespace migration {

/// The name of a kind of item in reports: "rounded-rectangle".
[[nodiscard]] QString kindName(KestTypes::ShapeType type);
/// The same for a person: "rounded rectangle", in the language of the program. A name that
/// is not known is given back.
[[nodiscard]] QString kindWords(const QString& name);

} // namespace migration

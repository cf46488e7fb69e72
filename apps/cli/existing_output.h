#pragma once

#include <QString>

namespace cli {

/// The text under the key "Software" that pictures made by this program carry.
inline constexpr const char* SoftwareMark = "LabelPort";

/// Whether a file may be written under this name: there is none, or it is a picture that this
/// program made earlier. Anything else belongs to somebody and is not overwritten unasked.
[[nodiscard]] bool mayOverwrite(const QString& fileName);

} // namespace cli

#pragma once

#include <QString>

namespace cli {

/// The name that pictures, drawings and documents made by this program carry.
inline constexpr const char* SoftwareMark = "LabelPort";

/// Whether a file may be written under this name: there is none, or it is a picture, drawing
/// or document that this program made earlier. Anything else belongs to somebody and is not
/// overwritten unasked; so does a saved label, which may have been edited since.
[[nodiscard]] bool mayOverwrite(const QString& fileName);

} // namespace cli

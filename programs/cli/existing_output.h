#pragma once

#include "archive/file_stamp.h"

#include <QList>
#include <QString>

namespace cli {

/// The name that pictures, drawings and documents made by this program carry.
inline constexpr const char* SoftwareMark = "LabelPort";

/// Whether the file of this name is a picture, drawing or document that this program made
/// earlier. A saved label is not known so: it may have been edited since.
[[nodiscard]] bool isOurOutput(const QString& fileName);

/// Whether a file may be written under this name: there is none, it is our output, or it
/// is what an earlier command left there, unchanged. Anything else belongs to somebody and is
/// not overwritten unasked.
[[nodiscard]] bool mayOverwrite(const QString& fileName, const QList<archive::FileStamp>& known);

} // namespace cli

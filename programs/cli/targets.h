#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

/// A format to write.
enum class Target {
    Label, ///< the workbench's own format, for editing
    Png,   ///< a picture
    Svg,   ///< a vector drawing
    Pdf,   ///< a document with one page for each record
};

/// The short name of a target, which is also the suffix of its files.
[[nodiscard]] QString nameOf(Target target);
[[nodiscard]] std::optional<Target> targetOfName(const QString& name);
/// All short names, in the order in which help lists them.
[[nodiscard]] QStringList targetNames();

} // namespace cli

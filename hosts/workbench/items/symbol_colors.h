#pragma once

#include <QByteArray>
#include <QColor>

namespace workbench {

/// The SVG document with this color as the default fill of its parts
/// and as currentColor. A fill or color attribute of the root has precedence.
[[nodiscard]] QByteArray withForeground(const QByteArray& svg, const QColor& color);

} // namespace workbench

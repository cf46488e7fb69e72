#pragma once

#include <QByteArray>
#include <QColor>

namespace workbench {

/// The SVG document with the colour as the one that its parts take where they state none,
/// and as the current colour. A root that states a fill or a colour keeps it.
[[nodiscard]] QByteArray withForeground(const QByteArray& svg, const QColor& color);

} // namespace workbench

#pragma once

#include <QIcon>
#include <QtGlobal>

class QPalette;

namespace window {

/// The program's own icons.
enum class IconName : quint8 {
    None,
    Open,
    Save,
    Export,
    Print,
    Undo,
    Redo,
    ZoomIn,
    ZoomOut,
    Fit,
    First,
    Previous,
    Next,
    Last,
};

/// The icon, drawn in the text color of the palette; a null icon for None.
[[nodiscard]] QIcon icon(IconName name, const QPalette& palette);

/// The application icon: a label with bars.
[[nodiscard]] QIcon applicationIcon();

} // namespace window

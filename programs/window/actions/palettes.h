#pragma once

#include <QPalette>
#include <QtGlobal>

namespace window {

/// The colors of the program's windows.
enum class ColorScheme : quint8 { System, Light, Dark };

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

/// Colors the whole application. System takes whatever the desktop has.
void applyColorScheme(ColorScheme scheme);

/// The user's choice from the settings; System when there is none.
[[nodiscard]] ColorScheme storedColorScheme();
void storeColorScheme(ColorScheme scheme);

} // namespace window

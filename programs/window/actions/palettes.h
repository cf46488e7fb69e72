#pragma once

#include <QPalette>
#include <QtGlobal>

namespace window {

/// The colors of the program's windows.
enum class ColorScheme : quint8 { System, Light, Dark };

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

/// Applies the theme to the whole application. System uses the desktop's palette.
void applyColorScheme(ColorScheme scheme);

/// The user's choice in the settings; System if there is none.
[[nodiscard]] ColorScheme storedColorScheme();
void storeColorScheme(ColorScheme scheme);

} // namespace window

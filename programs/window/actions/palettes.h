#pragma once

#include <QPalette>
#include <QProxyStyle>
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

/// The style of the program. In dark colors, it also draws the frames of check boxes and radio
/// buttons, which would be darker than their background.
class ProgramStyle final : public QProxyStyle
{
public:
    ProgramStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace window

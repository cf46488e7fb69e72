#include "window/actions/palettes.h"

#include <QApplication>
#include <QPainter>
#include <QSettings>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct PaletteColors
{
    QRgb window;
    QRgb text;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb tip;
    QRgb highlight;
    QRgb highlightedText;
    QRgb link;
    QRgb faint; // disabled texts and placeholders
};

// Texts have a contrast of at least 7:1, faint texts of at least 4.5:1 unless
// disabled.
constexpr PaletteColors LightColors{0xfff3f3f4, 0xff1b1c1e, 0xffffffff, 0xfff6f7f9, 0xffececee,
                                    0xfffffbe6, 0xff1a63c6, 0xffffffff, 0xff0b57d0, 0xff6b6f76};
constexpr PaletteColors DarkColors{0xff2a2c30, 0xffe8eaed, 0xff1e2023, 0xff24262a, 0xff36393f,
                                   0xff3a3d43, 0xff3f7fdc, 0xffffffff, 0xff8ab4f8, 0xffa0a4ab};

QPalette made(const PaletteColors& colors)
{
    QPalette palette(QColor::fromRgb(colors.button), QColor::fromRgb(colors.window));
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::ToolTipBase, colors.tip);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, colors.highlightedText);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::PlaceholderText, colors.faint);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colors.faint);
    }
    return palette;
}

QString settingsKey()
{
    return u"window/colors"_s;
}

constexpr const char* SchemeNames[] = {"system", "light", "dark"};

} // namespace

QPalette lightPalette()
{
    return made(LightColors);
}

QPalette darkPalette()
{
    return made(DarkColors);
}

void applyColorScheme(ColorScheme scheme)
{
    switch (scheme) {
    case ColorScheme::Light:
        QApplication::setPalette(lightPalette());
        break;
    case ColorScheme::Dark:
        QApplication::setPalette(darkPalette());
        break;
    case ColorScheme::System:
        // An empty palette restores the desktop's.
        QApplication::setPalette(QPalette());
        break;
    }
}

ColorScheme storedColorScheme()
{
    const QString stored = QSettings().value(settingsKey()).toString();
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        if (stored == QLatin1String(SchemeNames[static_cast<int>(scheme)])) {
            return scheme;
        }
    }
    return ColorScheme::System;
}

void storeColorScheme(ColorScheme scheme)
{
    QSettings().setValue(settingsKey(), QString::fromLatin1(SchemeNames[static_cast<int>(scheme)]));
}

ProgramStyle::ProgramStyle()
    : QProxyStyle(u"Fusion"_s)
{}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QPalette& palette = option->palette;
    const bool isDark = palette.base().color().lightness() < palette.text().color().lightness();
    const bool isBox = element == PE_IndicatorCheckBox;
    if (isDark && (isBox || element == PE_IndicatorRadioButton)) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(palette.color(QPalette::PlaceholderText));
        painter->setBrush(Qt::NoBrush);
        const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (isBox) {
            painter->drawRect(frame);
        } else {
            painter->drawEllipse(frame);
        }
        painter->restore();
    }
}

} // namespace window

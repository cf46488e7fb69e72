#include "trace/repeatable_environment.h"

#include <QApplication>
#include <QFont>
#include <QHashSeed>

using namespace Qt::StringLiterals;

void prepareRepeatableEnvironment()
{
    // Never the user's platform: a trace shows nothing, so it needs no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* name :
         {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_FONT_DPI", "QT_SCALE_FACTOR",
          "QT_SCREEN_SCALE_FACTORS", "QT_ENABLE_HIGHDPI_SCALING", "QT_USE_PHYSICAL_DPI"}) {
        qunsetenv(name);
    }
    QHashSeed::setDeterministicGlobalSeed();
    QApplication::setDesktopSettingsAware(false);
}

void fixFont()
{
    constexpr int pointSize = 9; // 12 pixels at 96 dots per inch
    QApplication::setFont(QFont(u"Liberation Sans"_s, pointSize));
}

// What the main window remembers: its geometry, its unit, its colors.

#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/rulers/ruled_canvas.h"
#include "workbench/canvas/canvas.h"

#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString geometryKey()
{
    return u"window/geometry"_s;
}

QString stateKey()
{
    return u"window/state"_s;
}

QString unitKey()
{
    return u"window/unit"_s;
}

QString rulersKey()
{
    return u"window/rulers"_s;
}

} // namespace

void MainWindow::setUnit(LengthUnit unit)
{
    m_unit = unit;
    action(unit == LengthUnit::Inch ? ActionId::Inches : ActionId::Millimeters).setChecked(true);
    m_canvas->setUnit(unit);
    m_panels->items().setUnit(unit);
    m_status->setPointer(std::nullopt, unit);
    if (m_session->label() != nullptr) {
        m_status->setPage(m_session->label()->canvas->page().size, unit);
    }
    refreshSelection();
}

void MainWindow::setColors(ColorScheme scheme)
{
    applyColorScheme(scheme);
    storeColorScheme(scheme);
}

void MainWindow::restoreSettings()
{
    const QSettings settings;
    restoreGeometry(settings.value(geometryKey()).toByteArray());
    restoreState(settings.value(stateKey()).toByteArray());
    action(ActionId::Rulers).setChecked(settings.value(rulersKey(), true).toBool());
    m_canvas->setRulersVisible(action(ActionId::Rulers).isChecked());
    const bool isInch = settings.value(unitKey()).toString() == QLatin1String("in");
    setUnit(isInch ? LengthUnit::Inch : LengthUnit::Millimeter);
    switch (storedColorScheme()) {
    case ColorScheme::System:
        action(ActionId::SystemColors).setChecked(true);
        break;
    case ColorScheme::Light:
        action(ActionId::LightColors).setChecked(true);
        break;
    case ColorScheme::Dark:
        action(ActionId::DarkColors).setChecked(true);
        break;
    }
}

void MainWindow::storeSettings() const
{
    QSettings settings;
    settings.setValue(geometryKey(), saveGeometry());
    settings.setValue(stateKey(), saveState());
    settings.setValue(rulersKey(), m_actions->at(ActionId::Rulers).isChecked());
    settings.setValue(unitKey(), unitSymbol(m_unit));
}

} // namespace window

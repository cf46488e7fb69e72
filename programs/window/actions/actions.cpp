#include "window/actions/actions.h"

#include "window/actions/action_table.h"

#include <QCoreApplication>
#include <QKeySequence>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct MenuRow
{
    MenuId id;
    const char* title;
};

constexpr MenuRow Menus[] = {
    {MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&File")},
    {MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Edit")},
    {MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "&Arrange")},
    {MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "&View")},
    {MenuId::Colors, QT_TRANSLATE_NOOP("window::Actions", "&Colors")},
    {MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Panels")},
    {MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&Record")},
    {MenuId::Help, QT_TRANSLATE_NOOP("window::Actions", "&Help")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("window::Actions", text);
}

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&')).remove(QChar(0x2026));
}

QAction* makeAction(const ActionRow& row, QObject* parent)
{
    auto* action = new QAction(translated(row.text), parent);
    action->setShortcuts(
        QKeySequence::listFromString(QString::fromLatin1(row.keys), QKeySequence::PortableText));
    const QString hint = translated(row.hint);
    action->setStatusTip(hint);
    action->setToolTip(hint + u" ("_s + action->shortcut().toString(QKeySequence::NativeText) +
                       QLatin1Char(')'));
    action->setCheckable(row.kind == Choice);
    return action;
}

QString keysOf(const QAction& action)
{
    return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText)
        .replace(u"; "_s, u", "_s);
}

} // namespace

Actions::Actions(QObject* parent)
    : QObject(parent)
{
    for (const ActionRow& row : actionRows()) {
        m_actions[row.id] = makeAction(row, this);
    }
    group({ActionId::Millimeters, ActionId::Inches});
    group({ActionId::SystemColors, ActionId::LightColors, ActionId::DarkColors});
    at(ActionId::Quit).setMenuRole(QAction::QuitRole);
    at(ActionId::About).setMenuRole(QAction::AboutRole);
}

void Actions::group(std::initializer_list<ActionId> ids)
{
    auto* choices = new QActionGroup(this);
    for (const ActionId id : ids) {
        choices->addAction(&at(id));
    }
}

QList<QAction*> Actions::ofMenu(MenuId menu) const
{
    QList<QAction*> actions;
    for (const ActionRow& row : actionRows()) {
        if (row.menu == menu) {
            actions.append(&at(row.id));
        }
    }
    return actions;
}

void Actions::drawIcons(const QPalette& palette)
{
    for (const ActionRow& row : actionRows()) {
        if (row.icon != IconName::None) {
            at(row.id).setIcon(icon(row.icon, palette));
        }
    }
}

void Actions::setLabelOpen(bool open)
{
    for (const ActionRow& row : actionRows()) {
        at(row.id).setEnabled(row.need == Always || open);
    }
}

QList<ShortcutRow> Actions::shortcuts() const
{
    QList<ShortcutRow> rows;
    for (const ActionRow& row : actionRows()) {
        rows.append({withoutMnemonic(menuTitle(row.menu)), withoutMnemonic(translated(row.text)),
                     keysOf(at(row.id))});
    }
    return rows;
}

QString menuTitle(MenuId menu)
{
    for (const MenuRow& row : Menus) {
        if (row.id == menu) {
            return translated(row.title);
        }
    }
    return {};
}

} // namespace window

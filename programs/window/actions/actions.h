#pragma once

#include "window/actions/icons.h"

#include <QAction>
#include <QActionGroup>
#include <QList>
#include <QObject>

#include <map>

namespace window {

/// Everything that a window can be told to do.
enum class ActionId : quint8 {
    Open,
    Import,
    Save,
    SaveAs,
    Export,
    Print,
    Close,
    Quit,
    Undo,
    Redo,
    SelectAll,
    SelectNone,
    ZoomIn,
    ZoomOut,
    ZoomFit,
    ZoomTrue,
    ZoomSelection,
    Rulers,
    Millimeters,
    Inches,
    SystemColors,
    LightColors,
    DarkColors,
    GoCanvas,
    GoItems,
    GoProperties,
    GoSources,
    GoIssues,
    FirstRecord,
    PreviousRecord,
    NextRecord,
    LastRecord,
    GoRecord,
    Shortcuts,
    About,
};

/// Under which menu an action stands.
enum class MenuId : quint8 { File, Edit, View, Colors, Panels, Record, Help };

/// One row of the help on shortcuts.
struct ShortcutRow
{
    QString menu;
    QString action;
    QString keys;
};

/// The actions of a window, made from one table: text, shortcut, icon, hint.
class Actions final : public QObject
{
    Q_OBJECT

public:
    explicit Actions(QObject* parent = nullptr);

    [[nodiscard]] QAction& at(ActionId id) const { return *m_actions.at(id); }
    [[nodiscard]] QList<QAction*> ofMenu(MenuId menu) const;
    /// Draws the icons anew in the colors of this palette.
    void drawIcons(const QPalette& palette);
    /// Enables what needs a label, and nothing else.
    void setLabelOpen(bool open);
    [[nodiscard]] QList<ShortcutRow> shortcuts() const;

private:
    void group(std::initializer_list<ActionId> ids);

    std::map<ActionId, QAction*> m_actions;
};

/// The name of a menu, with its mnemonic.
[[nodiscard]] QString menuTitle(MenuId menu);

} // namespace window

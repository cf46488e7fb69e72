#pragma once

#include "window/actions/icons.h"

#include <QAction>
#include <QActionGroup>
#include <QList>
#include <QObject>

#include <map>

namespace window {

/// All commands of a window.
enum class ActionId : quint8 {
    Open,
    OpenAsWritten,
    OpenFolder,
    PreviousLabel,
    NextLabel,
    Save,
    SaveAs,
    Export,
    Print,
    Close,
    Quit,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Duplicate,
    Delete,
    EditText,
    SelectAll,
    SelectNone,
    ToFront,
    Raise,
    Lower,
    ToBack,
    AlignLeft,
    AlignCenter,
    AlignRight,
    AlignTop,
    AlignMiddle,
    AlignBottom,
    DistributeHorizontally,
    DistributeVertically,
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
    GoLabels,
    GoOriginal,
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
    ConnectCsv,
    EditSource,
    ShowSource,
    NewCounter,
    NewDate,
    NewList,
    Manual,
    Shortcuts,
    About,
};

/// The menu of an action.
enum class MenuId : quint8 { File, Edit, Arrange, View, Colors, Panels, Record, Help };

/// One row of the list of shortcuts.
struct ShortcutRow
{
    QString menu;
    QString action;
    QString keys;
};

/// The actions of a window, created from one table: text, shortcut, icon, tooltip.
class Actions final : public QObject
{
    Q_OBJECT

public:
    explicit Actions(QObject* parent = nullptr);

    [[nodiscard]] QAction& at(ActionId id) const { return *m_actions.at(id); }
    [[nodiscard]] QList<QAction*> ofMenu(MenuId menu) const;
    /// Redraws the icons in the colors of this palette.
    void drawIcons(const QPalette& palette);
    /// Enables or disables the actions that need a label.
    void setLabelOpen(bool open);
    [[nodiscard]] QList<ShortcutRow> shortcuts() const;

private:
    void group(std::initializer_list<ActionId> ids);

    std::map<ActionId, QAction*> m_actions;
};

/// The name of a menu, with its mnemonic.
[[nodiscard]] QString menuTitle(MenuId menu);

} // namespace window

#include "window/actions/actions.h"

#include <QCoreApplication>
#include <QKeySequence>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

enum Need : quint8 { Always, Label };
enum Kind : quint8 { Command, Choice };

struct ActionRow
{
    ActionId id;
    MenuId menu;
    const char* text;
    const char* keys; // several are separated by "; "
    IconName icon;
    Need need;
    Kind kind;
    const char* hint;
};

// In the order of the menus. Every action has its own key.
constexpr ActionRow ActionRows[] = {
    {ActionId::Open, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Open…"), "Ctrl+O",
     IconName::Open, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Opens a saved label, or imports a legacy one")},
    {ActionId::OpenAsWritten, MenuId::File,
     QT_TRANSLATE_NOOP("window::Actions", "Open as &Written"), "Ctrl+Shift+O", IconName::None,
     Label, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the imported document without repairs")},
    {ActionId::OpenFolder, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "Open &Folder…"),
     "Ctrl+Alt+O", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Lists the labels of a folder with their states")},
    {ActionId::PreviousLabel, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "Pre&vious Label"),
     "Alt+PgUp", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Opens the previous label of the folder")},
    {ActionId::NextLabel, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Next Label"),
     "Alt+PgDown", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Opens the next label of the folder")},
    {ActionId::Save, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Save"), "Ctrl+S",
     IconName::Save, Label, Command, QT_TRANSLATE_NOOP("window::Actions", "Saves the label")},
    {ActionId::SaveAs, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "Save &As…"),
     "Ctrl+Shift+S", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Saves the label under another name")},
    {ActionId::Export, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Export…"), "Ctrl+E",
     IconName::Export, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Writes the label as a picture, a drawing or a document")},
    {ActionId::Print, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Print…"), "Ctrl+P",
     IconName::Print, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Prints the label, or a series of its records")},
    {ActionId::Close, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Close Label"), "Ctrl+W",
     IconName::None, Label, Command, QT_TRANSLATE_NOOP("window::Actions", "Closes the label")},
    {ActionId::Quit, MenuId::File, QT_TRANSLATE_NOOP("window::Actions", "&Quit"), "Ctrl+Q",
     IconName::None, Always, Command, QT_TRANSLATE_NOOP("window::Actions", "Ends the program")},
    {ActionId::Undo, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Undo"), "Ctrl+Z",
     IconName::Undo, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Takes the last change back")},
    {ActionId::Redo, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Redo"),
     "Ctrl+Shift+Z; Ctrl+Y", IconName::Redo, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Makes the change again")},
    {ActionId::Cut, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "Cu&t"), "Ctrl+X",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Copies the selected items and deletes them")},
    {ActionId::Copy, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Copy"), "Ctrl+C",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Copies the selected items to the clipboard")},
    {ActionId::Paste, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Paste"), "Ctrl+V",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Adds the items of the clipboard to the label")},
    {ActionId::Duplicate, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "&Duplicate"),
     "Ctrl+D", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Adds a copy of each selected item")},
    {ActionId::Delete, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "D&elete"), "Del",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Deletes the selected items")},
    {ActionId::EditText, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "Edit Te&xt"),
     "Ctrl+Return", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Edits the text of the selected item on the canvas")},
    {ActionId::SelectAll, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "Select &All"),
     "Ctrl+A", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Selects all items")},
    {ActionId::SelectNone, MenuId::Edit, QT_TRANSLATE_NOOP("window::Actions", "Select &Nothing"),
     "Ctrl+Shift+A", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Selects no item")},
    {ActionId::ToFront, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "To Fr&ont"),
     "Ctrl+Shift+PgUp", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the selected items above all others")},
    {ActionId::Raise, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "&Raise"), "Ctrl+PgUp",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the selected items above the next item")},
    {ActionId::Lower, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "&Lower"),
     "Ctrl+PgDown", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the selected items below the next item")},
    {ActionId::ToBack, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "To Bac&k"),
     "Ctrl+Shift+PgDown", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the selected items below all others")},
    {ActionId::AlignLeft, MenuId::Arrange,
     QT_TRANSLATE_NOOP("window::Actions", "Align Le&ft Edges"), "Ctrl+Shift+Left", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP(
         "window::Actions",
         "Aligns the left edges of the selected items; a single item is aligned to the page")},
    {ActionId::AlignCenter, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "Align &Centers"),
     "Ctrl+Alt+H", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Aligns the centers of the selected items on a vertical line")},
    {ActionId::AlignRight, MenuId::Arrange,
     QT_TRANSLATE_NOOP("window::Actions", "Align Ri&ght Edges"), "Ctrl+Shift+Right", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Aligns the right edges of the selected items")},
    {ActionId::AlignTop, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "Align &Top Edges"),
     "Ctrl+Shift+Up", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Aligns the top edges of the selected items")},
    {ActionId::AlignMiddle, MenuId::Arrange, QT_TRANSLATE_NOOP("window::Actions", "Align &Middles"),
     "Ctrl+Alt+V", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Aligns the centers of the selected items on a horizontal line")},
    {ActionId::AlignBottom, MenuId::Arrange,
     QT_TRANSLATE_NOOP("window::Actions", "Align &Bottom Edges"), "Ctrl+Shift+Down", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Aligns the bottom edges of the selected items")},
    {ActionId::DistributeHorizontally, MenuId::Arrange,
     QT_TRANSLATE_NOOP("window::Actions", "Distribute &Horizontally"), "Ctrl+Alt+Shift+H",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Makes the horizontal gaps between the selected items equal")},
    {ActionId::DistributeVertically, MenuId::Arrange,
     QT_TRANSLATE_NOOP("window::Actions", "Distribute &Vertically"), "Ctrl+Alt+Shift+V",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Makes the vertical gaps between the selected items equal")},
    {ActionId::ZoomIn, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "Zoom &In"),
     "Ctrl++; Ctrl+=", IconName::ZoomIn, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the label larger")},
    {ActionId::ZoomOut, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "Zoom &Out"), "Ctrl+-",
     IconName::ZoomOut, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the label smaller")},
    {ActionId::ZoomFit, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "&Whole Label"),
     "Ctrl+0", IconName::Fit, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Shows the whole label, and keeps it whole when the window changes")},
    {ActionId::ZoomTrue, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "&True Size"), "Ctrl+1",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the label in the size in which it is printed")},
    {ActionId::ZoomSelection, MenuId::View,
     QT_TRANSLATE_NOOP("window::Actions", "Zoom to &Selection"), "Ctrl+2", IconName::None, Label,
     Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the selected items as large as they fit")},
    {ActionId::Rulers, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "&Rulers"), "Ctrl+R",
     IconName::None, Always, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Shows or hides the rulers")},
    {ActionId::Millimeters, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "&Millimeters"),
     "Ctrl+M", IconName::None, Always, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Shows lengths in millimeters")},
    {ActionId::Inches, MenuId::View, QT_TRANSLATE_NOOP("window::Actions", "In&ches"),
     "Ctrl+Shift+M", IconName::None, Always, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Shows lengths in inches")},
    {ActionId::SystemColors, MenuId::Colors,
     QT_TRANSLATE_NOOP("window::Actions", "Like the &System"), "Ctrl+Alt+S", IconName::None, Always,
     Choice, QT_TRANSLATE_NOOP("window::Actions", "Takes the colors of the desktop")},
    {ActionId::LightColors, MenuId::Colors, QT_TRANSLATE_NOOP("window::Actions", "&Light"),
     "Ctrl+Alt+L", IconName::None, Always, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Dark text on light windows")},
    {ActionId::DarkColors, MenuId::Colors, QT_TRANSLATE_NOOP("window::Actions", "&Dark"),
     "Ctrl+Alt+D", IconName::None, Always, Choice,
     QT_TRANSLATE_NOOP("window::Actions", "Light text on dark windows")},
    {ActionId::GoLabels, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Labels"), "F4",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Shows the labels of the folder and moves keyboard focus to them")},
    {ActionId::GoOriginal, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Original"), "F3",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Shows the document's own preview next to the label, with a slider")},
    {ActionId::GoCanvas, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Canvas"), "F5",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the keyboard on the canvas")},
    {ActionId::GoItems, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Items"), "F6",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the list of items and puts the keyboard on it")},
    {ActionId::GoProperties, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Properties"),
     "F7", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Shows the properties of an item and puts the keyboard on them")},
    {ActionId::GoSources, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "&Data Sources"),
     "F8", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the data sources and puts the keyboard on them")},
    {ActionId::GoIssues, MenuId::Panels, QT_TRANSLATE_NOOP("window::Actions", "I&ssues"), "F9",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the issues and puts the keyboard on them")},
    {ActionId::FirstRecord, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&First"),
     "Alt+Home", IconName::First, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the first record")},
    {ActionId::PreviousRecord, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&Previous"),
     "Alt+Left", IconName::Previous, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the record before")},
    {ActionId::NextRecord, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&Next"),
     "Alt+Right", IconName::Next, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the record after")},
    {ActionId::LastRecord, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&Last"), "Alt+End",
     IconName::Last, Label, Command, QT_TRANSLATE_NOOP("window::Actions", "Shows the last record")},
    {ActionId::GoRecord, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "&Go to…"), "Ctrl+G",
     IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Puts the keyboard on the record's number")},
    {ActionId::ConnectCsv, MenuId::Record,
     QT_TRANSLATE_NOOP("window::Actions", "&Connect CSV File…"), "Ctrl+Alt+C", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows columns of a CSV file in items of the label")},
    {ActionId::EditSource, MenuId::Record,
     QT_TRANSLATE_NOOP("window::Actions", "&Edit Data Source…"), "Ctrl+Alt+E", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Changes the counter, date, list or file that is selected in the panel")},
    {ActionId::ShowSource, MenuId::Record,
     QT_TRANSLATE_NOOP("window::Actions", "Show in &Selected Items"), "Ctrl+Alt+B", IconName::None,
     Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Lets the selected texts and barcodes show the data source of the panel")},
    {ActionId::NewCounter, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "New Co&unter…"),
     "Ctrl+Alt+Shift+C", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Adds a counter and shows it in the selected items")},
    {ActionId::NewDate, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "New &Date and Time…"),
     "Ctrl+Alt+Shift+D", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Adds the date and the time of printing and shows them in the selected "
                       "items")},
    {ActionId::NewList, MenuId::Record, QT_TRANSLATE_NOOP("window::Actions", "New List of &Texts…"),
     "Ctrl+Alt+Shift+L", IconName::None, Label, Command,
     QT_TRANSLATE_NOOP("window::Actions",
                       "Adds a text for each record and shows it in the selected items")},
    {ActionId::Manual, MenuId::Help, QT_TRANSLATE_NOOP("window::Actions", "&Manual"), "F1",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows the manual of this window")},
    {ActionId::Shortcuts, MenuId::Help, QT_TRANSLATE_NOOP("window::Actions", "&Keyboard Shortcuts"),
     "Shift+F1", IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows all keys")},
    {ActionId::About, MenuId::Help, QT_TRANSLATE_NOOP("window::Actions", "&About"), "Ctrl+F1",
     IconName::None, Always, Command,
     QT_TRANSLATE_NOOP("window::Actions", "Shows what program this is")},
};

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
    for (const ActionRow& row : ActionRows) {
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
    for (const ActionRow& row : ActionRows) {
        if (row.menu == menu) {
            actions.append(&at(row.id));
        }
    }
    return actions;
}

void Actions::drawIcons(const QPalette& palette)
{
    for (const ActionRow& row : ActionRows) {
        if (row.icon != IconName::None) {
            at(row.id).setIcon(icon(row.icon, palette));
        }
    }
}

void Actions::setLabelOpen(bool open)
{
    for (const ActionRow& row : ActionRows) {
        at(row.id).setEnabled(row.need == Always || open);
    }
}

QList<ShortcutRow> Actions::shortcuts() const
{
    QList<ShortcutRow> rows;
    for (const ActionRow& row : ActionRows) {
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

// Every control has a name for screen readers.

#include "window_fixture.h"

#include "host/services/tal_message_box.h"
#include "window/help/shortcuts_dialog.h"
#include "window/main_window.h"
#include "window/output/export_dialog.h"

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

// Controls that a user operates, or must distinguish from similar ones.
bool needsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::ToolBar:
    case QAccessible::Dialog:
    case QAccessible::Window:
    case QAccessible::Canvas:
        return true;
    default:
        return false;
    }
}

// Parts that Qt creates inside its widgets: users reach them through their parent.
bool isInsideOfAWidget(const QObject* object)
{
    static const QSet<QString> inner{u"qt_spinbox_lineedit"_s, u"qt_toolbar_ext_button"_s,
                                     u"qt_scrollarea_viewport"_s, u"qt_menubar_ext_button"_s};
    return object != nullptr && inner.contains(object->objectName());
}

QString describe(QAccessibleInterface* control)
{
    const QObject* object = control->object();
    return u"role %1, %2 \"%3\""_s.arg(control->role())
        .arg(object != nullptr ? QLatin1String(object->metaObject()->className())
                               : QLatin1String("no object"))
        .arg(object != nullptr ? object->objectName() : QString());
}

struct Walk
{
    int named = 0;
    QStringList nameless;
};

void walk(QAccessibleInterface* control, Walk& result)
{
    if (control == nullptr || !control->isValid() || isInsideOfAWidget(control->object())) {
        return;
    }
    if (needsName(control->role()) && !control->state().invisible) {
        if (control->text(QAccessible::Name).trimmed().isEmpty()) {
            result.nameless.append(describe(control));
        } else {
            ++result.named;
        }
    }
    // The cells of a table are its content, not controls.
    if (control->tableInterface() != nullptr) {
        return;
    }
    for (int child = 0; child < control->childCount(); ++child) {
        walk(control->child(child), result);
    }
}

Walk walked(QWidget& window)
{
    window.show();
    QApplication::processEvents();
    Walk result;
    walk(QAccessible::queryAccessibleInterface(&window), result);
    return result;
}

class AccessibilityTest : public WindowFixture
{};

} // namespace

TEST_F(AccessibilityTest, EveryControlOfTheEmptyWindowHasAName)
{
    MainWindow window;
    const Walk result = walked(window);
    EXPECT_EQ(result.nameless, QStringList());
    EXPECT_GT(result.named, 30);
}

TEST_F(AccessibilityTest, EveryControlOfTheWindowWithALabelHasAName)
{
    MainWindow window;
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(window.openFile(path(u"a.label"_s)));
    const Walk result = walked(window);
    EXPECT_EQ(result.nameless, QStringList());
    EXPECT_GT(result.named, 35);
}

TEST_F(AccessibilityTest, EveryControlOfTheDialogsHasAName)
{
    ExportDialog exporting(u"/x/label"_s, 20, 3, nullptr);
    const Walk exportWalk = walked(exporting);
    EXPECT_EQ(exportWalk.nameless, QStringList());
    EXPECT_GT(exportWalk.named, 9);

    const Actions actions;
    ShortcutsDialog shortcuts(actions.shortcuts(), nullptr);
    EXPECT_EQ(walked(shortcuts).nameless, QStringList());

    TalMessageBox message(u"Import"_s, u"A line\n"_s, QMessageBox::Ok, QMessageBox::Ok, {}, {});
    EXPECT_EQ(walked(message).nameless, QStringList());
}

TEST_F(AccessibilityTest, TheWalkFindsAControlWithoutAName)
{
    QWidget window;
    window.setWindowTitle(u"Window"_s);
    QPushButton button(&window);
    EXPECT_EQ(walked(window).nameless.size(), 1);
}

TEST_F(AccessibilityTest, TabGoesThroughTheWindowAndComesBack)
{
    MainWindow window;
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(window.openFile(path(u"a.label"_s)));
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    QSet<const QWidget*> reached;
    const QWidget* widget = &window;
    for (int step = 0; step < 500; ++step) {
        widget = widget->nextInFocusChain();
        if (widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            reached.insert(widget);
        }
    }
    // The canvas, four tables, the record's number and its buttons.
    EXPECT_GE(reached.size(), 6);
}

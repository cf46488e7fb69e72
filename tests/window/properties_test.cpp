// Editing in the complete window: properties, texts on the canvas, the clipboard, undo.
#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/canvas/canvas_view.h"
#include "window/items/item_panel.h"
#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/properties/property_delegate.h"
#include "window/properties/property_model.h"
#include "window/properties/property_panel.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QGraphicsItem>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

class PropertiesTest : public WindowFixture
{
protected:
    PropertiesTest()
    {
        OpenLabel label = makeLabel();
        workbench::ItemValues rich;
        rich.type = KestTypes::RichText;
        rich.placement.position = QPointF(18.0, 72.0);
        rich.box.size = QSizeF(100.0, 20.0);
        rich.font = workbench::FontValues();
        rich.textStyle = workbench::TextStyleValues();
        rich.text = workbench::TextValues{{}, u"<p>one <b>two</b></p>"_s};
        label.canvas->addItem(rich);
        workbench::ItemValues barcode;
        barcode.type = KestTypes::Barcode;
        barcode.placement.position = QPointF(140.0, 60.0);
        barcode.box.size = QSizeF(80.0, 40.0);
        barcode.barcode = workbench::BarcodeValues();
        barcode.barcode->symbology = 13;
        barcode.barcode->content = u"123456789012"_s;
        label.canvas->addItem(barcode);
        EXPECT_EQ(writeLabel(label, path(u"a.label"_s)), QString());
        window.show();
        EXPECT_TRUE(window.openFile(path(u"a.label"_s)));
        QApplication::processEvents();
    }
    ~PropertiesTest() override { window.session().undoStack().setClean(); }

    [[nodiscard]] workbench::CanvasItem& item(int index)
    {
        return *window.session().label()->canvas->items().at(index);
    }
    void select(const QList<int>& indexes)
    {
        window.view().scene()->clearSelection();
        for (const int index : indexes) {
            item(index).graphicsItem()->setSelected(true);
        }
    }
    [[nodiscard]] QTableView& table() { return window.panels().properties().table(); }
    [[nodiscard]] QModelIndex property(const QString& name)
    {
        const QAbstractItemModel& model = *table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, PropertyModel::Name).data().toString() == name) {
                return model.index(row, PropertyModel::Value);
            }
        }
        return {};
    }
    [[nodiscard]] QString shown(const QString& name) { return property(name).data().toString(); }
    void set(const QString& name, const QVariant& value)
    {
        ASSERT_TRUE(property(name).isValid()) << qPrintable(name);
        EXPECT_TRUE(table().model()->setData(property(name), value)) << qPrintable(name);
    }
    void undo() { window.action(ActionId::Undo).trigger(); }
    [[nodiscard]] qsizetype count() { return window.session().label()->canvas->items().size(); }

    MainWindow window;
    DialogDriver dialogs;
};

} // namespace

TEST_F(PropertiesTest, EveryPropertyOfEveryKindOfItemCanBeChangedAndTakenBack)
{
    int changed = 0;
    for (int index = 0; index < count(); ++index) {
        select({index});
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            const QModelIndex cell = table().model()->index(row, PropertyModel::Value);
            const auto& shownRow = static_cast<PropertyModel*>(table().model())->rowAt(row);
            const PropertyKind kind = shownRow.kind;
            const QString name = shownRow.name;
            SCOPED_TRACE(name.toStdString());
            QVariant value = cell.data(Qt::EditRole);
            if (!shownRow.isEditable || kind == PropertyKind::RichText) {
                continue;
            }
            if (kind == PropertyKind::Flag) {
                value = !value.toBool();
            } else if (kind == PropertyKind::Color) {
                value = QColor(1, 2, 3, 200);
            } else if (kind == PropertyKind::Choice) {
                const int first = shownRow.choices.constFirst().code;
                value = first != value.toInt() ? first : shownRow.choices.constLast().code;
            } else if (kind == PropertyKind::Text || kind == PropertyKind::FontFamily) {
                value = u"987654321098"_s;
            } else {
                value = value.toDouble() + 1.0;
            }
            const workbench::ItemValues before = item(index).values();
            EXPECT_TRUE(table().model()->setData(cell, value));
            EXPECT_NE(item(index).values(), before);
            EXPECT_EQ(property(name).data(Qt::EditRole), value);
            undo();
            EXPECT_EQ(item(index).values(), before);
            ++changed;
        }
    }
    EXPECT_GT(changed, 80);
}

TEST_F(PropertiesTest, SeveralItemsGetTheSameValueInOneStep)
{
    select({0, 1});
    EXPECT_EQ(shown(u"Kind"_s), u"different values"_s);
    EXPECT_FALSE(property(u"Corner radius"_s).isValid());
    EXPECT_FALSE(property(u"Text"_s).isValid());
    set(u"Line color"_s, QColor(Qt::red));
    EXPECT_EQ(item(0).values().pen->color, QColor(Qt::red));
    EXPECT_EQ(item(1).values().pen->color, QColor(Qt::red));
    undo();
    EXPECT_EQ(item(0).values().pen->color, QColor(Qt::black));
    EXPECT_EQ(item(1).values().pen->color, QColor(Qt::black));
}

TEST_F(PropertiesTest, OnlyTheLocksOfAReadOnlyItemCanBeChanged)
{
    select({0});
    set(u"Read-only"_s, true);
    EXPECT_FALSE(table().model()->setData(property(u"Width"_s), 5.0));
    EXPECT_EQ(item(0).values().box.size.width(), 72.0);
    set(u"Read-only"_s, false);
    set(u"Width"_s, 5.0);
    EXPECT_EQ(item(0).values().box.size.width(), 5.0);
}

TEST_F(PropertiesTest, FormatsOfARichTextAreKeptWhenItsFontChanges)
{
    select({3});
    set(u"Font family"_s, u"Liberation Serif"_s);
    set(u"Font size"_s, 20.0);
    set(u"Text color"_s, QColor(Qt::red));
    const QString html = item(3).values().text->html;
    EXPECT_TRUE(html.contains(u"Liberation Serif"_s));
    EXPECT_TRUE(html.contains(u"20px"_s)) << qPrintable(html);
    EXPECT_TRUE(html.contains(u"#ff0000"_s));
    QTextDocument document;
    document.setHtml(html);
    EXPECT_EQ(document.toPlainText(), u"one two"_s);
    const QTextCursor two = document.find(u"two"_s);
    EXPECT_GT(two.charFormat().fontWeight(), int(QFont::Normal));
    EXPECT_LE(document.find(u"one"_s).charFormat().fontWeight(), int(QFont::Normal));
}

TEST_F(PropertiesTest, TheEncodersObjectionIsShownWhileTyping)
{
    select({4});
    window.panels().goToProperties();
    EXPECT_FALSE(property(u"Problem"_s).isValid());
    table().edit(property(u"Content"_s));
    auto* editor = table().findChild<QTextEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, u"abc"_s);
    EXPECT_FALSE(window.panels().properties().note().isEmpty());
    QTest::keyClick(editor, Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(item(4).values().barcode->content, u"abc"_s);
    EXPECT_FALSE(shown(u"Problem"_s).isEmpty());
    EXPECT_TRUE(window.panels().properties().note().isEmpty());
    undo();
    EXPECT_FALSE(property(u"Problem"_s).isValid());
}

TEST_F(PropertiesTest, AValueThatIsOnlyLookedAtStays)
{
    select({0});
    set(u"Left"_s, 18.12345);
    const auto steps = window.session().undoStack().count();
    table().edit(property(u"Left"_s));
    auto* editor = table().findChild<QAbstractSpinBox*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(item(0).values().placement.position.x(), 18.12345);
    EXPECT_EQ(window.session().undoStack().count(), steps);
}

TEST_F(PropertiesTest, ANumberIsEditedInTheShownUnit)
{
    select({0});
    table().edit(property(u"Left"_s));
    auto* editor = table().findChild<QDoubleSpinBox*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->suffix(), u" mm"_s);
    editor->setValue(25.4);
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_NEAR(item(0).values().placement.position.x(), 72.0, 1e-9);
}

TEST_F(PropertiesTest, AChoiceIsPickedFromAList)
{
    select({0});
    table().edit(property(u"Line style"_s));
    auto* editor = table().findChild<QComboBox*>();
    ASSERT_NE(editor, nullptr);
    editor->setCurrentIndex(editor->findText(u"dots"_s));
    table()
        .itemDelegateForIndex(property(u"Line style"_s))
        ->setModelData(editor, table().model(), property(u"Line style"_s));
    EXPECT_EQ(item(0).values().pen->style, int(Qt::DotLine));
}

TEST_F(PropertiesTest, AColorIsChosenInADialog)
{
    select({0});
    dialogs.expect([](QDialog& dialog) {
        dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::blue);
        dialog.accept();
    });
    table().edit(property(u"Fill color"_s));
    QApplication::processEvents();
    EXPECT_EQ(item(0).values().fill->color, QColor(Qt::blue));
}

TEST_F(PropertiesTest, ThePageIsEditedIfNothingIsSelected)
{
    select({});
    set(u"Page width"_s, 300.0);
    set(u"Orientation"_s, int(Qt::Vertical));
    set(u"Page color"_s, QColor(Qt::yellow));
    const workbench::Canvas& canvas = *window.session().label()->canvas;
    EXPECT_EQ(canvas.page().size, QSizeF(126.0, 300.0));
    EXPECT_EQ(canvas.page().background, QColor(Qt::yellow));
    undo();
    undo();
    undo();
    EXPECT_EQ(canvas.page().size, QSizeF(252.0, 126.0));
    EXPECT_EQ(canvas.page().background, QColor(Qt::white));
}

TEST_F(PropertiesTest, ADoubleClickEditsATextOnTheCanvas)
{
    const QPoint at = window.view().mapFromScene(item(3).graphicsItem()->pos() + QPointF(4, 6));
    QTest::mouseClick(window.view().viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(window.view().viewport(), Qt::LeftButton, {}, at);
    QTest::keyClick(&window.view(), Qt::Key_End);
    QTest::keyClicks(&window.view(), u" three"_s);
    QTest::keyClick(&window.view(), Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    const QString html = item(3).values().text->html;
    EXPECT_TRUE(html.contains(u"two three"_s)) << qPrintable(html);
    EXPECT_TRUE(html.contains(u"font-weight"_s));
    EXPECT_EQ(item(3).graphicsItem()->opacity(), 1.0);
    undo();
    EXPECT_FALSE(item(3).values().text->html.contains(u"three"_s));
}

TEST_F(PropertiesTest, EscapeDropsTheTypedText)
{
    select({1});
    window.action(ActionId::EditText).trigger();
    QTest::keyClicks(&window.view(), u"new"_s);
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(item(1).values().text->text, u"Own text"_s);
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(PropertiesTest, EditingATextThatShowsADataSourceSaysSo)
{
    QSignalSpy hints(&window.view(), &CanvasView::hintShown);
    ASSERT_TRUE(window.view().editText(item(1)));
    ASSERT_EQ(hints.size(), 1);
    EXPECT_TRUE(hints.at(0).at(0).toString().contains(u"data source"_s));
    ASSERT_TRUE(window.view().editText(item(3)));
    EXPECT_EQ(hints.size(), 1);
}

TEST_F(PropertiesTest, AClickBesideTheTextKeepsWhatWasTyped)
{
    select({1});
    window.action(ActionId::EditText).trigger();
    QTest::keyClicks(&window.view(), u"new"_s);
    QTest::mouseClick(window.view().viewport(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(item(1).values().text->text, u"new"_s);
}

TEST_F(PropertiesTest, SavingKeepsWhatIsBeingTyped)
{
    select({1});
    window.action(ActionId::EditText).trigger();
    QTest::keyClicks(&window.view(), u"new"_s);
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    QApplication::sendEvent(&window.view(), &shortcut);
    EXPECT_EQ(item(1).values().text->text, u"new"_s);
    window.action(ActionId::Save).trigger();
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(PropertiesTest, ClosingTheLabelWhileATextIsEditedIsSafe)
{
    select({1});
    window.action(ActionId::EditText).trigger();
    ASSERT_EQ(window.openFileQuietly(path(u"a.label"_s)), QString());
    EXPECT_EQ(item(1).values().text->text, u"Own text"_s);
}

TEST_F(PropertiesTest, CutCopyPasteAndDuplicate)
{
    select({0});
    window.action(ActionId::Duplicate).trigger();
    EXPECT_EQ(count(), 6);
    EXPECT_TRUE(item(5).graphicsItem()->isSelected());
    EXPECT_FALSE(item(0).graphicsItem()->isSelected());
    EXPECT_GT(item(5).graphicsItem()->pos().x(), item(0).graphicsItem()->pos().x());
    window.action(ActionId::Cut).trigger();
    EXPECT_EQ(count(), 5);

    MainWindow other;
    other.show();
    ASSERT_TRUE(other.openFile(path(u"a.label"_s)));
    other.action(ActionId::Paste).trigger();
    ASSERT_EQ(other.session().label()->canvas->items().size(), 6);
    EXPECT_EQ(other.session().label()->canvas->items().at(5)->values().fill->color,
              QColor(0xff, 0xd5, 0x80));
    other.session().undoStack().setClean();
}

TEST_F(PropertiesTest, DeleteSparesReadOnlyItems)
{
    item(0).setReadOnly(true);
    select({0, 1});
    window.action(ActionId::Delete).trigger();
    EXPECT_EQ(count(), 4);
    EXPECT_EQ(window.panels().items().table().model()->rowCount(), 4);
    undo();
    EXPECT_EQ(count(), 5);
}

TEST_F(PropertiesTest, AHandleResizesAndUndoRestores)
{
    select({0});
    const workbench::ItemValues before = item(0).values();
    const QPoint corner = window.view().mapFromScene(QPointF(90.0, 54.0));
    QTest::mousePress(window.view().viewport(), Qt::LeftButton, {}, corner);
    QTest::mouseMove(window.view().viewport(), corner + QPoint(20, 30));
    QMouseEvent move(QEvent::MouseMove, corner + QPoint(20, 30),
                     window.view().viewport()->mapToGlobal(corner + QPoint(20, 30)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(window.view().viewport(), &move);
    QTest::mouseRelease(window.view().viewport(), Qt::LeftButton, {}, corner + QPoint(20, 30));
    EXPECT_GT(item(0).values().box.size.width(), before.box.size.width());
    EXPECT_EQ(item(0).values().placement.position, before.placement.position);
    undo();
    EXPECT_EQ(item(0).values(), before);
}

TEST_F(PropertiesTest, TheContextMenuHasTheCommandsOfTheSelection)
{
    select({0});
    QStringList texts;
    QTimer::singleShot(0, [&texts] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* action : menu->actions()) {
            texts.append(action->text());
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(10, 10),
                            window.view().mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&window.view(), &event);
    EXPECT_TRUE(texts.contains(u"D&elete"_s));
    EXPECT_TRUE(texts.contains(u"&Raise"_s));
}

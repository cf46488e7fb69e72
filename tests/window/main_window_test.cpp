// The complete window: the visible effects of its commands.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/canvas/canvas_view.h"
#include "window/help/manual_dialog.h"
#include "window/items/item_panel.h"
#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/properties/property_panel.h"
#include "window/review/issues_panel.h"
#include "window/sources/source_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGraphicsItem>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSet>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

class MainWindowTest : public WindowFixture
{
protected:
    MainWindowTest() { window.show(); }

    void openMadeLabel()
    {
        saveMadeLabel(path(u"a.label"_s));
        ASSERT_TRUE(window.openFile(path(u"a.label"_s)));
        QApplication::processEvents();
    }

    [[nodiscard]] QGraphicsItem* item(int index)
    {
        return window.session().label()->canvas->items().at(index)->graphicsItem();
    }

    [[nodiscard]] QTableView& itemTable() { return window.panels().items().table(); }

    /// Like a click in the list, independent of modifier keys from an earlier test.
    void pick(int row)
    {
        itemTable().selectionModel()->setCurrentIndex(itemTable().model()->index(row, 0),
                                                      QItemSelectionModel::ClearAndSelect |
                                                          QItemSelectionModel::Rows);
    }

    [[nodiscard]] QList<int> selectedRows()
    {
        QList<int> rows;
        const QModelIndexList indexes = itemTable().selectionModel()->selectedRows();
        for (const QModelIndex& index : indexes) {
            rows.append(index.row());
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    [[nodiscard]] QString property(const QString& name)
    {
        const QAbstractItemModel& model = *window.panels().properties().table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 1).data().toString() == name) {
                return model.index(row, 2).data().toString();
            }
        }
        return {};
    }

    void drop(const QList<QUrl>& urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        m_isAccepted = enter.isAccepted();
        QDropEvent event({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
        QApplication::processEvents();
    }

    MainWindow window;
    DialogDriver dialogs;
    bool m_isAccepted = false;
};

} // namespace

TEST_F(MainWindowTest, StartsEmptyWithAHint)
{
    auto* center = qobject_cast<QStackedWidget*>(window.centralWidget());
    ASSERT_NE(center, nullptr);
    EXPECT_EQ(center->currentIndex(), 0);
    EXPECT_FALSE(window.action(ActionId::Save).isEnabled());
    EXPECT_TRUE(window.action(ActionId::Open).isEnabled());
    EXPECT_EQ(window.windowTitle(), u"LabelPort Workbench"_s);
}

TEST_F(MainWindowTest, ShowsALabelInAllItsPanels)
{
    openMadeLabel();
    EXPECT_EQ(qobject_cast<QStackedWidget*>(window.centralWidget())->currentIndex(), 1);
    EXPECT_EQ(itemTable().model()->rowCount(), 3);
    EXPECT_EQ(window.panels().sources().table().model()->rowCount(), 1);
    EXPECT_TRUE(window.windowTitle().startsWith(u"a.label"_s));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.action(ActionId::Save).isEnabled());
    EXPECT_TRUE(window.view().keepsPageFitted());
}

TEST_F(MainWindowTest, TheListFollowsTheCanvas)
{
    openMadeLabel();
    item(2)->setSelected(true);
    EXPECT_EQ(selectedRows(), QList<int>{2});
    EXPECT_EQ(property(u"Kind"_s), u"Line"_s);
    item(0)->setSelected(true);
    EXPECT_EQ(selectedRows(), (QList<int>{0, 2}));
    window.action(ActionId::SelectNone).trigger();
    EXPECT_TRUE(selectedRows().isEmpty());
    EXPECT_EQ(property(u"Kind"_s), QString());
}

TEST_F(MainWindowTest, TheCanvasFollowsTheList)
{
    openMadeLabel();
    pick(1);
    EXPECT_TRUE(item(1)->isSelected());
    EXPECT_FALSE(item(0)->isSelected());
    EXPECT_EQ(property(u"Text"_s), u"Own text"_s);
    pick(0);
    EXPECT_TRUE(item(0)->isSelected());
    EXPECT_FALSE(item(1)->isSelected());
}

TEST_F(MainWindowTest, ItemsThatTakeNoMouseAreSelectedInTheList)
{
    openMadeLabel();
    window.session().label()->canvas->items().at(1)->setUserBackground(true);
    window.action(ActionId::GoItems).trigger();
    pick(1);
    EXPECT_TRUE(item(1)->isSelected());
}

TEST_F(MainWindowTest, AnItemThatIsPickedInTheListIsBroughtIntoSight)
{
    openMadeLabel();
    window.view().setZoom(16.0);
    window.view().centerOn(item(2));
    pick(0);
    const QRectF seen = window.view().mapToScene(window.view().viewport()->rect()).boundingRect();
    EXPECT_TRUE(seen.intersects(item(0)->sceneBoundingRect()));
}

TEST_F(MainWindowTest, SelectsAll)
{
    openMadeLabel();
    window.action(ActionId::SelectAll).trigger();
    EXPECT_EQ(selectedRows(), (QList<int>{0, 1, 2}));
}

TEST_F(MainWindowTest, AMoveByKeyboardIsListedAndCanBeTakenBack)
{
    openMadeLabel();
    pick(0);
    window.action(ActionId::GoCanvas).trigger();
    const QString before = property(u"Left"_s);
    QTest::keyClick(&window.view(), Qt::Key_Right, Qt::ShiftModifier);

    EXPECT_NE(property(u"Left"_s), before);
    EXPECT_TRUE(window.isWindowModified());
    window.action(ActionId::Undo).trigger();
    EXPECT_EQ(property(u"Left"_s), before);
    EXPECT_FALSE(window.isWindowModified());
    window.action(ActionId::Redo).trigger();
    EXPECT_NE(property(u"Left"_s), before);
    window.session().undoStack().setClean();
}

TEST_F(MainWindowTest, StepsThroughRecords)
{
    openMadeLabel();
    const QAbstractItemModel& sources = *window.panels().sources().table().model();
    const auto shown = [&sources] { return sources.index(0, 4).data().toString(); };
    EXPECT_FALSE(window.action(ActionId::PreviousRecord).isEnabled());
    EXPECT_EQ(shown(), u"No. 1"_s);

    window.action(ActionId::NextRecord).trigger();
    EXPECT_EQ(shown(), u"No. 2"_s);
    EXPECT_EQ(window.panels().sources().recordBox().value(), 2);
    window.action(ActionId::LastRecord).trigger();
    EXPECT_EQ(window.record(), 4);
    EXPECT_FALSE(window.action(ActionId::NextRecord).isEnabled());
    window.action(ActionId::PreviousRecord).trigger();
    window.panels().sources().recordBox().setValue(3);
    EXPECT_EQ(window.record(), 2);
    EXPECT_EQ(shown(), u"No. 3"_s);
    window.action(ActionId::FirstRecord).trigger();
    EXPECT_EQ(window.record(), 0);
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(MainWindowTest, ZoomsByCommands)
{
    openMadeLabel();
    window.action(ActionId::ZoomTrue).trigger();
    EXPECT_EQ(window.view().zoom(), 1.0);
    window.action(ActionId::ZoomIn).trigger();
    EXPECT_EQ(window.view().zoom(), 1.25);
    window.action(ActionId::ZoomOut).trigger();
    EXPECT_EQ(window.view().zoom(), 1.0);
    EXPECT_FALSE(window.action(ActionId::ZoomSelection).isEnabled());
    item(0)->setSelected(true);
    window.action(ActionId::ZoomSelection).trigger();
    EXPECT_GT(window.view().zoom(), 1.0);
    window.action(ActionId::ZoomFit).trigger();
    EXPECT_TRUE(window.view().keepsPageFitted());
}

TEST_F(MainWindowTest, ChangesTheUnitEverywhereAndKeepsIt)
{
    openMadeLabel();
    pick(0);
    window.action(ActionId::Inches).trigger();
    EXPECT_EQ(window.unit(), LengthUnit::Inch);
    EXPECT_TRUE(property(u"Left"_s).endsWith(u" in"_s));
    window.close();
    const MainWindow another;
    EXPECT_EQ(another.unit(), LengthUnit::Inch);
}

TEST_F(MainWindowTest, ClosingALabelEmptiesAllPanels)
{
    openMadeLabel();
    window.action(ActionId::Close).trigger();
    EXPECT_EQ(itemTable().model()->rowCount(), 0);
    EXPECT_EQ(window.panels().sources().table().model()->rowCount(), 0);
    EXPECT_EQ(window.view().scene(), nullptr);
    EXPECT_FALSE(window.action(ActionId::Close).isEnabled());
}

TEST_F(MainWindowTest, TakesADroppedFile)
{
    drop({QUrl::fromLocalFile(copied(u"opendocument/rating_plate.odg"_s))});
    EXPECT_TRUE(m_isAccepted);
    ASSERT_NE(window.session().label(), nullptr);
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.windowTitle().startsWith(u"rating_plate.label"_s));

    saveMadeLabel(path(u"a.label"_s));
    drop({QUrl::fromLocalFile(path(u"a.label"_s))});
    EXPECT_TRUE(window.windowTitle().startsWith(u"a.label"_s));
}

TEST_F(MainWindowTest, IgnoresDropsOfOtherData)
{
    drop({QUrl(u"https://example.org/a.label"_s)});
    EXPECT_FALSE(m_isAccepted);
    EXPECT_EQ(window.session().label(), nullptr);
}

TEST_F(MainWindowTest, ListsRecentFilesAndOpensThem)
{
    openMadeLabel();
    QAction* entry = nullptr;
    const QList<QMenu*> menus = window.findChildren<QMenu*>();
    for (const QMenu* menu : menus) {
        if (menu->title() == u"Open &Recent"_s) {
            entry = menu->actions().constFirst();
        }
    }
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text(), u"&1  a.label"_s);
    window.action(ActionId::Close).trigger();
    entry->trigger();
    QApplication::processEvents();
    EXPECT_NE(window.session().label(), nullptr);
}

TEST_F(MainWindowTest, DoesNotCloseOverUnsavedChanges)
{
    openMadeLabel();
    pick(0);
    QTest::keyClick(&window.view(), Qt::Key_Right);
    dialogs.expectButton(QMessageBox::Cancel);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    dialogs.expectButton(QMessageBox::Discard);
    EXPECT_TRUE(window.close());
}

TEST_F(MainWindowTest, OpenImportsALegacyLabel)
{
    dialogs.expectFile(copied(u"tavrel/address_2000016.cnv"_s));
    window.action(ActionId::Open).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(u"address_2000016.label"_s));
    EXPECT_GT(itemTable().model()->rowCount(), 0);
}

TEST_F(MainWindowTest, PanelsThatWereHiddenComeBackByTheirKeys)
{
    openMadeLabel();
    for (const ActionId id : {ActionId::GoItems, ActionId::GoProperties, ActionId::GoSources,
                              ActionId::GoRecord, ActionId::GoIssues}) {
        const QList<QDockWidget*> docks = window.findChildren<QDockWidget*>();
        for (QDockWidget* dock : docks) {
            dock->hide();
        }
        window.action(id).trigger();
        EXPECT_EQ(std::count_if(docks.begin(), docks.end(),
                                [](const QDockWidget* dock) { return dock->isVisible(); }),
                  1);
    }
}

TEST_F(MainWindowTest, HelpShowsEveryKey)
{
    int rows = 0;
    dialogs.expect([&rows](QDialog& dialog) {
        rows = dialog.findChild<QTableView*>()->model()->rowCount();
        dialog.reject();
    });
    window.action(ActionId::Shortcuts).trigger();
    EXPECT_EQ(rows, 69);
    dialogs.expectButton(QMessageBox::Ok);
    window.action(ActionId::About).trigger();
}

TEST_F(MainWindowTest, ManyLabelsInTurnLeaveNothingBehind)
{
    saveMadeLabel(path(u"a.label"_s));
    for (int turn = 0; turn < 20; ++turn) {
        ASSERT_TRUE(window.openFile(path(u"a.label"_s)));
        pick(turn % 3);
        window.action(ActionId::NextRecord).trigger();
        QTest::keyClick(&window.view(), Qt::Key_Right);
        window.session().undoStack().setClean();
        QApplication::processEvents();
    }
    EXPECT_EQ(itemTable().model()->rowCount(), 3);
    EXPECT_TRUE(window.action(ActionId::Close).isEnabled());
}

TEST_F(MainWindowTest, FitsTheScreenAtFirst)
{
    const MainWindow fresh;
    EXPECT_LE(fresh.width(), fresh.screen()->availableSize().width());
    EXPECT_LE(fresh.height(), fresh.screen()->availableSize().height() - 20);
}

TEST_F(MainWindowTest, TheManualIsInTheProgramWithItsPictures)
{
    window.action(ActionId::Manual).trigger();
    auto* browser = window.findChild<QTextBrowser*>();
    ASSERT_NE(browser, nullptr);
    EXPECT_TRUE(browser->toPlainText().contains(u"Editing properties"_s));
    QSet<QString> pictures;
    const QTextDocument& page = *browser->document();
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (format.isValid()) {
                pictures.insert(format.name());
                const QVariant picture =
                    browser->loadResource(QTextDocument::ImageResource, QUrl(format.name()));
                EXPECT_FALSE(picture.isNull()) << qPrintable(format.name());
                EXPECT_LE(format.width(), browser->viewport()->width());
            }
        }
    }
    EXPECT_GE(pictures.size(), 6);
    browser->window()->close();
}

TEST_F(MainWindowTest, TheZoomBoxShowsAndSetsTheZoom)
{
    openMadeLabel();
    const QList<QComboBox*> boxes = window.statusBar()->findChildren<QComboBox*>();
    ASSERT_EQ(boxes.size(), 1);
    QComboBox* box = boxes.constFirst();
    window.action(ActionId::ZoomTrue).trigger();
    EXPECT_EQ(box->currentText(), u"100 %"_s);
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), u"250"_s);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(window.view().zoom(), 2.5);
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), u"large"_s);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(window.view().zoom(), 2.5);
    EXPECT_EQ(box->currentText(), u"250 %"_s);
    // As a click in the list does.
    box->setCurrentIndex(0);
    Q_EMIT box->activated(0);
    EXPECT_TRUE(window.view().keepsPageFitted());
}

TEST_F(MainWindowTest, TheRecordBoxLeavesCtrlEToExport)
{
    openMadeLabel();
    auto* line = window.panels().sources().recordBox().findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_E, Qt::ControlModifier);
    key.ignore();
    QApplication::sendEvent(line, &key);
    EXPECT_FALSE(key.isAccepted());
}

TEST_F(MainWindowTest, MessagesAboutALabelDisappearWithIt)
{
    openMadeLabel();
    window.statusBar()->showMessage(u"old"_s);
    window.action(ActionId::Close).trigger();
    EXPECT_EQ(window.statusBar()->currentMessage(), QString());
}

TEST_F(MainWindowTest, EveryColumnOfTheItemListIsVisible)
{
    saveMadeLabel(path(u"a.label"_s));
    // The fixture's window was shown on a virtual screen that is smaller than this.
    MainWindow wide;
    wide.resize(1280, 800);
    wide.show();
    ASSERT_TRUE(wide.openFile(path(u"a.label"_s)));
    QApplication::processEvents();
    const QTableView& table = wide.panels().items().table();
    const int last = table.model()->columnCount() - 1;
    EXPECT_LE(table.columnViewportPosition(last) + table.columnWidth(last),
              table.viewport()->width());
}

TEST_F(MainWindowTest, TheManualFollowsOnlyLinksThatItContains)
{
    ManualDialog manual;
    QTextBrowser& browser = manual.browser();
    const QString text = browser.toPlainText();
    EXPECT_TRUE(text.contains(u"LabelPort Workbench"_s));
    Q_EMIT browser.anchorClicked(QUrl(u"qrc:/labelport/manual/missing.md"_s));
    EXPECT_EQ(browser.toPlainText(), text);
    Q_EMIT browser.anchorClicked(QUrl(u"migration-report.md"_s));
    EXPECT_NE(browser.toPlainText(), text);
    EXPECT_FALSE(browser.toPlainText().isEmpty());
    browser.backward();
    EXPECT_EQ(browser.toPlainText(), text);
}

TEST_F(MainWindowTest, ALongImportCanBeCanceled)
{
    openMadeLabel();
    const QString name = displayName(*window.session().label());
    QFile program(path(u"endless"_s));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\nexec sleep 600\n");
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    program.close();
    ImportProcess::setProgram(program.fileName());
    ImportProcess::setDialogDelay(0);
    dialogs.cancelProgress();
    EXPECT_FALSE(window.openFile(copied(u"opendocument/shelf_label.odg"_s)));
    EXPECT_EQ(window.statusBar()->currentMessage(), u"The import was canceled."_s);
    EXPECT_EQ(displayName(*window.session().label()), name);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

// The labels of a folder: listing, states, filters, and going through them.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QGraphicsItem>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QScrollBar>
#include <QSignalSpy>

using namespace window;

namespace {

class LabelListTest : public WindowFixture
{
protected:
    LabelListTest()
    {
        EXPECT_TRUE(QDir(path(QString())).mkpath(QStringLiteral("labels/deep")));
        add("opendocument/shelf_label.odg", "labels/a_shelf.odg");
        add("orvanta/jar_label.qmtx", "labels/deep/jar.qmtx");
        add("tavrel/address_2000016.cnv", "labels/c_address.cnv");
        QFile bad(path(QStringLiteral("labels/b_bad.cnv")));
        EXPECT_TRUE(bad.open(QIODevice::WriteOnly));
        bad.write("no label");
        QFile other(path(QStringLiteral("labels/readme.txt")));
        EXPECT_TRUE(other.open(QIODevice::WriteOnly));
    }

    void add(const char* sampleName, const char* name)
    {
        EXPECT_TRUE(
            QFile::copy(sample(QString::fromLatin1(sampleName)), path(QString::fromLatin1(name))));
    }

    [[nodiscard]] QString folder() const { return path(QStringLiteral("labels")); }
    [[nodiscard]] static QStringList namesOf(const LabelListModel& model)
    {
        QStringList names;
        for (const LabelEntry& entry : model.entries()) {
            names.append(entry.name);
        }
        return names;
    }
    static void waitFor(FolderReview& review)
    {
        QSignalSpy completed(&review, &FolderReview::completed);
        EXPECT_TRUE(!review.isBusy() || completed.wait(ImportTimeout));
    }
};

class LabelListWindowTest : public LabelListTest
{
protected:
    LabelListWindowTest()
    {
        window.show();
        EXPECT_TRUE(window.openFile(folder()));
        waitFor(panel().review());
    }

    [[nodiscard]] LabelListPanel& panel() { return window.panels().labels(); }
    [[nodiscard]] QStringList shownNames()
    {
        QStringList names;
        const QAbstractItemModel& model = *panel().list().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 0).data(LabelListModel::NameRole).toString());
        }
        return names;
    }
    void change()
    {
        QGraphicsItem* item = window.session().label()->canvas->items().at(0)->graphicsItem();
        window.session().moveItems({{item, item->pos(), item->pos() + QPointF(10.0, 0.0)}});
    }

    MainWindow window;
    DialogDriver dialogs;
};

} // namespace

TEST_F(LabelListTest, ListsTheLabelsOfAFolderAndItsSubfolders)
{
    LabelListModel model;
    model.setFolder(folder());
    EXPECT_EQ(namesOf(model),
              (QStringList{QStringLiteral("a_shelf.odg"), QStringLiteral("b_bad.cnv"),
                           QStringLiteral("c_address.cnv"), QStringLiteral("deep/jar.qmtx")}));
    EXPECT_EQ(model.entries().at(0).state, LabelState::Waiting);
}

TEST_F(LabelListTest, AFolderWithTooManyFilesIsListedInPart)
{
    LabelListModel model;
    EXPECT_TRUE(model.setFolder(folder(), 6));
    EXPECT_EQ(model.entries().size(), 4);
    EXPECT_FALSE(model.setFolder(folder(), 2));
    EXPECT_LE(model.entries().size(), 2);
}

TEST_F(LabelListTest, ASavedLabelBelongsToItsLegacyLabel)
{
    saveMadeLabel(path(QStringLiteral("labels/a_shelf.label")));
    saveMadeLabel(path(QStringLiteral("labels/own.label")));
    LabelListModel model;
    model.setFolder(folder());
    ASSERT_EQ(model.entries().size(), 5);
    EXPECT_EQ(model.refreshEdited(0), path(QStringLiteral("labels/a_shelf.label")));
    EXPECT_EQ(model.rowOf(path(QStringLiteral("labels/a_shelf.odg"))), 0);
    EXPECT_EQ(model.rowOf(path(QStringLiteral("labels/a_shelf.label"))), 0);
    EXPECT_EQ(model.entries().at(4).name, QStringLiteral("own.label"));
    EXPECT_EQ(model.rowOf(path(QStringLiteral("labels/other.label"))), -1);
}

TEST_F(LabelListTest, EachLabelGetsAStateAndAThumbnail)
{
    saveMadeLabel(path(QStringLiteral("labels/a_shelf.label")));
    FolderReview review;
    review.openFolder(folder());
    EXPECT_TRUE(review.isBusy());
    waitFor(review);
    const QList<LabelEntry>& entries = review.model().entries();
    EXPECT_EQ(entries.at(0).state, LabelState::Edited);
    EXPECT_EQ(entries.at(1).state, LabelState::Failed);
    EXPECT_FALSE(entries.at(1).summary.isEmpty());
    for (const int row : {0, 2, 3}) {
        EXPECT_NE(entries.at(row).state, LabelState::Waiting);
        EXPECT_NE(entries.at(row).state, LabelState::Failed);
        EXPECT_FALSE(QImage::fromData(entries.at(row).thumbnail, "PNG").isNull());
    }
}

TEST_F(LabelListTest, ThumbnailsAreShownCompletelyAndInOneSize)
{
    LabelListModel model;
    model.setFolder(folder());
    QImage wide(480, 60, QImage::Format_RGB32);
    wide.fill(Qt::blue);
    migration::FileReport report;
    QBuffer buffer(&report.thumbnail);
    ASSERT_TRUE(wide.save(&buffer, "PNG"));
    model.setReport(0, report);
    const QModelIndex index = model.index(0);
    const QImage shown = index.data(Qt::DecorationRole).value<QPixmap>().toImage();
    EXPECT_EQ(shown.size(), LabelListModel::ThumbnailSize);
    EXPECT_EQ(shown.pixelColor(0, shown.height() / 2), QColor(Qt::blue));
    EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() / 2), QColor(Qt::blue));
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, 4).alpha(), 0);
    EXPECT_EQ(model.index(1).data(Qt::DecorationRole).value<QPixmap>().size(),
              LabelListModel::ThumbnailSize);
}

TEST_F(LabelListTest, LongNamesAreShortenedInsteadOfScrolled)
{
    for (int number = 0; number < 9; ++number) {
        saveMadeLabel(
            path(QStringLiteral("labels/a_label_with_quite_a_long_name_%1.label").arg(number)));
    }
    LabelListPanel panel;
    panel.resize(260, 300);
    panel.openFolder(folder());
    panel.show();
    QApplication::processEvents();
    EXPECT_GT(panel.list().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(panel.list().horizontalScrollBar()->maximum(), 0);
    const QModelIndex first = panel.list().model()->index(0, 0);
    EXPECT_EQ(panel.list().visualRect(first).width(), panel.list().viewport()->width());
}

TEST_F(LabelListTest, LabelsOfTheSameNameAreAllImported)
{
    EXPECT_TRUE(QDir(folder()).mkpath(QStringLiteral("one")));
    EXPECT_TRUE(QDir(folder()).mkpath(QStringLiteral("two")));
    add("opendocument/shelf_label.odg", "labels/one/a_shelf.odg");
    add("orvanta/jar_label.qmtx", "labels/two/a_shelf.qmtx");
    FolderReview review;
    review.openFolder(folder());
    waitFor(review);
    ASSERT_EQ(review.model().entries().size(), 6);
    for (const LabelEntry& entry : review.model().entries()) {
        EXPECT_EQ(entry.state == LabelState::Failed, entry.name == QStringLiteral("b_bad.cnv"))
            << entry.name.toStdString() << ": " << entry.summary.toStdString();
    }
}

TEST_F(LabelListTest, AnotherFolderEndsTheImportOfTheFirst)
{
    EXPECT_TRUE(QDir(path(QString())).mkpath(QStringLiteral("second")));
    add("orvanta/jar_label.qmtx", "second/jar.qmtx");
    FolderReview review;
    review.openFolder(folder());
    review.openFolder(path(QStringLiteral("second")));
    waitFor(review);
    ASSERT_EQ(review.model().entries().size(), 1);
    EXPECT_NE(review.model().entries().at(0).state, LabelState::Failed);
}

TEST_F(LabelListTest, WithoutTheCommandLineEveryLabelFailsAndSaysWhy)
{
    ImportProcess::setProgram(path(QStringLiteral("no such program")));
    FolderReview review;
    review.openFolder(folder());
    waitFor(review);
    for (const LabelEntry& entry : review.model().entries()) {
        EXPECT_EQ(entry.state, LabelState::Failed);
        EXPECT_TRUE(entry.summary.contains(QStringLiteral("no such program")));
    }
}

TEST_F(LabelListWindowTest, OpensTheFirstLabelAndStepsThroughAllWithoutAQuestion)
{
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("a_shelf.label")));
    EXPECT_FALSE(window.action(ActionId::PreviousLabel).isEnabled());

    window.action(ActionId::NextLabel).trigger();
    EXPECT_EQ(window.session().label(), nullptr); // the damaged one
    EXPECT_TRUE(window.panels().issues().isVisible());

    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("c_address.label")));
    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("jar.label")));
    EXPECT_FALSE(window.action(ActionId::NextLabel).isEnabled());
    window.action(ActionId::PreviousLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("c_address.label")));
    EXPECT_EQ(dialogs.texts(), QStringList());
}

TEST_F(LabelListWindowTest, AChangedLabelIsAskedAboutAndCancelingStays)
{
    change();
    dialogs.expectButton(QMessageBox::Cancel);
    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("a_shelf.label")));
    EXPECT_EQ(panel().list().currentIndex().row(), 0);
    EXPECT_TRUE(window.session().hasUnsavedChanges());
    window.session().undoStack().setClean();
}

TEST_F(LabelListWindowTest, ASavedLabelBecomesEdited)
{
    change();
    dialogs.expectFile(path(QStringLiteral("labels/a_shelf.label")));
    window.action(ActionId::Save).trigger();
    waitFor(panel().review());
    EXPECT_EQ(panel().review().model().entries().at(0).state, LabelState::Edited);
    window.action(ActionId::NextLabel).trigger();
    window.action(ActionId::PreviousLabel).trigger();
    EXPECT_EQ(window.session().label()->fileName, path(QStringLiteral("labels/a_shelf.label")));
}

TEST_F(LabelListWindowTest, FiltersAndSorts)
{
    panel().nameFilter().setText(QStringLiteral("JAR"));
    EXPECT_EQ(shownNames(), QStringList{QStringLiteral("deep/jar.qmtx")});
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("a_shelf.label")));
    panel().nameFilter().clear();
    panel().stateFilter().setCurrentText(stateName(LabelState::Failed));
    EXPECT_EQ(shownNames(), QStringList{QStringLiteral("b_bad.cnv")});
    panel().stateFilter().setCurrentIndex(0);
    EXPECT_EQ(shownNames().size(), 4);
    panel().order().setCurrentIndex(1);
    EXPECT_EQ(shownNames().constFirst(), QStringLiteral("b_bad.cnv")); // the worst
    panel().order().setCurrentIndex(0);
    EXPECT_EQ(shownNames().constFirst(), QStringLiteral("a_shelf.odg"));
}

TEST_F(LabelListWindowTest, KeyboardFocusStaysInTheList)
{
    window.activateWindow();
    window.action(ActionId::GoLabels).trigger();
    QApplication::processEvents();
    EXPECT_TRUE(panel().list().isVisible());
    window.action(ActionId::NextLabel).trigger();
    window.action(ActionId::NextLabel).trigger();
    EXPECT_EQ(window.focusWidget(), &panel().list());
    keepPicture(window, QStringLiteral("folder"));
}

TEST_F(LabelListWindowTest, AFolderWithoutLabelsIsReported)
{
    EXPECT_TRUE(QDir(path(QString())).mkpath(QStringLiteral("empty")));
    EXPECT_TRUE(window.openFile(path(QStringLiteral("empty"))));
    EXPECT_EQ(shownNames(), QStringList());
    EXPECT_EQ(window.session().label(), nullptr);
    EXPECT_FALSE(window.action(ActionId::NextLabel).isEnabled());
}

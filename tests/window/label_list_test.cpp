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

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

class LabelListTest : public WindowFixture
{
protected:
    LabelListTest()
    {
        EXPECT_TRUE(QDir(path(QString())).mkpath(u"labels/deep"_s));
        add("opendocument/shelf_label.odg", "labels/a_shelf.odg");
        add("orvanta/jar_label.qmtx", "labels/deep/jar.qmtx");
        add("tavrel/address_2000016.cnv", "labels/c_address.cnv");
        QFile bad(path(u"labels/b_bad.cnv"_s));
        EXPECT_TRUE(bad.open(QIODevice::WriteOnly));
        bad.write("no label");
        QFile other(path(u"labels/readme.txt"_s));
        EXPECT_TRUE(other.open(QIODevice::WriteOnly));
    }

    void add(const char* sampleName, const char* name)
    {
        EXPECT_TRUE(
            QFile::copy(sample(QString::fromLatin1(sampleName)), path(QString::fromLatin1(name))));
    }

    [[nodiscard]] QString folder() const { return path(u"labels"_s); }
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
    EXPECT_EQ(namesOf(model), (QStringList{u"a_shelf.odg"_s, u"b_bad.cnv"_s, u"c_address.cnv"_s,
                                           u"deep/jar.qmtx"_s}));
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
    saveMadeLabel(path(u"labels/a_shelf.label"_s));
    saveMadeLabel(path(u"labels/own.label"_s));
    LabelListModel model;
    model.setFolder(folder());
    ASSERT_EQ(model.entries().size(), 5);
    EXPECT_EQ(model.refreshEdited(0), path(u"labels/a_shelf.label"_s));
    EXPECT_EQ(model.rowOf(path(u"labels/a_shelf.odg"_s)), 0);
    EXPECT_EQ(model.rowOf(path(u"labels/a_shelf.label"_s)), 0);
    EXPECT_EQ(model.entries().at(4).name, u"own.label"_s);
    EXPECT_EQ(model.rowOf(path(u"labels/other.label"_s)), -1);
}

TEST_F(LabelListTest, EachLabelGetsAStateAndAThumbnail)
{
    saveMadeLabel(path(u"labels/a_shelf.label"_s));
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
        saveMadeLabel(path(u"labels/a_label_with_quite_a_long_name_%1.label"_s.arg(number)));
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
    EXPECT_TRUE(QDir(folder()).mkpath(u"one"_s));
    EXPECT_TRUE(QDir(folder()).mkpath(u"two"_s));
    add("opendocument/shelf_label.odg", "labels/one/a_shelf.odg");
    add("orvanta/jar_label.qmtx", "labels/two/a_shelf.qmtx");
    FolderReview review;
    review.openFolder(folder());
    waitFor(review);
    ASSERT_EQ(review.model().entries().size(), 6);
    for (const LabelEntry& entry : review.model().entries()) {
        EXPECT_EQ(entry.state == LabelState::Failed, entry.name == u"b_bad.cnv"_s)
            << entry.name.toStdString() << ": " << entry.summary.toStdString();
    }
}

TEST_F(LabelListTest, AnotherFolderEndsTheImportOfTheFirst)
{
    EXPECT_TRUE(QDir(path(QString())).mkpath(u"second"_s));
    add("orvanta/jar_label.qmtx", "second/jar.qmtx");
    FolderReview review;
    review.openFolder(folder());
    review.openFolder(path(u"second"_s));
    waitFor(review);
    ASSERT_EQ(review.model().entries().size(), 1);
    EXPECT_NE(review.model().entries().at(0).state, LabelState::Failed);
}

TEST_F(LabelListTest, WithoutTheCommandLineEveryLabelFailsAndSaysWhy)
{
    ImportProcess::setProgram(path(u"no such program"_s));
    FolderReview review;
    review.openFolder(folder());
    waitFor(review);
    for (const LabelEntry& entry : review.model().entries()) {
        EXPECT_EQ(entry.state, LabelState::Failed);
        EXPECT_TRUE(entry.summary.contains(u"no such program"_s));
    }
}

TEST_F(LabelListWindowTest, OpensTheFirstLabelAndStepsThroughAllWithoutAQuestion)
{
    EXPECT_TRUE(window.windowTitle().startsWith(u"a_shelf.label"_s));
    EXPECT_FALSE(window.action(ActionId::PreviousLabel).isEnabled());

    window.action(ActionId::NextLabel).trigger();
    EXPECT_EQ(window.session().label(), nullptr); // the damaged one
    EXPECT_TRUE(window.panels().issues().isVisible());

    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(u"c_address.label"_s));
    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(u"jar.label"_s));
    EXPECT_FALSE(window.action(ActionId::NextLabel).isEnabled());
    window.action(ActionId::PreviousLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(u"c_address.label"_s));
    EXPECT_EQ(dialogs.texts(), QStringList());
}

TEST_F(LabelListWindowTest, AChangedLabelIsAskedAboutAndCancelingStays)
{
    change();
    dialogs.expectButton(QMessageBox::Cancel);
    window.action(ActionId::NextLabel).trigger();
    EXPECT_TRUE(window.windowTitle().startsWith(u"a_shelf.label"_s));
    EXPECT_EQ(panel().list().currentIndex().row(), 0);
    EXPECT_TRUE(window.session().hasUnsavedChanges());
    window.session().undoStack().setClean();
}

TEST_F(LabelListWindowTest, ASavedLabelBecomesEdited)
{
    change();
    dialogs.expectFile(path(u"labels/a_shelf.label"_s));
    window.action(ActionId::Save).trigger();
    waitFor(panel().review());
    EXPECT_EQ(panel().review().model().entries().at(0).state, LabelState::Edited);
    window.action(ActionId::NextLabel).trigger();
    window.action(ActionId::PreviousLabel).trigger();
    EXPECT_EQ(window.session().label()->fileName, path(u"labels/a_shelf.label"_s));
}

TEST_F(LabelListWindowTest, FiltersAndSorts)
{
    panel().nameFilter().setText(u"JAR"_s);
    EXPECT_EQ(shownNames(), QStringList{u"deep/jar.qmtx"_s});
    EXPECT_TRUE(window.windowTitle().startsWith(u"a_shelf.label"_s));
    panel().nameFilter().clear();
    panel().stateFilter().setCurrentText(stateName(LabelState::Failed));
    EXPECT_EQ(shownNames(), QStringList{u"b_bad.cnv"_s});
    panel().stateFilter().setCurrentIndex(0);
    EXPECT_EQ(shownNames().size(), 4);
    panel().order().setCurrentIndex(1);
    EXPECT_EQ(shownNames().constFirst(), u"b_bad.cnv"_s); // the worst
    panel().order().setCurrentIndex(0);
    EXPECT_EQ(shownNames().constFirst(), u"a_shelf.odg"_s);
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
    keepPicture(window, u"folder"_s);
}

TEST_F(LabelListWindowTest, AFolderWithoutLabelsIsReported)
{
    EXPECT_TRUE(QDir(path(QString())).mkpath(u"empty"_s));
    EXPECT_TRUE(window.openFile(path(u"empty"_s)));
    EXPECT_EQ(shownNames(), QStringList());
    EXPECT_EQ(window.session().label(), nullptr);
    EXPECT_FALSE(window.action(ActionId::NextLabel).isEnabled());
}

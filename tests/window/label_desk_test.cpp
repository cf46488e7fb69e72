// The commands on files, with their questions and messages: the real dialogs are answered.

#include "desk_fixture.h"
#include "dialog_driver.h"

#include "window/label_desk.h"
#include "window/label_files.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSignalSpy>

using namespace desktop;

namespace {

class LabelDeskTest : public DeskFixture
{
protected:
    /// Moves the first item, so that there are unsaved changes.
    void change()
    {
        QGraphicsItem* item = desk.label()->canvas->items().at(0)->graphicsItem();
        desk.moveItems({{item, item->pos(), item->pos() + QPointF(10.0, 0.0)}});
    }

    [[nodiscard]] static QPointF placeOfFirst(const OpenLabel& label)
    {
        return label.canvas->items().at(0)->graphicsItem()->pos();
    }

    void writeGarbage(const QString& fileName)
    {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("no label");
    }

    QWidget window;
    LabelDesk desk{&window};
    DialogDriver dialogs;
};

} // namespace

TEST_F(LabelDeskTest, IsEmptyAtFirst)
{
    EXPECT_EQ(desk.label(), nullptr);
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_FALSE(desk.save());
    EXPECT_FALSE(desk.saveAs());
    EXPECT_TRUE(desk.close());
}

TEST_F(LabelDeskTest, OpensASavedLabelWithItsSourcesAndItsFirstRecord)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    QSignalSpy replaced(&desk, &LabelDesk::labelReplaced);

    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));

    EXPECT_EQ(replaced.size(), 1);
    EXPECT_EQ(desk.label()->canvas->items().size(), 3);
    EXPECT_EQ(desk.label()->sources->recordCount(), 5);
    EXPECT_EQ(displayName(*desk.label()), QStringLiteral("a.label"));
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_EQ(RecentFiles().files(), QStringList{path(QStringLiteral("a.label"))});
}

TEST_F(LabelDeskTest, ImportsALegacyLabelThatIsUnsavedThen)
{
    const QString file = copied(QStringLiteral("opendocument/shelf_label.odg"));

    ASSERT_TRUE(desk.openFile(file));

    EXPECT_FALSE(desk.label()->canvas->items().isEmpty());
    EXPECT_TRUE(desk.label()->fileName.isEmpty());
    EXPECT_EQ(desk.label()->suggestedName, path(QStringLiteral("shelf_label.label")));
    EXPECT_TRUE(desk.hasUnsavedChanges());
    EXPECT_FALSE(QFile::exists(desk.label()->suggestedName));
}

TEST_F(LabelDeskTest, OpensEverySampleOfEveryFormat)
{
    for (const char* name : {"opendocument/care_label.odt", "opendocument/rating_plate.odg",
                             "orvanta/parcel_label.qmtx", "orvanta/shapes_sheet.qmtx",
                             "tavrel/address_2000016.cnv", "tavrel/parcel_2000023.roc"}) {
        SCOPED_TRACE(name);
        const ReadLabel read = readLegacyLabel(sample(QString::fromLatin1(name)));
        EXPECT_EQ(read.error, QString());
        EXPECT_TRUE(read.label.has_value());
    }
}

TEST_F(LabelDeskTest, ADamagedFileLeavesTheLabelAndSaysWhy)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));
    for (const char* name : {"bad.label", "bad.cnv", "bad.qmtx", "bad.odg"}) {
        SCOPED_TRACE(name);
        const QString file = path(QString::fromLatin1(name));
        writeGarbage(file);
        dialogs.expectButton(QMessageBox::Ok);

        EXPECT_FALSE(desk.openFile(file));

        EXPECT_EQ(displayName(*desk.label()), QStringLiteral("a.label"));
        const QStringList said = dialogs.texts().constLast().split(QLatin1Char('\n'));
        EXPECT_EQ(said.value(0),
                  QStringLiteral("“%1” could not be opened.").arg(QString::fromLatin1(name)));
        EXPECT_GT(said.value(1).size(), 10);
    }
}

TEST_F(LabelDeskTest, AFileThatIsGoneLeavesTheRecentFiles)
{
    RecentFiles().add(path(QStringLiteral("gone.label")));
    dialogs.expectButton(QMessageBox::Ok);
    EXPECT_FALSE(desk.openFile(path(QStringLiteral("gone.label"))));
    EXPECT_TRUE(RecentFiles().files().isEmpty());
}

TEST_F(LabelDeskTest, SavesAndOpensAgainWhatWasChanged)
{
    const QString file = path(QStringLiteral("a.label"));
    saveMadeLabel(file);
    ASSERT_TRUE(desk.openFile(file));
    change();
    EXPECT_TRUE(desk.hasUnsavedChanges());

    ASSERT_TRUE(desk.save());

    EXPECT_FALSE(desk.hasUnsavedChanges());
    const ReadLabel again = readSavedLabel(file);
    ASSERT_TRUE(again.label.has_value());
    EXPECT_EQ(placeOfFirst(*again.label), placeOfFirst(*desk.label()));
}

TEST_F(LabelDeskTest, AChangeThatIsTakenBackIsNone)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));
    const QPointF before = placeOfFirst(*desk.label());
    change();
    desk.undoStack().undo();
    EXPECT_EQ(placeOfFirst(*desk.label()), before);
    EXPECT_FALSE(desk.hasUnsavedChanges());
    desk.undoStack().redo();
    EXPECT_EQ(placeOfFirst(*desk.label()), before + QPointF(10.0, 0.0));
    EXPECT_TRUE(desk.hasUnsavedChanges());
    desk.undoStack().setClean();
}

TEST_F(LabelDeskTest, SaveAsGivesTheLabelAnotherFile)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));
    dialogs.expectFile(path(QStringLiteral("b"))); // the suffix comes by itself

    ASSERT_TRUE(desk.saveAs());

    EXPECT_EQ(desk.label()->fileName, path(QStringLiteral("b.label")));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("b.label"))));
    EXPECT_EQ(RecentFiles().files().size(), 2);
}

TEST_F(LabelDeskTest, AFileThatCannotBeWrittenIsTold)
{
    const QString file = path(QStringLiteral("a.label"));
    saveMadeLabel(file);
    ASSERT_TRUE(desk.openFile(file));
    desk.label()->fileName = path(QStringLiteral("no such folder/a.label"));
    change();
    dialogs.expectButton(QMessageBox::Ok);

    EXPECT_FALSE(desk.save());

    EXPECT_TRUE(desk.hasUnsavedChanges());
    EXPECT_TRUE(dialogs.texts().constLast().contains(QStringLiteral("Save As")));
    desk.undoStack().setClean();
}

TEST_F(LabelDeskTest, UnsavedChangesAreAskedAbout)
{
    struct Row
    {
        int button;
        bool goesOn;
        bool isSaved;
    };
    const QString file = path(QStringLiteral("a.label"));
    for (const Row& row :
         {Row{QMessageBox::Cancel, false, false}, Row{QMessageBox::Discard, true, false},
          Row{QMessageBox::Save, true, true}}) {
        SCOPED_TRACE(row.button);
        QFile::remove(file);
        saveMadeLabel(file);
        ASSERT_TRUE(desk.openFile(file));
        const QPointF before = placeOfFirst(*desk.label());
        change();
        dialogs.expectButton(row.button);

        EXPECT_EQ(desk.mayGoOn(), row.goesOn);

        EXPECT_TRUE(dialogs.texts().constLast().contains(QStringLiteral("a.label")));
        const ReadLabel kept = readSavedLabel(file);
        EXPECT_EQ(placeOfFirst(*kept.label) != before, row.isSaved);
        desk.undoStack().setClean();
    }
}

TEST_F(LabelDeskTest, ClosingAsksToo)
{
    const QString file = path(QStringLiteral("a.label"));
    saveMadeLabel(file);
    ASSERT_TRUE(desk.openFile(file));
    change();
    dialogs.expectButton(QMessageBox::Cancel);
    EXPECT_FALSE(desk.close());
    EXPECT_NE(desk.label(), nullptr);
    dialogs.expectButton(QMessageBox::Discard);
    EXPECT_TRUE(desk.close());
    EXPECT_EQ(desk.label(), nullptr);
}

TEST_F(LabelDeskTest, OpensByDialog)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    dialogs.expectFile(path(QStringLiteral("a.label")));
    desk.openByDialog();
    ASSERT_NE(desk.label(), nullptr);
    dialogs.expectCancel();
    desk.openByDialog();
    EXPECT_EQ(displayName(*desk.label()), QStringLiteral("a.label"));
}

TEST_F(LabelDeskTest, ImportsByTheImportersDialogAndSavesBesideTheOldFile)
{
    const QString file = copied(QStringLiteral("orvanta/jar_label.qmtx"));
    dialogs.expectFile(file);

    desk.importByDialog();

    ASSERT_NE(desk.label(), nullptr);
    EXPECT_EQ(dialogs.texts(), QStringList{QStringLiteral("Import Label")});
    EXPECT_EQ(desk.label()->fileName, path(QStringLiteral("jar_label.label")));
    EXPECT_TRUE(QFile::exists(desk.label()->fileName));
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_EQ(readSavedLabel(desk.label()->fileName).label->canvas->items().size(),
              desk.label()->canvas->items().size());
}

TEST_F(LabelDeskTest, AnImportNeverReplacesAFileUnasked)
{
    const QString file = copied(QStringLiteral("orvanta/jar_label.qmtx"));
    const QString target = path(QStringLiteral("jar_label.label"));
    struct Row
    {
        QString button;
        QString keptIn;
        bool isReplaced;
    };
    const QString other = path(QStringLiteral("other.label"));
    const Row rows[] = {
        {QStringLiteral("Save Later"), {}, false},
        {QStringLiteral("Other Name…"), other, false},
        {QStringLiteral("Replace"), target, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.button.toStdString());
        writeGarbage(target);
        if (desk.hasUnsavedChanges()) {
            dialogs.expectButton(QMessageBox::Discard);
        }
        dialogs.expectFile(file);
        dialogs.expectButton(row.button.contains(QLatin1Char('O')) ? QStringLiteral("Other Name…")
                                                                   : row.button);
        if (row.keptIn == other) {
            dialogs.expectFile(other);
        }

        desk.importByDialog();

        EXPECT_EQ(desk.label()->fileName, row.keptIn);
        EXPECT_EQ(readSavedLabel(target).label.has_value(), row.isReplaced);
    }
}

TEST_F(LabelDeskTest, AnImportThatFailsOrIsCancelledLeavesTheLabel)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));
    dialogs.expectCancel();
    desk.importByDialog();
    EXPECT_EQ(dialogs.texts().size(), 1);

    writeGarbage(path(QStringLiteral("bad.cnv")));
    dialogs.expectFile(path(QStringLiteral("bad.cnv")));
    dialogs.expectButton(QMessageBox::Ok);
    desk.importByDialog();

    EXPECT_EQ(displayName(*desk.label()), QStringLiteral("a.label"));
    EXPECT_TRUE(
        dialogs.texts().constLast().startsWith(QStringLiteral("The label could not be imported.")));
}

TEST_F(LabelDeskTest, AnImportAsksAboutUnsavedChangesFirst)
{
    saveMadeLabel(path(QStringLiteral("a.label")));
    ASSERT_TRUE(desk.openFile(path(QStringLiteral("a.label"))));
    change();
    dialogs.expectButton(QMessageBox::Cancel);
    desk.importByDialog();
    EXPECT_EQ(dialogs.texts().size(), 1); // no file dialog after that
    EXPECT_TRUE(desk.hasUnsavedChanges());
    desk.undoStack().setClean();
}

TEST(LabelNames, TheLastSuffixIsReplaced)
{
    EXPECT_EQ(savedNameFor(QStringLiteral("/x/shelf.old.odt")),
              QStringLiteral("/x/shelf.old.label"));
    EXPECT_TRUE(isSavedLabel(QStringLiteral("a.LABEL")));
    EXPECT_FALSE(isSavedLabel(QStringLiteral("label.cnv")));
}

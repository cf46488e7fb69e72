// The file commands with their questions and messages, using the real dialogs.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/label/label_files.h"
#include "window/label/label_session.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

class LabelSessionTest : public WindowFixture
{
protected:
    /// Moves the first item, so that there are unsaved changes.
    void change()
    {
        QGraphicsItem* item = session.label()->canvas->items().at(0)->graphicsItem();
        session.moveItems({{item, item->pos(), item->pos() + QPointF(10.0, 0.0)}});
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
    LabelSession session{&window};
    DialogDriver dialogs;
};

} // namespace

TEST_F(LabelSessionTest, IsEmptyAtFirst)
{
    EXPECT_EQ(session.label(), nullptr);
    EXPECT_FALSE(session.hasUnsavedChanges());
    EXPECT_FALSE(session.save());
    EXPECT_FALSE(session.saveAs());
    EXPECT_TRUE(session.close());
}

TEST_F(LabelSessionTest, OpensASavedLabelWithItsSourcesAndItsFirstRecord)
{
    saveMadeLabel(path(u"a.label"_s));
    QSignalSpy replaced(&session, &LabelSession::labelReplaced);

    ASSERT_TRUE(session.openFile(path(u"a.label"_s)));

    EXPECT_EQ(replaced.size(), 1);
    EXPECT_EQ(session.label()->canvas->items().size(), 3);
    EXPECT_EQ(session.label()->sources->recordCount(), 5);
    EXPECT_EQ(displayName(*session.label()), u"a.label"_s);
    EXPECT_FALSE(session.hasUnsavedChanges());
    EXPECT_EQ(RecentFiles().files(), QStringList{path(u"a.label"_s)});
}

TEST_F(LabelSessionTest, ImportsALegacyLabelWithoutAskingToSaveIt)
{
    const QString file = copied(u"opendocument/shelf_label.odg"_s);

    ASSERT_TRUE(session.openFile(file));

    EXPECT_FALSE(session.label()->canvas->items().isEmpty());
    EXPECT_TRUE(session.label()->fileName.isEmpty());
    EXPECT_EQ(session.label()->suggestedName, path(u"shelf_label.label"_s));
    EXPECT_FALSE(QFile::exists(session.label()->suggestedName));
    EXPECT_FALSE(session.hasUnsavedChanges());
    EXPECT_TRUE(session.openFile(file));
    EXPECT_EQ(dialogs.texts(), QStringList());
    change();
    EXPECT_TRUE(session.hasUnsavedChanges());
    session.undoStack().setClean();
}

TEST_F(LabelSessionTest, ADocumentIsRepairedUnlessItIsWantedAsWritten)
{
    const QString file = copied(u"opendocument/care_label.odt"_s);
    ASSERT_TRUE(session.openFile(file));
    EXPECT_TRUE(session.label()->hasOtherReading);
    EXPECT_FALSE(session.label()->isAsWritten);
    EXPECT_FALSE(session.label()->report.repaired.isEmpty());

    EXPECT_TRUE(session.readAgain(Reading::AsWritten));

    EXPECT_TRUE(session.label()->isAsWritten);
    EXPECT_TRUE(session.label()->hasOtherReading);
    EXPECT_EQ(session.label()->importedFile, file);
    EXPECT_TRUE(session.label()->report.repaired.isEmpty());

    EXPECT_TRUE(session.readAgain(Reading::Repaired));
    EXPECT_FALSE(session.label()->isAsWritten);
    EXPECT_FALSE(session.label()->report.repaired.isEmpty());
    EXPECT_EQ(dialogs.texts(), QStringList());
}

TEST_F(LabelSessionTest, TheOtherReadingOfALostFileLeavesTheLabel)
{
    const QString file = copied(u"opendocument/care_label.odt"_s);
    ASSERT_TRUE(session.openFile(file));
    ASSERT_TRUE(QFile::remove(file));
    dialogs.expectButton(QMessageBox::Ok);

    EXPECT_FALSE(session.readAgain(Reading::AsWritten));

    ASSERT_NE(session.label(), nullptr);
    EXPECT_FALSE(session.label()->isAsWritten);
}

TEST_F(LabelSessionTest, OtherFilesHaveOneReading)
{
    ASSERT_TRUE(session.openFile(copied(u"orvanta/jar_label.qmtx"_s)));
    EXPECT_FALSE(session.label()->hasOtherReading);
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(session.openFile(path(u"a.label"_s)));
    EXPECT_FALSE(session.label()->hasOtherReading);
    EXPECT_FALSE(session.readAgain(Reading::AsWritten));
}

TEST_F(LabelSessionTest, OpensEverySampleOfEveryFormat)
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

TEST_F(LabelSessionTest, ADamagedFileLeavesTheLabelAndSaysWhy)
{
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(session.openFile(path(u"a.label"_s)));
    for (const char* name : {"bad.label", "bad.cnv", "bad.qmtx", "bad.odg"}) {
        SCOPED_TRACE(name);
        const QString file = path(QString::fromLatin1(name));
        writeGarbage(file);
        dialogs.expectButton(QMessageBox::Ok);

        EXPECT_FALSE(session.openFile(file));

        EXPECT_EQ(displayName(*session.label()), u"a.label"_s);
        const QStringList said = dialogs.texts().constLast().split(QLatin1Char('\n'));
        EXPECT_EQ(said.value(0), u"“%1” could not be opened."_s.arg(QString::fromLatin1(name)));
        EXPECT_GT(said.value(1).size(), 10);
    }
}

TEST_F(LabelSessionTest, AFileThatIsGoneLeavesTheRecentFiles)
{
    RecentFiles().add(path(u"gone.label"_s));
    dialogs.expectButton(QMessageBox::Ok);
    EXPECT_FALSE(session.openFile(path(u"gone.label"_s)));
    EXPECT_TRUE(RecentFiles().files().isEmpty());
}

TEST_F(LabelSessionTest, SavesAndOpensAgainWhatWasChanged)
{
    const QString file = path(u"a.label"_s);
    saveMadeLabel(file);
    ASSERT_TRUE(session.openFile(file));
    change();
    EXPECT_TRUE(session.hasUnsavedChanges());

    ASSERT_TRUE(session.save());

    EXPECT_FALSE(session.hasUnsavedChanges());
    const ReadLabel again = readSavedLabel(file);
    ASSERT_TRUE(again.label.has_value());
    EXPECT_EQ(placeOfFirst(*again.label), placeOfFirst(*session.label()));
}

TEST_F(LabelSessionTest, AnUndoneChangeIsNotAChange)
{
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(session.openFile(path(u"a.label"_s)));
    const QPointF before = placeOfFirst(*session.label());
    change();
    session.undoStack().undo();
    EXPECT_EQ(placeOfFirst(*session.label()), before);
    EXPECT_FALSE(session.hasUnsavedChanges());
    session.undoStack().redo();
    EXPECT_EQ(placeOfFirst(*session.label()), before + QPointF(10.0, 0.0));
    EXPECT_TRUE(session.hasUnsavedChanges());
    session.undoStack().setClean();
}

TEST_F(LabelSessionTest, SaveAsGivesTheLabelAnotherFile)
{
    saveMadeLabel(path(u"a.label"_s));
    ASSERT_TRUE(session.openFile(path(u"a.label"_s)));
    dialogs.expectFile(path(u"b"_s)); // the suffix is added automatically

    ASSERT_TRUE(session.saveAs());

    EXPECT_EQ(session.label()->fileName, path(u"b.label"_s));
    EXPECT_TRUE(QFile::exists(path(u"b.label"_s)));
    EXPECT_EQ(RecentFiles().files().size(), 2);
}

TEST_F(LabelSessionTest, AWriteErrorIsReported)
{
    const QString file = path(u"a.label"_s);
    saveMadeLabel(file);
    ASSERT_TRUE(session.openFile(file));
    session.label()->fileName = path(u"no such folder/a.label"_s);
    change();
    dialogs.expectButton(QMessageBox::Ok);

    EXPECT_FALSE(session.save());

    EXPECT_TRUE(session.hasUnsavedChanges());
    EXPECT_TRUE(dialogs.texts().constLast().contains(u"Save As"_s));
    session.undoStack().setClean();
}

TEST_F(LabelSessionTest, UnsavedChangesAreAskedAbout)
{
    struct Row
    {
        int button;
        bool goesOn;
        bool isSaved;
    };
    const QString file = path(u"a.label"_s);
    for (const Row& row :
         {Row{QMessageBox::Cancel, false, false}, Row{QMessageBox::Discard, true, false},
          Row{QMessageBox::Save, true, true}}) {
        SCOPED_TRACE(row.button);
        QFile::remove(file);
        saveMadeLabel(file);
        ASSERT_TRUE(session.openFile(file));
        const QPointF before = placeOfFirst(*session.label());
        change();
        dialogs.expectButton(row.button);

        EXPECT_EQ(session.confirmDiscard(), row.goesOn);

        EXPECT_TRUE(dialogs.texts().constLast().contains(u"a.label"_s));
        const ReadLabel kept = readSavedLabel(file);
        EXPECT_EQ(placeOfFirst(*kept.label) != before, row.isSaved);
        session.undoStack().setClean();
    }
}

TEST_F(LabelSessionTest, ClosingAsksToo)
{
    const QString file = path(u"a.label"_s);
    saveMadeLabel(file);
    ASSERT_TRUE(session.openFile(file));
    change();
    dialogs.expectButton(QMessageBox::Cancel);
    EXPECT_FALSE(session.close());
    EXPECT_NE(session.label(), nullptr);
    dialogs.expectButton(QMessageBox::Discard);
    EXPECT_TRUE(session.close());
    EXPECT_EQ(session.label(), nullptr);
}

TEST_F(LabelSessionTest, OpensByDialog)
{
    saveMadeLabel(path(u"a.label"_s));
    dialogs.expectFile(path(u"a.label"_s));
    session.openByDialog();
    ASSERT_NE(session.label(), nullptr);
    dialogs.expectCancel();
    session.openByDialog();
    EXPECT_EQ(displayName(*session.label()), u"a.label"_s);
}

TEST(LabelNames, TheLastSuffixIsReplaced)
{
    EXPECT_EQ(savedNameFor(u"/x/shelf.old.odt"_s), u"/x/shelf.old.label"_s);
    EXPECT_TRUE(isSavedLabel(u"a.LABEL"_s));
    EXPECT_FALSE(isSavedLabel(u"label.cnv"_s));
}

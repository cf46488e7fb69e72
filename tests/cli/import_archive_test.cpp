// `labelport import` over whole archives, from the outside.

#include "tests/cli/program_fixture.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace {

/// An archive of four good files, a damaged one, and one that is no label.
class ImportArchive : public LabelportProgram
{
protected:
    void SetUp() override
    {
        copy("opendocument/sample_vial.odg", "old/vial.odg");
        copy("orvanta/asset_tag.qmtx", "old/tags/asset.qmtx");
        copy("orvanta/warning_sign.qmtx", "old/tags/more/sign.QMTX");
        copy("tavrel/shelf_label_2000021.roc", "old/tags/shelf.roc");
        write(QStringLiteral("old/readme.txt"), "no label");
    }

    QStringList import(const char* arguments)
    {
        return words("import --dpi 40") + words(arguments);
    }
};

TEST_F(ImportArchive, KeepsTheTreeBelowAFolder)
{
    const Outcome outcome = labelport(import("old --output-dir new --to png,label"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, QStringLiteral("new/tags/asset.png\nnew/tags/asset.label\n"
                                          "new/tags/more/sign.png\nnew/tags/more/sign.label\n"
                                          "new/tags/shelf.png\nnew/tags/shelf.label\n"
                                          "new/vial.png\nnew/vial.label\n"));
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("4 of 4 files were imported")));
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("1 files were passed over")));
    EXPECT_FALSE(QImage(path(QStringLiteral("new/tags/more/sign.png"))).isNull());
}

TEST_F(ImportArchive, ListsFilesInTheirOrderWhateverTheOrderGiven)
{
    const Outcome outcome = labelport(import("old/vial.odg old/tags/shelf.roc"));
    EXPECT_EQ(outcome.out, QStringLiteral("shelf.png\nvial.png\n"));
}

TEST_F(ImportArchive, TakesFilesFromAList)
{
    const Outcome fromInput = labelport(import("--files-from - --base old --output-dir new"), {},
                                        QByteArray("old/vial.odg\0old/tags/shelf.roc\0", 32));
    EXPECT_EQ(fromInput.out, QStringLiteral("new/tags/shelf.png\nnew/vial.png\n"));
    write(QStringLiteral("list"), "old/vial.odg\n");
    EXPECT_EQ(labelport(import("--files-from list")).out, QStringLiteral("vial.png\n"));
    const Outcome missing = labelport(import("--files-from missing"));
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.err.contains(QStringLiteral("missing cannot be read")));
}

TEST_F(ImportArchive, ReadsALabelFromStandardInput)
{
    const Outcome outcome = labelport(import("- --reader opendocument --output-dir new"), {},
                                      read(QStringLiteral("old/vial.odg")));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, QStringLiteral("new/stdin.png\n"));
    const Outcome wrong = labelport(import("- --reader orvanta"), {}, "no XML");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_TRUE(wrong.err.startsWith(QStringLiteral("labelport: stdin: ")));
}

TEST_F(ImportArchive, ReadsAFileByTheReaderThatIsNamed)
{
    copy("orvanta/asset_tag.qmtx", "misnamed.old.xml");
    EXPECT_EQ(labelport(import("misnamed.old.xml")).status, 1);
    EXPECT_EQ(labelport(import("misnamed.old.xml --reader orvanta")).out,
              QStringLiteral("misnamed.old.png\n"));
}

TEST_F(ImportArchive, GoesOnWhereItWasStopped)
{
    const char* command = "old --output-dir new --to label --resume";
    EXPECT_EQ(labelport(import(command)).status, 0);
    QFile::remove(path(QStringLiteral("new/vial.label")));
    const Outcome again = labelport(import(command));
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);
    EXPECT_EQ(again.out, QStringLiteral("new/vial.label\n"));
    EXPECT_TRUE(again.err.contains(QStringLiteral("1 of 4 files were imported, 3 had been done")));
}

// A saved label that this folder's journal knows, unchanged, is ours; an edited one is not.
TEST_F(ImportArchive, ReplacesTheSavedLabelsThatItMade)
{
    const char* command = "old --output-dir new --to label";
    EXPECT_EQ(labelport(import(command)).status, 0);
    EXPECT_EQ(labelport(import(command)).status, 0);
    write(QStringLiteral("new/vial.label"), "edited");
    const Outcome refused = labelport(import(command));
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("new/vial.label exists")));
    EXPECT_EQ(read(QStringLiteral("new/vial.label")), "edited");
}

TEST_F(ImportArchive, DoesNotImportWhatItWrote)
{
    EXPECT_EQ(labelport(import("old --output-dir old --to label")).status, 0);
    const Outcome again = labelport(import("old --output-dir old --to label --resume"));
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);
    EXPECT_EQ(again.out, QString());
}

TEST_F(ImportArchive, SaysOnlyWhatFailedWhenItIsToBeQuiet)
{
    write(QStringLiteral("old/broken.odg"), "no zip");
    const Outcome outcome = labelport(import("old --output-dir new --quiet"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.count(QLatin1Char('\n')), 2) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.err.startsWith(QStringLiteral("labelport: old/broken.odg: ")));
    EXPECT_TRUE(outcome.err.endsWith(QStringLiteral("1 of 5 files failed.\n")));
}

TEST_F(ImportArchive, ReportsTheSameForOneRunAndForMergedParts)
{
    write(QStringLiteral("old/broken.odg"), "no zip");
    const char* whole = "old --output-dir new --quiet --report whole.json --report whole.html";
    EXPECT_EQ(labelport(import(whole)).status, 1);
    QDir(path(QStringLiteral("new"))).removeRecursively();
    for (const char* part : {"1", "2", "3"}) {
        QStringList arguments = import("old --output-dir new --quiet");
        arguments +=
            {QStringLiteral("--shard"), QLatin1String(part) + QStringLiteral("/3"),
             QStringLiteral("--report"), QStringLiteral("part%1.json").arg(QLatin1String(part))};
        labelport(arguments);
    }
    EXPECT_EQ(labelport(words("report merge part3.json part1.json part2.json --to all.json "
                              "--to all.html"))
                  .status,
              0);
    EXPECT_EQ(read(QStringLiteral("all.json")), read(QStringLiteral("whole.json")));
    EXPECT_EQ(read(QStringLiteral("all.html")), read(QStringLiteral("whole.html")));
    // And the same again when nothing is left to be done.
    EXPECT_EQ(labelport(import("old --output-dir new --quiet --resume --report again.json")).status,
              1);
    EXPECT_EQ(read(QStringLiteral("again.json")), read(QStringLiteral("whole.json")));
    EXPECT_TRUE(read(QStringLiteral("all.json")).contains("new/tags/asset.png"));
}

// What failed weighs more than what was lost.
TEST_F(ImportArchive, FailsOnLossOnlyWhenItIsAsked)
{
    QByteArray label = read(QStringLiteral("old/tags/asset.qmtx"));
    label.replace("<controls>",
                  "<controls><hologram><printable_control><bounds><x>200</x><y>200</y>"
                  "<w>9</w><h>9</h></bounds></printable_control></hologram>");
    write(QStringLiteral("lossy.qmtx"), label);
    write(QStringLiteral("broken.odg"), "no zip");
    EXPECT_EQ(labelport(import("lossy.qmtx")).status, 0);
    const Outcome lossy = labelport(import("lossy.qmtx --fail-on-loss"));
    EXPECT_EQ(lossy.status, 3) << qPrintable(lossy.err);
    EXPECT_TRUE(lossy.err.contains(QStringLiteral("1 of 1 files did not come over whole.")));
    EXPECT_EQ(labelport(import("lossy.qmtx broken.odg --fail-on-loss")).status, 1);
    EXPECT_EQ(labelport(import("old/vial.odg --fail-on-loss")).status, 0);
}

TEST_F(ImportArchive, SaysBeforeItBeginsThatAReportCannotBeWritten)
{
    write(QStringLiteral("file"), "");
    const Outcome outcome = labelport(import("old --output-dir new --report file/r.json"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("cannot be written")));
    EXPECT_FALSE(has("new"));
}

TEST_F(ImportArchive, SaysThatThereIsNothing)
{
    QDir().mkpath(path(QStringLiteral("empty")));
    const Outcome outcome = labelport(import("empty"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, QStringLiteral("labelport: There is no label to import.\n"));
}

TEST_F(ImportArchive, GivesAFileUpThatNeedsTooMuchMemory)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    const Outcome outcome =
        labelport(words("import old/vial.odg --dpi 2400 --memory-limit 128 --output-dir new"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(has("new/vial.png"));
}

// Ten commands at once into one folder: each finds its own or the others' pictures there.
TEST_F(ImportArchive, SharesAFolderWithOtherCommands)
{
    std::vector<std::unique_ptr<QProcess>> commands;
    for (int number = 0; number < 10; ++number) {
        commands.push_back(std::make_unique<QProcess>());
        commands.back()->setWorkingDirectory(path(QString()));
        commands.back()->start(QStringLiteral(LABELPORT_PROGRAM),
                               import("old --output-dir new --jobs 1 --quiet"));
    }
    for (const auto& command : commands) {
        ASSERT_TRUE(command->waitForFinished(120'000));
        EXPECT_EQ(command->exitCode(), 0) << command->readAllStandardError().constData();
    }
    for (const char* name : {"new/vial.png", "new/tags/asset.png", "new/tags/shelf.png"}) {
        EXPECT_FALSE(QImage(path(QLatin1String(name))).isNull()) << name;
    }
    EXPECT_EQ(QDir(path(QStringLiteral("new")))
                  .entryList({QStringLiteral(".labelport-work*")}, QDir::Dirs | QDir::Hidden),
              QStringList());
}

TEST_F(ImportArchive, WorksWithoutAHome)
{
    for (const char* home : {"/nonexistent", "/proc"}) {
        const Outcome outcome = labelport(import("old --output-dir new --quiet"),
                                          {QStringLiteral("HOME=") + QLatin1String(home)});
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    }
}

} // namespace

// `labelport import` over whole archives, from the outside.

#include "tests/cli/program_fixture.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {
using namespace Qt::StringLiterals;

TEST_F(ImportArchive, KeepsTheTreeBelowAFolder)
{
    const Outcome outcome = labelport(import("old --output-dir new --to png,label"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"new/tags/asset.png\nnew/tags/asset.label\n"
                           "new/tags/more/sign.png\nnew/tags/more/sign.label\n"
                           "new/tags/shelf.png\nnew/tags/shelf.label\n"
                           "new/vial.png\nnew/vial.label\n"_s);
    EXPECT_TRUE(outcome.err.contains(u"4 files imported."_s));
    EXPECT_TRUE(outcome.err.contains(u"Ignored 1 other file."_s));
    EXPECT_FALSE(QImage(path(u"new/tags/more/sign.png"_s)).isNull());
}

TEST_F(ImportArchive, ListsFilesInTheirOrderWhateverTheOrderGiven)
{
    const Outcome outcome = labelport(import("old/vial.odg old/tags/shelf.roc"));
    EXPECT_EQ(outcome.out, u"shelf.png\nvial.png\n"_s);
}

TEST_F(ImportArchive, TakesFilesFromAList)
{
    const Outcome fromInput = labelport(import("--files-from - --base old --output-dir new"), {},
                                        QByteArray("old/vial.odg\0old/tags/shelf.roc\0", 32));
    EXPECT_EQ(fromInput.out, u"new/tags/shelf.png\nnew/vial.png\n"_s);
    write(u"list"_s, "old/vial.odg\n");
    EXPECT_EQ(labelport(import("--files-from list")).out, u"vial.png\n"_s);
    const Outcome missing = labelport(import("--files-from missing"));
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.err.contains(u"Cannot read the list of files \"missing\": "_s));
}

TEST_F(ImportArchive, ReadsALabelFromStandardInput)
{
    const Outcome outcome =
        labelport(import("- --reader opendocument --output-dir new"), {}, read(u"old/vial.odg"_s));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"new/stdin.png\n"_s);
    const Outcome wrong = labelport(import("- --reader orvanta"), {}, "no XML");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_TRUE(wrong.err.startsWith(u"labelport: stdin: "_s));
}

TEST_F(ImportArchive, ReadsAFileByTheReaderThatIsNamed)
{
    copy("orvanta/asset_tag.qmtx", "misnamed.old.xml");
    EXPECT_EQ(labelport(import("misnamed.old.xml")).out, u"misnamed.old.png\n"_s)
        << "an unknown suffix: the content decides";
    copy("orvanta/asset_tag.qmtx", "misnamed.cnv");
    const Outcome refused = labelport(import("misnamed.cnv"));
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(u"--reader orvanta"_s)) << qPrintable(refused.err);
    EXPECT_EQ(labelport(import("misnamed.cnv --reader orvanta")).out, u"misnamed.png\n"_s);
}

TEST_F(ImportArchive, ResumesWhereItWasStopped)
{
    const char* command = "old --output-dir new --to label --resume";
    EXPECT_EQ(labelport(import(command)).status, 0);
    QFile::remove(path(u"new/vial.label"_s));
    const Outcome again = labelport(import(command));
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);
    EXPECT_EQ(again.out, u"new/vial.label\n"_s);
    EXPECT_TRUE(again.err.contains(u"1 file imported. 3 files had been imported before."_s));
}

// A saved label that this folder's journal knows, unchanged, is ours; an edited one is not.
TEST_F(ImportArchive, ReplacesTheSavedLabelsThatItMade)
{
    const char* command = "old --output-dir new --to label";
    EXPECT_EQ(labelport(import(command)).status, 0);
    EXPECT_EQ(labelport(import(command)).status, 0);
    write(u"new/vial.label"_s, "edited");
    const Outcome refused = labelport(import(command));
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(u"\"new/vial.label\" exists"_s));
    EXPECT_EQ(read(u"new/vial.label"_s), "edited");
}

TEST_F(ImportArchive, ReplacesItsLabelsAfterOtherTargets)
{
    for (const char* targets : {"label", "pdf", "label"}) {
        const Outcome outcome =
            labelport(import("old --output-dir new --to ") + QStringList{QLatin1String(targets)});
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    }
    const Outcome resumed = labelport(import("old --output-dir new --to label --resume"));
    EXPECT_EQ(resumed.status, 0);
    EXPECT_TRUE(resumed.err.contains(u"4 files had been imported before."_s))
        << qPrintable(resumed.err);
}

// PDF files next to the migrated labels.
TEST_F(ImportArchive, ImportsSavedLabelsWhoseOriginalsAreElsewhere)
{
    EXPECT_EQ(labelport(import("old --output-dir new --to label")).status, 0);
    const Outcome outcome = labelport(import("new --output-dir new --to pdf"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"new/tags/asset.pdf\nnew/tags/more/sign.pdf\nnew/tags/shelf.pdf\n"
                           "new/vial.pdf\n"_s);
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
    write(u"old/broken.odg"_s, "no zip");
    const Outcome outcome = labelport(import("old --output-dir new --quiet"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.count(u'\n'), 2) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.err.startsWith(u"labelport: old/broken.odg: "_s));
    EXPECT_TRUE(outcome.err.endsWith(u"1 file failed.\n"_s));
}

TEST_F(ImportArchive, ReportsTheSameForOneRunAndForMergedParts)
{
    write(u"old/broken.odg"_s, "no zip");
    const char* whole = "old --output-dir new --quiet --report whole.json --report whole.html";
    EXPECT_EQ(labelport(import(whole)).status, 1);
    QDir(path(u"new"_s)).removeRecursively();
    for (const char* part : {"1", "2", "3"}) {
        QStringList arguments = import("old --output-dir new --quiet");
        arguments += {u"--shard"_s, QLatin1String(part) + u"/3"_s, u"--report"_s,
                      u"part%1.json"_s.arg(QLatin1String(part))};
        labelport(arguments);
    }
    EXPECT_EQ(labelport(words("report merge part3.json part1.json part2.json --to all.json "
                              "--to all.html"))
                  .status,
              0);
    EXPECT_EQ(read(u"all.json"_s), read(u"whole.json"_s));
    EXPECT_EQ(read(u"all.html"_s), read(u"whole.html"_s));
    // And the same again when nothing is left to be done.
    EXPECT_EQ(labelport(import("old --output-dir new --quiet --resume --report again.json")).status,
              1);
    EXPECT_EQ(read(u"again.json"_s), read(u"whole.json"_s));
    EXPECT_TRUE(read(u"all.json"_s).contains("new/tags/asset.png"));
}

// What failed weighs more than what was lost.
TEST_F(ImportArchive, FailsOnLossOnlyWhenItIsAsked)
{
    QByteArray label = read(u"old/tags/asset.qmtx"_s);
    label.replace("<controls>",
                  "<controls><hologram><printable_control><bounds><x>200</x><y>200</y>"
                  "<w>9</w><h>9</h></bounds></printable_control></hologram>");
    write(u"lossy.qmtx"_s, label);
    write(u"broken.odg"_s, "no zip");
    const Outcome unasked = labelport(import("lossy.qmtx"));
    EXPECT_EQ(unasked.status, 0);
    EXPECT_TRUE(unasked.err.contains(u"with losses: 1"_s)) << qPrintable(unasked.err);
    const Outcome lossy = labelport(import("lossy.qmtx --fail-on-loss"));
    EXPECT_EQ(lossy.status, 3) << qPrintable(lossy.err);
    EXPECT_TRUE(lossy.err.contains(u"\n  lossy.qmtx: Imported "_s)) << qPrintable(lossy.err);
    EXPECT_EQ(labelport(import("lossy.qmtx broken.odg --fail-on-loss")).status, 1);
    EXPECT_EQ(labelport(import("old/vial.odg --fail-on-loss")).status, 0);
}

TEST_F(ImportArchive, SaysBeforeItBeginsThatAReportCannotBeWritten)
{
    write(u"file"_s, "");
    const Outcome outcome = labelport(import("old --output-dir new --report file/r.json"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(u"Cannot write \"file/r.json\": "_s));
    EXPECT_FALSE(has("new"));
}

TEST_F(ImportArchive, SaysThatThereIsNothing)
{
    QDir().mkpath(path(u"empty"_s));
    const Outcome outcome = labelport(import("empty"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, u"labelport: No labels to import.\n"_s);
}

TEST_F(ImportArchive, GivesAFileUpThatNeedsTooMuchMemory)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    const Outcome outcome = labelport(
        words("import old/tags/more/sign.QMTX --dpi 2400 --memory-limit 128 --output-dir new"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(u"memory"_s)) << qPrintable(outcome.err);
    EXPECT_FALSE(has("new/sign.png"));
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
    EXPECT_EQ(QDir(path(u"new"_s)).entryList({u".labelport-work*"_s}, QDir::Dirs | QDir::Hidden),
              QStringList());
}

TEST_F(ImportArchive, WorksWithoutAHome)
{
    for (const char* home : {"/nonexistent", "/proc"}) {
        const Outcome outcome =
            labelport(import("old --output-dir new --quiet"), {u"HOME="_s + QLatin1String(home)});
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    }
}

} // namespace

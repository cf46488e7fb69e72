// An archive that is taken up again.

#include "tests/archive/run_fixture.h"

namespace {
using namespace Qt::StringLiterals;

class ArchiveResume : public RunFixture
{
protected:
    ArchiveResume()
    {
        input(u"a.cnv"_s, "pid");
        input(u"b.cnv"_s, "pid");
    }

    /// The first letters of what became of a and b in a resumed run: r(esumed), d(one), f(ailed).
    QString resumed()
    {
        settings.isResuming = true;
        QString letters;
        for (const QString& line : run()) {
            letters += line.at(0);
        }
        return letters;
    }
};

TEST_F(ArchiveResume, LeavesOutWhatIsDone)
{
    run();
    const QByteArray before = output(u"a.png"_s);
    EXPECT_EQ(resumed(), u"rr"_s);
    EXPECT_EQ(output(u"a.png"_s), before);
    EXPECT_EQ(progress.skipped, 2);
    EXPECT_EQ(progress.done, 2);
}

TEST_F(ArchiveResume, IsOnlyDoneOnRequest)
{
    run();
    EXPECT_EQ(run().value(0), u"done a.cnv: a.png"_s);
}

TEST_F(ArchiveResume, DoesChangedFilesAgain)
{
    run();
    input(u"a.cnv"_s, "ok longer now");
    EXPECT_EQ(resumed(), u"dr"_s);
    EXPECT_EQ(output(u"a.png"_s), "ok longer now");
}

TEST_F(ArchiveResume, DoesFilesAgainThatLostAnOutput)
{
    run();
    QFile::remove(folder.path(u"out/b.png"_s));
    EXPECT_EQ(resumed(), u"rd"_s);
}

// An output that the user changed is a foreign file: it is neither counted as ours nor overwritten.
TEST_F(ArchiveResume, DoesNotOverwriteAnOutputThatWasChanged)
{
    run();
    folder.write(u"out/b.png"_s, "edited by a person");
    EXPECT_EQ(resumed(), u"rf"_s);
    EXPECT_EQ(output(u"b.png"_s), "edited by a person");
}

TEST_F(ArchiveResume, TriesWhatFailedAgain)
{
    input(u"b.cnv"_s, "fail");
    run();
    EXPECT_EQ(resumed(), u"rf"_s);
    input(u"b.cnv"_s, "ok");
    EXPECT_EQ(resumed(), u"rd"_s);
}

TEST_F(ArchiveResume, DoesAllAgainWithOtherOptionsOrAnotherVersion)
{
    run();
    settings.options = {{u"dpi"_s, 600}};
    EXPECT_EQ(resumed(), u"dd"_s);
    EXPECT_EQ(resumed(), u"rr"_s);
    settings.version = u"1.1"_s;
    EXPECT_EQ(resumed(), u"dd"_s);
}

// Labels, then documents, then labels again.
TEST_F(ArchiveResume, RemembersOtherTargets)
{
    run();
    settings.targets = QStringList{u"pdf"_s};
    run();
    settings.targets = QStringList{u"png"_s};
    EXPECT_EQ(run().value(0), u"done a.cnv: a.png"_s) << "its own output is not known";
    settings.targets = QStringList{u"pdf"_s};
    run();
    settings.targets = QStringList{u"png"_s};
    EXPECT_EQ(resumed(), u"rr"_s);
}

TEST_F(ArchiveResume, IgnoresTheNumberOfWorkers)
{
    run();
    settings.workerOptions = {{u"force"_s, true}};
    settings.workers = 1;
    EXPECT_EQ(resumed(), u"rr"_s);
}

TEST_F(ArchiveResume, PassesOnTheReportsOfAllFiles)
{
    settings.needsReports = true;
    settings.workerOptions = {{u"report"_s, true}};
    run();
    const QList<QJsonObject> whole = reports;
    EXPECT_EQ(whole.value(1).value("file"_L1).toString(), u"b.cnv"_s);
    EXPECT_EQ(resumed(), u"rr"_s);
    EXPECT_EQ(reports, whole);
}

TEST_F(ArchiveResume, DoesAgainWhatHasNoReportWhenOneIsNeeded)
{
    run();
    settings.needsReports = true;
    settings.workerOptions = {{u"report"_s, true}};
    EXPECT_EQ(resumed(), u"dd"_s);
}

// Records are written before outputs are put in their place.
TEST_F(ArchiveResume, ContinuesAfterAnIncompleteJournal)
{
    settings.workers = 1;
    run();
    QFile::remove(folder.path(u"out/b.png"_s));
    const QString journal = u"out/.labelport-journal.jsonl"_s;
    const QByteArray lines = folder.read(journal);
    folder.write(journal, lines.left(lines.size() - 30));
    EXPECT_EQ(resumed(), u"rd"_s);
    EXPECT_EQ(resumed(), u"rr"_s);
}

// Whatever a power failure does to the journal, complete outputs are kept: they are either known
// and skipped, or treated as foreign and not overwritten.
TEST_F(ArchiveResume, KeepsCompleteOutputsWithoutAJournal)
{
    run();
    const QString journal = u"out/.labelport-journal.jsonl"_s;
    const QByteArray lines = folder.read(journal);
    const QByteArray before = output(u"a.png"_s);
    const qsizetype half = lines.size() / 2;
    const auto zeros = [](qsizetype count) { return QByteArray(count, '\0'); };
    const QList<QByteArray> damages{{},
                                    zeros(4096),
                                    lines.left(half),
                                    lines.left(half) + zeros(lines.size() - half),
                                    zeros(half) + lines.mid(half),
                                    lines.left(half) + lines,
                                    QByteArray(lines).replace("\n", ""),
                                    QByteArray(lines).replace("{", "[").replace("}", "]"),
                                    QByteArray(lines).replace("\"size\":", "\"size\":-1e300,\"\":"),
                                    lines + QByteArray("[").repeated(100'000)};
    for (const QByteArray& damage : damages) {
        SCOPED_TRACE(damage.left(60).toStdString());
        folder.write(journal, damage);
        EXPECT_EQ(resumed().remove(u'r').remove(u'f'), QString());
        EXPECT_EQ(output(u"a.png"_s), before);
        EXPECT_EQ(unexpectedFiles(), QStringList());
    }
}

TEST_F(ArchiveResume, CombinesTheWorkOfAllParts)
{
    for (int number = 1; number <= 2; ++number) {
        settings.shard = {number, 2};
        run();
    }
    settings.shard = {};
    EXPECT_EQ(resumed(), u"rr"_s);
}

// The folder with its journal may be moved.
TEST_F(ArchiveResume, WorksInAMovedFolder)
{
    run();
    ASSERT_TRUE(QDir().rename(folder.path(u"out"_s), folder.path(u"moved"_s)));
    settings.outputFolder = folder.path(u"moved"_s);
    EXPECT_EQ(resumed(), u"rr"_s);
}

TEST_F(ArchiveResume, FindsItsOutputsFromARelativeFolder)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    settings.outputFolder = u"out"_s;
    run();
    EXPECT_EQ(resumed(), u"rr"_s);
    QDir::setCurrent(before);
}

} // namespace

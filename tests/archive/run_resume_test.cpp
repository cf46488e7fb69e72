// An archive that is taken up again.

#include "tests/archive/run_fixture.h"

namespace {

class ArchiveResume : public RunFixture
{
protected:
    ArchiveResume()
    {
        input(QStringLiteral("a.cnv"), "pid");
        input(QStringLiteral("b.cnv"), "pid");
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
    const QByteArray before = output(QStringLiteral("a.png"));
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
    EXPECT_EQ(output(QStringLiteral("a.png")), before);
    EXPECT_EQ(progress.skipped, 2);
    EXPECT_EQ(progress.done, 2);
}

TEST_F(ArchiveResume, IsNoneUnlessItIsAsked)
{
    run();
    EXPECT_EQ(run().value(0), QStringLiteral("done a.cnv: a.png"));
}

TEST_F(ArchiveResume, DoesChangedFilesAgain)
{
    run();
    input(QStringLiteral("a.cnv"), "ok longer now");
    EXPECT_EQ(resumed(), QStringLiteral("dr"));
    EXPECT_EQ(output(QStringLiteral("a.png")), "ok longer now");
}

TEST_F(ArchiveResume, DoesFilesAgainThatLostAnOutput)
{
    run();
    QFile::remove(folder.path(QStringLiteral("out/b.png")));
    EXPECT_EQ(resumed(), QStringLiteral("rd"));
}

// What somebody changed is somebody's: it is neither taken for ours nor overwritten.
TEST_F(ArchiveResume, DoesNotOverwriteAnOutputThatWasChanged)
{
    run();
    folder.write(QStringLiteral("out/b.png"), "edited by a person");
    EXPECT_EQ(resumed(), QStringLiteral("rf"));
    EXPECT_EQ(output(QStringLiteral("b.png")), "edited by a person");
}

TEST_F(ArchiveResume, TriesWhatFailedAgain)
{
    input(QStringLiteral("b.cnv"), "fail");
    run();
    EXPECT_EQ(resumed(), QStringLiteral("rf"));
    input(QStringLiteral("b.cnv"), "ok");
    EXPECT_EQ(resumed(), QStringLiteral("rd"));
}

TEST_F(ArchiveResume, DoesAllAgainWithOtherOptionsOrAnotherVersion)
{
    run();
    settings.options = {{QStringLiteral("dpi"), 600}};
    EXPECT_EQ(resumed(), QStringLiteral("dd"));
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
    settings.version = QStringLiteral("1.1");
    EXPECT_EQ(resumed(), QStringLiteral("dd"));
}

TEST_F(ArchiveResume, MindsNotHowItIsDone)
{
    run();
    settings.manner = {{QStringLiteral("force"), true}};
    settings.workers = 1;
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
}

TEST_F(ArchiveResume, TellsTheReportsOfAllFiles)
{
    settings.needsReports = true;
    settings.manner = {{QStringLiteral("report"), true}};
    run();
    const QList<QJsonObject> whole = reports;
    EXPECT_EQ(whole.value(1).value(QLatin1String("file")).toString(), QStringLiteral("b.cnv"));
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
    EXPECT_EQ(reports, whole);
}

TEST_F(ArchiveResume, DoesAgainWhatHasNoReportWhenOneIsNeeded)
{
    run();
    settings.needsReports = true;
    settings.manner = {{QStringLiteral("report"), true}};
    EXPECT_EQ(resumed(), QStringLiteral("dd"));
}

// Records are written before outputs are put in their place.
TEST_F(ArchiveResume, GoesOnBehindATornJournal)
{
    settings.workers = 1;
    run();
    QFile::remove(folder.path(QStringLiteral("out/b.png")));
    const QString journal = QStringLiteral("out/.labelport-journal.jsonl");
    const QByteArray lines = folder.read(journal);
    folder.write(journal, lines.left(lines.size() - 30));
    EXPECT_EQ(resumed(), QStringLiteral("rd"));
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
}

// Whatever a power cut makes of the journal, outputs that stand whole go on standing as they
// are: either they are known and left, or they are nobody's and not overwritten.
TEST_F(ArchiveResume, KeepsWholeOutputsWhateverBecameOfTheJournal)
{
    run();
    const QString journal = QStringLiteral("out/.labelport-journal.jsonl");
    const QByteArray lines = folder.read(journal);
    const QByteArray before = output(QStringLiteral("a.png"));
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
        EXPECT_EQ(resumed().remove(QLatin1Char('r')).remove(QLatin1Char('f')), QString());
        EXPECT_EQ(output(QStringLiteral("a.png")), before);
        EXPECT_EQ(strays(), QStringList());
    }
}

TEST_F(ArchiveResume, KnowsTheWorkOfAllParts)
{
    for (int number = 1; number <= 2; ++number) {
        settings.shard = {number, 2};
        run();
    }
    settings.shard = {};
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
}

// The folder with its journal may be moved.
TEST_F(ArchiveResume, WorksInAMovedFolder)
{
    run();
    ASSERT_TRUE(
        QDir().rename(folder.path(QStringLiteral("out")), folder.path(QStringLiteral("moved"))));
    settings.outputFolder = folder.path(QStringLiteral("moved"));
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
}

TEST_F(ArchiveResume, FindsItsOutputsFromARelativeFolder)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    settings.outputFolder = QStringLiteral("out");
    run();
    EXPECT_EQ(resumed(), QStringLiteral("rr"));
    QDir::setCurrent(before);
}

} // namespace

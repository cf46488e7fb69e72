// The reports of a command, file by file.

#include "cli/archive_reports.h"
#include "cli/file_reports.h"
#include "tests/cli/program_fixture.h"

#include <QTemporaryDir>

namespace {

archive::Input input()
{
    return {QStringLiteral("/in/a.cnv"), QStringLiteral("a.cnv"), {}};
}

archive::FileResult resultWith(const migration::FileReport& report)
{
    archive::FileResult result;
    result.fate = archive::Fate::Done;
    result.report = migration::toJson(report);
    return result;
}

migration::FileReport imported()
{
    migration::FileReport report;
    report.file = QStringLiteral("a.cnv");
    report.status = migration::Status::Imported;
    return report;
}

TEST(FinalReport, HasTheOutputsThatStand)
{
    const archive::Input file = input();
    const archive::FileResult result = resultWith(imported());
    const migration::FileReport report =
        cli::finalReport({file, result, {QStringLiteral("out/a.png")}, false});
    EXPECT_EQ(report.status, migration::Status::Imported);
    EXPECT_EQ(report.outputs, words("out/a.png"));
}

// The worker could not know that somebody else's file would stand there.
TEST(FinalReport, FailsWhereAnOutputCouldNotBeWritten)
{
    const archive::Input file = input();
    archive::FileResult result = resultWith(imported());
    result.fate = archive::Fate::Failed;
    result.errors = words("one two");
    const migration::FileReport report = cli::finalReport({file, result, {}, false});
    EXPECT_EQ(report.status, migration::Status::Failed);
    EXPECT_EQ(report.error, QStringLiteral("one\ntwo"));
}

TEST(FinalReport, IsMadeForFilesThatNoWorkerReportedOn)
{
    const archive::Input file = input();
    const std::pair<archive::Fate, migration::Status> fates[] = {
        {archive::Fate::Crashed, migration::Status::Crashed},
        {archive::Fate::TimedOut, migration::Status::TimedOut},
        {archive::Fate::OutOfMemory, migration::Status::OutOfMemory},
        {archive::Fate::Failed, migration::Status::Failed},
    };
    for (const auto& [fate, status] : fates) {
        archive::FileResult result;
        result.fate = fate;
        result.errors = words("why");
        const migration::FileReport report = cli::finalReport({file, result, {}, false});
        EXPECT_EQ(report.status, status);
        EXPECT_EQ(report.file, QStringLiteral("a.cnv"));
        EXPECT_EQ(report.error, QStringLiteral("why"));
    }
}

TEST(ArchiveReports, CountLosses)
{
    const archive::Input file = input();
    migration::FileReport lossy = imported();
    lossy.lost = {{QStringLiteral("further-page"), QStringLiteral("text"), 1, true, {}}};
    const archive::FileResult whole = resultWith(imported());
    const archive::FileResult lost = resultWith(lossy);
    cli::ArchiveReports reports({}, true);
    reports.add({file, whole, {}, false});
    EXPECT_EQ(reports.losses(), 0);
    reports.add({file, lost, {}, false});
    EXPECT_EQ(reports.losses(), 1);
}

TEST(ArchiveReports, AreWrittenInTheEnd)
{
    const QTemporaryDir folder;
    const QString json = folder.filePath(QStringLiteral("new/r.json"));
    const QString html = folder.filePath(QStringLiteral("new/r.html"));
    const archive::Input file = input();
    const archive::FileResult result = resultWith(imported());
    {
        cli::ArchiveReports abandoned({json}, false);
        abandoned.add({file, result, {}, false});
    }
    EXPECT_FALSE(QFileInfo::exists(json));
    cli::ArchiveReports reports({json, html}, false);
    EXPECT_EQ(reports.obstacle(), QString());
    reports.add({file, result, {}, false});
    EXPECT_EQ(reports.finish(), QStringList());
    EXPECT_TRUE(QFileInfo::exists(json));
    EXPECT_TRUE(QFileInfo::exists(html));
    EXPECT_FALSE(cli::ArchiveReports({folder.path()}, false).obstacle().isEmpty());
}

} // namespace

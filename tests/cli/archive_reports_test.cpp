// The reports of a command, file by file.

#include "cli/archive_reports.h"
#include "cli/file_reports.h"
#include "tests/cli/program_fixture.h"

#include <QTemporaryDir>

namespace {
using namespace Qt::StringLiterals;

archive::Input input()
{
    return {u"/in/a.cnv"_s, u"a.cnv"_s, {}};
}

archive::FileResult resultWith(const migration::FileReport& report)
{
    archive::FileResult result;
    result.outcome = archive::FileOutcome::Done;
    result.report = migration::toJson(report);
    return result;
}

migration::FileReport imported()
{
    migration::FileReport report;
    report.file = u"a.cnv"_s;
    report.status = migration::Status::Imported;
    report.objects.inFile = 1;
    report.objects.imported = 1;
    return report;
}

TEST(FinalReport, ListsTheOutputsInPlace)
{
    const archive::Input file = input();
    const archive::FileResult result = resultWith(imported());
    const migration::FileReport report = cli::finalReport({file, result, {u"out/a.png"_s}, false});
    EXPECT_EQ(report.status, migration::Status::Imported);
    EXPECT_EQ(report.outputs, words("out/a.png"));
}

// The worker could not know that a foreign file would exist there.
TEST(FinalReport, FailsWhereAnOutputCouldNotBeWritten)
{
    const archive::Input file = input();
    archive::FileResult result = resultWith(imported());
    result.outcome = archive::FileOutcome::Failed;
    result.errors = words("one two");
    const migration::FileReport report = cli::finalReport({file, result, {}, false});
    EXPECT_EQ(report.status, migration::Status::Failed);
    EXPECT_EQ(report.error, u"one\ntwo"_s);
}

TEST(FinalReport, IsMadeForFilesThatNoWorkerReportedOn)
{
    const archive::Input file = input();
    const std::pair<archive::FileOutcome, migration::Status> cases[] = {
        {archive::FileOutcome::Crashed, migration::Status::Crashed},
        {archive::FileOutcome::TimedOut, migration::Status::TimedOut},
        {archive::FileOutcome::OutOfMemory, migration::Status::OutOfMemory},
        {archive::FileOutcome::Failed, migration::Status::Failed},
    };
    for (const auto& [outcome, status] : cases) {
        archive::FileResult result;
        result.outcome = outcome;
        result.errors = words("why");
        const migration::FileReport report = cli::finalReport({file, result, {}, false});
        EXPECT_EQ(report.status, status);
        EXPECT_EQ(report.file, u"a.cnv"_s);
        EXPECT_EQ(report.error, u"why"_s);
    }
}

TEST(ArchiveReports, CountLosses)
{
    const archive::Input file = input();
    migration::FileReport lossy = imported();
    lossy.lost = {{u"further-page"_s, u"text"_s, 1, true, {}}};
    const archive::FileResult whole = resultWith(imported());
    const archive::FileResult lost = resultWith(lossy);
    cli::ArchiveReports reports({}, true, false);
    reports.add({file, whole, {}, false});
    EXPECT_EQ(reports.summary().count(migration::Verdict::Lossy), 0);
    reports.add({file, lost, {}, false});
    EXPECT_EQ(reports.summary().count(migration::Verdict::Lossy), 1);
}

TEST(ArchiveReports, AreWrittenInTheEnd)
{
    const QTemporaryDir folder;
    const QString json = folder.filePath(u"new/r.json"_s);
    const QString html = folder.filePath(u"new/r.html"_s);
    const archive::Input file = input();
    const archive::FileResult result = resultWith(imported());
    {
        cli::ArchiveReports abandoned({json}, false, false);
        abandoned.add({file, result, {}, false});
    }
    EXPECT_FALSE(QFileInfo::exists(json));
    cli::ArchiveReports reports({json, html}, false, false);
    EXPECT_EQ(reports.firstProblem(), QString());
    reports.add({file, result, {}, false});
    EXPECT_EQ(reports.finish(), QStringList());
    EXPECT_TRUE(QFileInfo::exists(json));
    EXPECT_TRUE(QFileInfo::exists(html));
    EXPECT_FALSE(cli::ArchiveReports({folder.path()}, false, false).firstProblem().isEmpty());
}

} // namespace

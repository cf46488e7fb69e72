// The arguments of `labelport import` for whole archives.

#include "cli/import_options.h"
#include "tests/cli/program_fixture.h"

namespace {

cli::ImportOptions accepted(const char* line)
{
    const auto result = cli::parseImportArguments(words(line));
    if (const auto* options = std::get_if<cli::ImportOptions>(&result)) {
        return *options;
    }
    ADD_FAILURE() << "refused: " << line;
    return {};
}

QString refusal(const char* line)
{
    const auto result = cli::parseImportArguments(words(line));
    const auto* error = std::get_if<cli::UsageError>(&result);
    return error != nullptr ? error->message : QString();
}

TEST(ArchiveOptions, HaveDefaults)
{
    const cli::ImportOptions options = accepted("old");
    EXPECT_GE(options.workers, 1);
    EXPECT_EQ(options.limits.timeoutSeconds, 60);
    EXPECT_EQ(options.limits.memoryMiB, 4096);
    EXPECT_TRUE(options.shard.isWhole());
    EXPECT_FALSE(options.resume);
    EXPECT_FALSE(options.quiet);
    EXPECT_FALSE(options.failOnLoss);
    EXPECT_FALSE(options.job.report);
    EXPECT_FALSE(options.job.reader);
}

TEST(ArchiveOptions, AreTakenOver)
{
    const cli::ImportOptions options =
        accepted("old --jobs 3 --timeout 5 --memory-limit 512 --shard 2/8 --resume --quiet "
                 "--reader orvanta --base old --files-from list --null");
    EXPECT_EQ(options.workers, 3);
    EXPECT_EQ(options.limits.timeoutSeconds, 5);
    EXPECT_EQ(options.limits.memoryMiB, 512);
    EXPECT_EQ(options.shard.number, 2);
    EXPECT_EQ(options.shard.count, 8);
    EXPECT_TRUE(options.resume);
    EXPECT_TRUE(options.quiet);
    EXPECT_EQ(options.job.reader, ReaderKind::Orvanta);
    EXPECT_EQ(options.base, QStringLiteral("old"));
    EXPECT_EQ(options.filesFrom, QStringLiteral("list"));
    EXPECT_TRUE(options.isNullSeparated);
}

TEST(ArchiveOptions, TakeTargetsFromEveryTo)
{
    EXPECT_EQ(accepted("old --to png,svg --to label").targets,
              (QList<cli::Target>{cli::Target::Png, cli::Target::Svg, cli::Target::Label}));
}

TEST(ArchiveOptions, NeedAReportWhereLossesAreLookedFor)
{
    EXPECT_TRUE(accepted("old --fail-on-loss").job.report);
    const cli::ImportOptions options = accepted("old --report a.json --report b.HTML");
    EXPECT_TRUE(options.job.report);
    EXPECT_EQ(options.reports, words("a.json b.HTML"));
    EXPECT_TRUE(refusal("old --report a.txt").contains(QStringLiteral(".json or .html")));
}

TEST(ArchiveOptions, AreBounded)
{
    for (const char* line : {"old --jobs 0", "old --jobs 1025", "old --jobs x", "old --timeout -1",
                             "old --timeout 1.5", "old --memory-limit -1", "old --memory-limit 127",
                             "old --shard 0/2", "old --shard 3/2", "old --shard 1"}) {
        SCOPED_TRACE(line);
        EXPECT_TRUE(refusal(line).contains(QStringLiteral(" takes ")));
    }
    EXPECT_EQ(accepted("old --timeout 0 --memory-limit 0").limits.memoryMiB, 0);
}

TEST(ArchiveOptions, KnowTheReaders)
{
    EXPECT_EQ(accepted("- --reader tavrel").job.reader, ReaderKind::Tavrel);
    EXPECT_EQ(accepted("a --reader opendocument").job.reader, ReaderKind::OpenDocument);
    EXPECT_EQ(refusal("a --reader qmtx"),
              QStringLiteral("\"qmtx\" is no reader; --reader takes: tavrel, orvanta, "
                             "opendocument."));
}

TEST(ArchiveOptions, AskWhatStandardInputIs)
{
    EXPECT_TRUE(refusal("-").contains(QStringLiteral("--reader must say")));
    EXPECT_TRUE(refusal("- --reader tavrel --files-from -").contains(QStringLiteral("not both")));
    EXPECT_EQ(accepted("--files-from -").files, QStringList());
}

// Workers are told by JSON what the command line said.
TEST(JobOptions, SurviveTheirJson)
{
    for (const char* line : {"a", "a --dpi 72 --records 2-9 --force --reader tavrel",
                             "a --records all", "a --report a.json"}) {
        SCOPED_TRACE(line);
        const cli::JobOptions options = accepted(line).job;
        QJsonObject object = cli::decisiveOptions(options);
        const QJsonObject others = cli::otherOptions(options);
        for (auto entry = others.begin(); entry != others.end(); ++entry) {
            object.insert(entry.key(), entry.value());
        }
        const cli::JobOptions read = cli::jobOptionsFromJson(object);
        EXPECT_EQ(read.dpi, options.dpi);
        EXPECT_EQ(read.records.first, options.records.first);
        EXPECT_EQ(read.records.last, options.records.last);
        EXPECT_EQ(read.reader, options.reader);
        EXPECT_EQ(read.force, options.force);
        EXPECT_EQ(read.report, options.report);
        EXPECT_EQ(read.items, options.items);
    }
}

TEST(JobOptions, KnowWhatDecidesAboutOutputs)
{
    const auto decisive = [](const char* line) { return cli::decisiveOptions(accepted(line).job); };
    EXPECT_EQ(decisive("a"), decisive("a --force --report r.json --jobs 5"));
    for (const char* other :
         {"a --dpi 72", "a --records 2", "a --records all", "a --reader tavrel"}) {
        EXPECT_NE(decisive("a"), decisive(other)) << other;
    }
}

} // namespace

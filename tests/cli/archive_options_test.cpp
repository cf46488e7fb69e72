// The arguments of `labelport import` for whole archives.

#include "cli/import_options.h"
#include "tests/cli/arguments.h"

namespace {
using namespace Qt::StringLiterals;

TEST(ArchiveOptions, HaveDefaults)
{
    const cli::ImportOptions options = accepted("old");
    EXPECT_GE(options.workers, 1);
    EXPECT_EQ(options.limits.timeoutSeconds, 60);
    EXPECT_EQ(options.limits.memoryMiB, 4096);
    EXPECT_TRUE(options.shard.isEverything());
    EXPECT_FALSE(options.resume);
    EXPECT_FALSE(options.quiet);
    EXPECT_FALSE(options.failOnLoss);
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
    EXPECT_EQ(options.base, u"old"_s);
    EXPECT_EQ(options.filesFrom, u"list"_s);
    EXPECT_TRUE(options.isNullSeparated);
}

TEST(ArchiveOptions, TakeTargetsFromEveryTo)
{
    EXPECT_EQ(accepted("old --to png,svg --to label").targets,
              (QList<exporting::Target>{exporting::Target::Png, exporting::Target::Svg,
                                        exporting::Target::Label}));
}

TEST(ArchiveOptions, TakeSeveralReports)
{
    const cli::ImportOptions options = accepted("old --report a.json --report b.HTML");
    EXPECT_EQ(options.reports, words("a.json b.HTML"));
    EXPECT_TRUE(refusal("old --report a.txt").contains(u".json or .html"_s));
}

TEST(ArchiveOptions, AreBounded)
{
    for (const char* line : {"old --jobs 0", "old --jobs 1025", "old --jobs x", "old --timeout -1",
                             "old --timeout 1.5", "old --memory-limit -1", "old --memory-limit 127",
                             "old --shard 0/2", "old --shard 3/2", "old --shard 1"}) {
        SCOPED_TRACE(line);
        EXPECT_TRUE(refusal(line).contains(u" expects "_s));
    }
    EXPECT_EQ(accepted("old --timeout 0 --memory-limit 0").limits.memoryMiB, 0);
}

TEST(ArchiveOptions, KnowTheReaders)
{
    EXPECT_EQ(accepted("- --reader tavrel").job.reader, ReaderKind::Tavrel);
    EXPECT_EQ(accepted("a --reader opendocument").job.reader, ReaderKind::OpenDocument);
    EXPECT_EQ(refusal("a --reader qmtx"),
              u"Unknown reader \"qmtx\". Supported readers: tavrel, orvanta, opendocument."_s);
    EXPECT_TRUE(refusal("a --reader travel").endsWith(u"Did you mean \"tavrel\"?"_s));
}

TEST(ArchiveOptions, TakeStandardInputOnce)
{
    EXPECT_EQ(accepted("-").files, QStringList{u"-"_s});
    EXPECT_TRUE(refusal("- --files-from -").contains(u"not both"_s));
    EXPECT_EQ(accepted("--files-from -").files, QStringList());
}

TEST(ArchiveOptions, AreRefusedWithoutEffect)
{
    EXPECT_TRUE(refusal("a --null").contains(u"--null has no effect"_s));
    EXPECT_TRUE(refusal("a --base /nonexistent").contains(u"--base has no effect"_s));
    EXPECT_TRUE(refusal("a/b --base a").contains(u"--base has no effect"_s));
    EXPECT_TRUE(refusal("/ --base /").contains(u"--base has no effect"_s));
    EXPECT_TRUE(refusal("- --base .").contains(u"--base has no effect"_s));
    EXPECT_TRUE(refusal("--files-from a --files-from b").contains(u"only once"_s));
    EXPECT_EQ(accepted("a/b/c --base a").base, u"a"_s);
    EXPECT_EQ(accepted("--files-from a --base b").base, u"b"_s);
}

// Workers get the options as JSON.
TEST(JobOptions, SurviveTheirJson)
{
    for (const char* line :
         {"a", "a --dpi 72 --records 2-9 --force --reader tavrel", "a --records all",
          "a --report a.json", "a --to zpl --zpl-native --dpi 203",
          "a --to pdf --sheet A4 --first-position 3 --copies 2 --crop-marks"}) {
        SCOPED_TRACE(line);
        const cli::JobOptions options = accepted(line).job;
        QJsonObject object = cli::outputOptions(options);
        const QJsonObject others = cli::otherOptions(options);
        for (auto entry = others.begin(); entry != others.end(); ++entry) {
            object.insert(entry.key(), entry.value());
        }
        const cli::JobOptions read = cli::jobOptionsFromJson(object);
        EXPECT_EQ(read.dpi, options.dpi);
        EXPECT_EQ(read.records.first, options.records.first);
        EXPECT_EQ(read.records.last, options.records.last);
        EXPECT_EQ(read.reader, options.reader);
        EXPECT_EQ(read.sheet, options.sheet);
        EXPECT_EQ(read.firstPosition, options.firstPosition);
        EXPECT_EQ(read.copies, options.copies);
        EXPECT_EQ(read.zplNative, options.zplNative);
        EXPECT_EQ(read.cropMarks, options.cropMarks);
        EXPECT_EQ(read.force, options.force);
        EXPECT_EQ(read.items, options.items);
    }
}

TEST(JobOptions, SeparateThoseThatChangeOutputs)
{
    const auto decisive = [](const char* line) { return cli::outputOptions(accepted(line).job); };
    EXPECT_EQ(decisive("a"), decisive("a --force --report r.json --jobs 5"));
    for (const char* other :
         {"a --dpi 72", "a --records 2", "a --records all", "a --reader tavrel"}) {
        EXPECT_NE(decisive("a"), decisive(other)) << other;
    }
    EXPECT_EQ(decisive("a"), decisive("a --to pdf"));
    for (const char* other :
         {"a --to pdf --copies 2", "a --to pdf --sheet A4", "a --to pdf --sheet A5",
          "a --to pdf --sheet A4 --first-position 2", "a --to pdf --sheet A4 --crop-marks"}) {
        EXPECT_NE(decisive("a --to pdf --sheet L7160"), decisive(other)) << other;
    }
}

} // namespace

// The arguments of `labelport import`.

#include "cli/import_options.h"
#include "tests/cli/program_fixture.h"

#include <gtest/gtest.h>

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

TEST(ImportOptions, NeedAFile)
{
    EXPECT_EQ(refusal("--to png"), QStringLiteral("No file to import was given."));
}

TEST(ImportOptions, HaveDefaults)
{
    const cli::ImportOptions options = accepted("a.odg");
    EXPECT_EQ(options.files, QStringList{QStringLiteral("a.odg")});
    EXPECT_EQ(options.targets, QList<cli::Target>{cli::Target::Png});
    EXPECT_EQ(options.job.records.first, 1);
    EXPECT_EQ(options.job.dpi, 300);
    EXPECT_EQ(options.outputDir, QStringLiteral("."));
    EXPECT_FALSE(options.job.force);
}

TEST(ImportOptions, MayStandBeforeAndAfterFiles)
{
    const cli::ImportOptions options =
        accepted("--dpi 96 a.odg --output-dir out b.cnv --to png --force");
    EXPECT_EQ(options.files, (QStringList{QStringLiteral("a.odg"), QStringLiteral("b.cnv")}));
    EXPECT_EQ(options.job.dpi, 96);
    EXPECT_EQ(options.outputDir, QStringLiteral("out"));
    EXPECT_TRUE(options.job.force);
}

TEST(ImportOptions, TakeWhatFollowsTwoDashesAsFiles)
{
    EXPECT_EQ(accepted("-- --dpi").files, QStringList{QStringLiteral("--dpi")});
}

TEST(ImportOptions, TakeSeveralTargetsEachOnce)
{
    EXPECT_EQ(accepted("a.odg --to label,png,svg,pdf,png").targets,
              (QList<cli::Target>{cli::Target::Label, cli::Target::Png, cli::Target::Svg,
                                  cli::Target::Pdf}));
}

TEST(ImportOptions, TakeARangeOfRecords)
{
    const cli::RecordRange range = accepted("a.odg --records 3-12").job.records;
    EXPECT_EQ(range.first, 3);
    EXPECT_EQ(range.last, 12);
    EXPECT_TRUE(refusal("a.odg --records some").startsWith(QStringLiteral("--records takes")));
}

TEST(ImportOptions, RefuseAnUnknownTarget)
{
    EXPECT_TRUE(refusal("a.odg --to bmp").startsWith(QStringLiteral("\"bmp\" is nothing")));
    EXPECT_TRUE(refusal("a.odg --to png,").startsWith(QStringLiteral("\"\" is nothing")));
}

TEST(ImportOptions, RefuseAnUnknownOption)
{
    EXPECT_FALSE(refusal("a.odg --colour red").isEmpty());
}

TEST(ImportOptions, BoundTheResolution)
{
    EXPECT_EQ(accepted("a.odg --dpi 10").job.dpi, 10);
    EXPECT_EQ(accepted("a.odg --dpi 2400").job.dpi, 2400);
    for (const char* wrong : {"9", "2401", "0", "-300", "1e3", "300.0", "many", "99999999999"}) {
        SCOPED_TRACE(wrong);
        EXPECT_TRUE(refusal(("a.odg --dpi=" + std::string(wrong)).c_str())
                        .startsWith(QStringLiteral("--dpi takes a whole number")));
    }
}

TEST(ImportOptions, ShowHelp)
{
    for (const char* line : {"--help", "-h", "a.odg --help"}) {
        const auto result = cli::parseImportArguments(words(line));
        const auto* help = std::get_if<cli::HelpWanted>(&result);
        ASSERT_NE(help, nullptr) << line;
        EXPECT_TRUE(help->text.contains(QStringLiteral("--output-dir")));
    }
}

} // namespace

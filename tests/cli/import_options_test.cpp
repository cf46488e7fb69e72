// The arguments of `labelport import`.

#include "cli/import_options.h"
#include "cli/option_table.h"
#include "tests/cli/arguments.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
using namespace Qt::StringLiterals;

TEST(ImportOptions, NeedAFile)
{
    EXPECT_EQ(refusal("--to png"), u"No file to import."_s);
}

TEST(ImportOptions, HaveDefaults)
{
    const cli::ImportOptions options = accepted("a.odg");
    EXPECT_EQ(options.files, QStringList{u"a.odg"_s});
    EXPECT_EQ(options.targets, QList<exporting::Target>{exporting::Target::Png});
    EXPECT_EQ(options.job.records.first, 1);
    EXPECT_EQ(options.job.dpi, 300);
    EXPECT_EQ(options.outputDir, u"."_s);
    EXPECT_FALSE(options.job.force);
}

TEST(ImportOptions, MayPrecedeAndFollowFiles)
{
    const cli::ImportOptions options =
        accepted("--dpi 96 a.odg --output-dir out b.cnv --to png --force");
    EXPECT_EQ(options.files, (QStringList{u"a.odg"_s, u"b.cnv"_s}));
    EXPECT_EQ(options.job.dpi, 96);
    EXPECT_EQ(options.outputDir, u"out"_s);
    EXPECT_TRUE(options.job.force);
}

TEST(ImportOptions, TakeWhatFollowsTwoDashesAsFiles)
{
    EXPECT_EQ(accepted("-- --dpi").files, QStringList{u"--dpi"_s});
}

TEST(ImportOptions, TakeSeveralTargetsEachOnce)
{
    EXPECT_EQ(accepted("a.odg --to label,png,svg,pdf,png").targets,
              (QList<exporting::Target>{exporting::Target::Label, exporting::Target::Png,
                                        exporting::Target::Svg, exporting::Target::Pdf}));
}

TEST(ImportOptions, TakeARangeOfRecords)
{
    const cli::RecordRange range = accepted("a.odg --records 3-12").job.records;
    EXPECT_EQ(range.first, 3);
    EXPECT_EQ(range.last, 12);
    EXPECT_TRUE(refusal("a.odg --records some").startsWith(u"--records expects"_s));
}

TEST(ImportOptions, RefuseAnUnknownTarget)
{
    EXPECT_TRUE(
        refusal("a.odg --to bmp")
            .startsWith(
                u"Unknown target \"bmp\". Supported targets: png, svg, pdf, zpl, csv, label, glabels."_s));
    EXPECT_TRUE(refusal("a.odg --to png,").startsWith(u"Unknown target \"\"."_s));
}

TEST(ImportOptions, RefuseAnUnknownOption)
{
    EXPECT_EQ(refusal("a.odg --zebra red"), u"Unknown option \"--zebra\"."_s);
    EXPECT_EQ(refusal("a.odg --ouput-dir x"),
              u"Unknown option \"--ouput-dir\". Did you mean \"--output-dir\"?"_s);
}

TEST(ImportOptions, BoundTheResolution)
{
    for (const int dpi : {10, 2400}) {
        const std::string line = "a.odg --dpi " + std::to_string(dpi);
        EXPECT_EQ(accepted(line.c_str()).job.dpi, dpi);
    }
    for (const char* wrong : {"9", "2401", "0", "-300", "1e3", "300.0", "many", "99999999999"}) {
        SCOPED_TRACE(wrong);
        EXPECT_TRUE(refusal(("a.odg --dpi=" + std::string(wrong)).c_str())
                        .startsWith(u"--dpi expects a whole number"_s));
    }
}

// The help and the completion are constants; the table of targets is what the parser accepts.
TEST(ImportOptions, NameEveryTargetAndItsOptions)
{
    const cli::Command& command = cli::commandOf("import");
    const auto optionOf = [&command](QLatin1String name) {
        const auto found = std::find_if(
            command.options.begin(), command.options.end(),
            [&](const cli::Option& option) { return QLatin1String(option.name) == name; });
        return found != command.options.end() ? &*found : nullptr;
    };
    const cli::Option* to = optionOf("to"_L1);
    ASSERT_NE(to, nullptr);
    EXPECT_EQ(QLatin1String(to->words), exporting::targetNames().join(u' '));
    EXPECT_TRUE(QLatin1String(to->help).contains(exporting::targetNames().join(u", "_s)));
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        for (const exporting::TargetOption& option : entry.options) {
            const cli::Option* offered = optionOf(QLatin1String(option.name));
            ASSERT_NE(offered, nullptr) << option.name;
            EXPECT_EQ(offered->value == nullptr, option.kind == exporting::OptionKind::Switch);
        }
    }
}

TEST(ImportOptions, SelectPrinterDrawing)
{
    EXPECT_TRUE(accepted("a.odg --to zpl --zpl-native").job.zplNative);
    EXPECT_EQ(refusal("a.odg --zpl-native"), u"--zpl-native has no effect without --to zpl."_s);
}

TEST(ImportOptions, BoundTheResolutionOfLabelPrinters)
{
    EXPECT_EQ(accepted("a.odg --to zpl --dpi 203").job.dpi, 203);
    EXPECT_EQ(refusal("a.odg --to png,zpl --dpi 204"),
              u"--dpi expects one of 203, 300, 600 for the target zpl, not \"204\"."_s);
    EXPECT_EQ(accepted("a.odg --to svg,label --dpi 204").job.dpi, 204);
}

TEST(ImportOptions, ShowHelp)
{
    for (const char* line : {"--help", "-h", "a.odg --help"}) {
        testing::internal::CaptureStdout();
        const auto result = cli::parseImportArguments(words(line));
        const std::string help = testing::internal::GetCapturedStdout();
        ASSERT_TRUE(std::holds_alternative<int>(result)) << line;
        EXPECT_EQ(std::get<int>(result), 0);
        EXPECT_NE(help.find("--output-dir"), std::string::npos);
    }
}

TEST(ImportOptions, SelectASheet)
{
    const cli::JobOptions options =
        accepted("a.odg --to pdf --sheet l7160 --first-position 5 --copies 3 --crop-marks").job;
    EXPECT_EQ(options.sheet, u"l7160"_s);
    EXPECT_EQ(options.firstPosition, 4);
    EXPECT_EQ(options.copies, 3);
    EXPECT_TRUE(options.cropMarks);
}

TEST(ImportOptions, RefuseSheetsThatHaveNoEffect)
{
    EXPECT_EQ(refusal("a.odg --to pdf --sheet L716"),
              u"Unknown sheet \"L716\". \"labelport formats\" lists the sheets. Did you mean "
              "\"L7160\"?"_s);
    EXPECT_EQ(refusal("a.odg --sheet L7160"),
              u"--sheet has no effect without --to pdf or glabels."_s);
    EXPECT_EQ(refusal("a.odg --copies 2"), u"--copies has no effect without --to pdf or zpl."_s);
    EXPECT_EQ(refusal("a.odg --to pdf --crop-marks"),
              u"--crop-marks has no effect without --sheet."_s);
    EXPECT_EQ(refusal("a.odg --to pdf --first-position 2"),
              u"--first-position has no effect without --sheet."_s);
    EXPECT_TRUE(refusal("a.odg --to pdf --sheet A4 --first-position 0")
                    .startsWith(u"--first-position expects a whole number from 1"_s));
    EXPECT_TRUE(refusal("a.odg --to pdf --copies 1001").startsWith(u"--copies expects"_s));
}

} // namespace

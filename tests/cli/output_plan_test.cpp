// Where the outputs of a command go.

#include "apps/cli/output_plan.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

QStringList outputsOf(const QStringList& inputs)
{
    QStringList outputs;
    for (const cli::PlannedOutput& entry :
         cli::planOutputs(inputs, QStringLiteral("out"), QStringLiteral("png"))) {
        outputs.append(entry.contested ? QStringLiteral("contested") : entry.output);
    }
    return outputs;
}

TEST(OutputPlan, NamesAnOutputAfterItsInput)
{
    EXPECT_EQ(outputsOf({QStringLiteral("in/shelf.odg")}),
              QStringList{QStringLiteral("out/shelf.png")});
}

TEST(OutputPlan, ReplacesTheLastSuffixOnly)
{
    EXPECT_EQ(outputsOf({QStringLiteral("shelf.old.cnv")}),
              QStringList{QStringLiteral("out/shelf.old.png")});
}

TEST(OutputPlan, NamesAFileWithoutSuffix)
{
    EXPECT_EQ(outputsOf({QStringLiteral("label")}), QStringList{QStringLiteral("out/label.png")});
}

TEST(OutputPlan, KeepsTheWholeNameWhereTwoInputsWouldMeet)
{
    const QStringList inputs = {QStringLiteral("a.cnv"), QStringLiteral("a.odg"),
                                QStringLiteral("b.cnv")};
    EXPECT_EQ(outputsOf(inputs),
              (QStringList{QStringLiteral("out/a.cnv.png"), QStringLiteral("out/a.odg.png"),
                           QStringLiteral("out/b.png")}));
}

TEST(OutputPlan, DoesNotDependOnTheOrderOfInputs)
{
    QStringList inputs = {QStringLiteral("a.cnv"), QStringLiteral("a.odg"),
                          QStringLiteral("b.cnv")};
    QStringList forward = outputsOf(inputs);
    std::reverse(inputs.begin(), inputs.end());
    QStringList backward = outputsOf(inputs);
    std::reverse(backward.begin(), backward.end());
    EXPECT_EQ(forward, backward);
}

TEST(OutputPlan, WritesNeitherOfTwoFilesOfOneName)
{
    EXPECT_EQ(outputsOf({QStringLiteral("x/a.odg"), QStringLiteral("y/a.odg")}),
              (QStringList{QStringLiteral("contested"), QStringLiteral("contested")}));
}

// a.odg keeps its whole name because of a.cnv, and meets the input that is named so.
TEST(OutputPlan, SeesAMeetingThatAWholeNameBrings)
{
    EXPECT_EQ(
        outputsOf({QStringLiteral("a.odg"), QStringLiteral("a.cnv"), QStringLiteral("a.odg.qmtx")}),
        (QStringList{QStringLiteral("contested"), QStringLiteral("out/a.cnv.png"),
                     QStringLiteral("contested")}));
}

} // namespace

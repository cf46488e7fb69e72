// Where the outputs of a command go.

#include "archive/output_names.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
using namespace Qt::StringLiterals;

archive::Inputs inputsOf(const QStringList& names)
{
    archive::Inputs inputs;
    for (const QString& name : names) {
        // "folder>file" is a file that keeps a folder.
        const QStringList parts = name.split(u'>');
        inputs.append({parts.last(), parts.last(), parts.size() > 1 ? parts.first() : QString()});
    }
    return inputs;
}

QStringList outputsOf(const QStringList& names, const QStringList& suffixes = {u"png"_s})
{
    const archive::Inputs inputs = inputsOf(names);
    const archive::OutputNames plan(inputs, suffixes);
    QStringList outputs;
    for (qsizetype index = 0; index < inputs.size(); ++index) {
        outputs.append(plan.isConflicting(index) ? u"conflicting"_s
                                                 : plan.output(index, suffixes.first()));
    }
    return outputs;
}

QStringList list(const char* names)
{
    return QString::fromLatin1(names).split(u' ');
}

TEST(OutputNames, AreThoseOfTheInputs)
{
    EXPECT_EQ(outputsOf(list("in/shelf.odg")), list("shelf.png"));
}

TEST(OutputNames, ReplaceTheLastSuffixOnly)
{
    EXPECT_EQ(outputsOf(list("shelf.old.cnv")), list("shelf.old.png"));
}

TEST(OutputNames, CanDoWithoutASuffix)
{
    EXPECT_EQ(outputsOf(list("label")), list("label.png"));
}

TEST(OutputNames, KeepTheFoldersBelowAFolder)
{
    EXPECT_EQ(outputsOf(list("a/b>old/a/b/x.cnv a>old/a/x.cnv")), list("a/b/x.png a/x.png"));
}

TEST(OutputNames, AreCompleteWhereTwoInputsWouldConflict)
{
    EXPECT_EQ(outputsOf(list("a.cnv a.odg b.cnv")), list("a.cnv.png a.odg.png b.png"));
    EXPECT_EQ(outputsOf(list("f>a.cnv f>a.odg g>a.odg")), list("f/a.cnv.png f/a.odg.png g/a.png"));
}

TEST(OutputNames, DoNotDependOnTheOrderOfInputs)
{
    QStringList names = list("a.cnv a.odg a.odg.qmtx b.cnv x/b.cnv c.cnv");
    std::sort(names.begin(), names.end());
    const QStringList expected = outputsOf(names);
    QStringList order = names;
    while (std::next_permutation(order.begin(), order.end())) {
        const QStringList outputs = outputsOf(order);
        for (qsizetype index = 0; index < names.size(); ++index) {
            ASSERT_EQ(outputs.at(order.indexOf(names.at(index))), expected.at(index));
        }
    }
}

TEST(OutputNames, OfTwoFilesOfOneNameAreContested)
{
    EXPECT_EQ(outputsOf(list("x/a.odg y/a.odg")), list("conflicting conflicting"));
}

// a.odg keeps its whole name because of a.cnv, and meets the input that is named so.
TEST(OutputNames, FindAConflictThatACompleteNameCauses)
{
    EXPECT_EQ(outputsOf(list("a.odg a.cnv a.odg.qmtx")), list("conflicting a.cnv.png conflicting"));
}

// A folder "x.png" in the archive, beside "x.cnv".
TEST(OutputNames, AreNotThoseOfNeededFolders)
{
    EXPECT_EQ(outputsOf(list("x.cnv x.png>a.cnv")), list("conflicting x.png/a.png"));
    EXPECT_EQ(outputsOf(list("x.cnv x.png/y>a.cnv")), list("conflicting x.png/y/a.png"));
    EXPECT_EQ(outputsOf(list("x.cnv x.png>a.cnv"), list("svg label")), list("x.svg x.png/a.svg"));
    EXPECT_EQ(outputsOf(list("x.cnv x.png>a.cnv"), list("svg png")),
              list("conflicting x.png/a.svg"));
}

// "a.glabels.csv" is the table of "a.glabels", and would be the output of "a.glabels.cnv".
TEST(OutputNames, AreNotThoseOfTables)
{
    const QStringList suffixes = list("csv glabels glabels.csv");
    EXPECT_EQ(outputsOf(list("a.cnv a.glabels.cnv b.cnv"), suffixes),
              list("a.cnv.csv a.glabels.cnv.csv b.csv"));
    EXPECT_EQ(outputsOf(list("f>a.cnv g>a.glabels.cnv"), suffixes),
              list("f/a.csv g/a.glabels.csv"));
    EXPECT_EQ(outputsOf(list("a.glabels.cnv a.cnv a.glabels.odg"), suffixes),
              list("a.glabels.cnv.csv a.cnv.csv a.glabels.odg.csv"));
    EXPECT_EQ(outputsOf(list("a.cnv a.odg a.cnv.glabels.odg"), suffixes),
              list("conflicting a.odg.csv conflicting"));
    EXPECT_EQ(outputsOf(list("a.cnv a.glabels.cnv"), list("glabels glabels.csv")),
              list("a.glabels a.glabels.glabels"))
        << "no output is a \"csv\"";
    EXPECT_EQ(outputsOf(list("a.cnv a.glabels.csv>b.cnv"), suffixes),
              list("conflicting a.glabels.csv/b.csv"));
}

TEST(OutputNames, KeepPagesApartFromOtherOutputs)
{
    const auto markOf = [](const char* names) {
        const archive::Inputs inputs = inputsOf(list(names));
        return archive::OutputNames(inputs, {u"png"_s}).pageMark(0);
    };
    EXPECT_EQ(markOf("shelf.odg"), u"-"_s);
    EXPECT_EQ(markOf("shelf.odg rack-2.odg"), u"-"_s);
    EXPECT_EQ(markOf("shelf.odg shelf-2.odg"), u"-page-"_s);
    EXPECT_EQ(markOf("shelf.odg shelf-17.cnv shelf-page-3.odg"), u"-page-page-"_s);
    EXPECT_EQ(markOf("a>shelf.odg b>shelf-2.odg"), u"-"_s);
    const archive::Inputs inputs = inputsOf(list("shelf.odg shelf-2.glabels.cnv"));
    EXPECT_EQ(archive::OutputNames(inputs, list("csv glabels glabels.csv")).pageMark(0),
              u"-page-"_s);
}

} // namespace

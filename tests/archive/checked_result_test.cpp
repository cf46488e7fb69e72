// What a worker may claim to have written.

#include "archive/checked_result.h"
#include "tests/archive/test_folder.h"

namespace {
using namespace Qt::StringLiterals;

class CheckedResult : public ::testing::Test
{
protected:
    [[nodiscard]] bool check(const QString& staged, const QString& output)
    {
        result.files = {{staged, {output, 1, 1}}};
        return archive::checkFiles(
            result, folder.path(u"slot"_s),
            {{u"png"_s, u"out/asset.png"_s}, {u"glabels"_s, u"out/asset.glabels"_s}});
    }

    TestFolder folder;
    const QString good = folder.write(u"slot/1.png"_s, "picture");
    archive::FileResult result;
};

TEST_F(CheckedResult, PassesAPlannedOutputAndMeasuresIt)
{
    ASSERT_TRUE(check(good, u"out/asset.png"_s));
    archive::FileStamp stamp = *archive::stampOf(good);
    stamp.path = u"out/asset.png"_s;
    EXPECT_EQ(result.files.first().output, stamp);
}

TEST_F(CheckedResult, PassesTheRecordsOfASeries)
{
    EXPECT_TRUE(check(good, u"out/asset-0007.png"_s));
    EXPECT_TRUE(check(good, u"out/asset-123456.png"_s));
}

TEST_F(CheckedResult, PassesTheTableOfRecordsOfALabelForGlabels)
{
    EXPECT_TRUE(check(good, u"out/asset.glabels.csv"_s));
    EXPECT_TRUE(check(good, u"out/asset-2.glabels.csv"_s));
    EXPECT_FALSE(check(good, u"out/asset.png.csv"_s));
    EXPECT_FALSE(check(good, u"out/other.glabels.csv"_s));
    EXPECT_FALSE(check(good, u"out/asset.glabels.csv.csv"_s));
}

TEST_F(CheckedResult, RefusesOtherOutputs)
{
    for (const char* output : {"out/other.png", "out/asset-.png", "out/asset-1a.png",
                               "out/asset-/../x.png", "out/asset.svg", "asset.png",
                               "/etc/asset.png", "out/asset-1.png/..", "out/x/asset.png"}) {
        EXPECT_FALSE(check(good, QString::fromLatin1(output))) << output;
    }
}

TEST_F(CheckedResult, RefusesFilesThatAreNotInTheStagingFolder)
{
    const QString output = u"out/asset.png"_s;
    EXPECT_FALSE(check(folder.write(u"secret"_s), output));
    EXPECT_FALSE(check(folder.path(u"slot/../secret"_s), output));
    EXPECT_FALSE(check(folder.path(u"slot/missing.png"_s), output));
    EXPECT_FALSE(check(folder.path(u"slot"_s), output));
    EXPECT_FALSE(check(folder.path(u"slot/.."_s), output));
    folder.write(u"slot/below/1.png"_s);
    EXPECT_FALSE(check(folder.path(u"slot/below/1.png"_s), output));
    EXPECT_FALSE(check(folder.path(u"slot/below"_s), output));
    ASSERT_TRUE(QFile::link(folder.path(u"secret"_s), folder.path(u"slot/link.png"_s)));
    EXPECT_FALSE(check(folder.path(u"slot/link.png"_s), output));
}

} // namespace

// Putting a written file in its place.

#include "archive/publish.h"
#include "console/file_name.h"
#include "tests/archive/test_folder.h"

namespace {
using namespace Qt::StringLiterals;

class Publish : public ::testing::Test
{
protected:
    archive::StagedFile staged(const QString& output)
    {
        const QString path = folder.write(u"staging/1.png"_s, "new");
        archive::FileStamp stamp = *archive::stampOf(path);
        stamp.path = folder.path(output);
        return {path, stamp};
    }

    TestFolder folder;
};

TEST_F(Publish, MovesAFileAndMakesItsFolder)
{
    const archive::StagedFile file = staged(u"out/a/b.png"_s);
    EXPECT_EQ(archive::publish(file, false), QString());
    EXPECT_EQ(folder.read(u"out/a/b.png"_s), "new");
    EXPECT_FALSE(folder.has(u"staging/1.png"_s));
    EXPECT_EQ(archive::stampOf(file.output.path), file.output) << "it is not known again";
}

TEST_F(Publish, ReplacesOnlyWhatMayBeReplaced)
{
    folder.write(u"b.png"_s, "the user's");
    const QString error = archive::publish(staged(u"b.png"_s), false);
    EXPECT_TRUE(error.contains(u"--force"_s)) << qPrintable(error);
    EXPECT_EQ(folder.read(u"b.png"_s), "the user's");
    EXPECT_EQ(archive::publish(staged(u"b.png"_s), true), QString());
    EXPECT_EQ(folder.read(u"b.png"_s), "new");
}

TEST_F(Publish, SaysWhyItFailed)
{
    folder.write(u"file"_s);
    EXPECT_TRUE(
        archive::publish(staged(u"file/b.png"_s), false).contains(u"Cannot create folder"_s));
    QDir().mkpath(folder.path(u"taken.png"_s));
    for (const bool mayReplace : {false, true}) {
        EXPECT_TRUE(archive::publish(staged(u"taken.png"_s), mayReplace)
                        .contains(u"a folder of that name exists"_s));
    }
}

// Most systems have a second file system in /dev/shm.
TEST_F(Publish, CopiesBetweenFileSystems)
{
    QTemporaryDir memory(u"/dev/shm/labelport-XXXXXX"_s);
    if (!memory.isValid()) {
        GTEST_SKIP() << "SKIPPED: there is no /dev/shm to write to";
    }
    archive::StagedFile file = staged(u"b.png"_s);
    file.output.path = memory.filePath(u"b.png"_s);
    EXPECT_EQ(archive::publish(file, false), QString());
    EXPECT_EQ(archive::stampOf(file.output.path), file.output);
    EXPECT_TRUE(archive::publish(file, false).contains(u"--force"_s));
}

TEST_F(Publish, TakesNamesThatAreNotUtf8)
{
    const QString output = console::fileNameFromBytes("Gr\xF6\xDF"
                                                      "e/b\xFC.png");
    const archive::StagedFile file = staged(output);
    EXPECT_EQ(archive::publish(file, false), QString());
    EXPECT_EQ(archive::stampOf(file.output.path), file.output);
    EXPECT_TRUE(archive::publish(staged(output), false).contains(u"--force"_s));
}

} // namespace

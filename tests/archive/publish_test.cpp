// Putting a written file in its place.

#include "archive/publish.h"
#include "tests/archive/test_folder.h"

namespace {

class Publish : public ::testing::Test
{
protected:
    archive::StagedFile staged(const QString& output, bool mayReplace)
    {
        const QString path = folder.write(QStringLiteral("staging/1.png"), "new");
        archive::FileStamp stamp = *archive::stampOf(path);
        stamp.path = folder.path(output);
        return {path, stamp, mayReplace};
    }

    TestFolder folder;
};

TEST_F(Publish, MovesAFileAndMakesItsFolder)
{
    const archive::StagedFile file = staged(QStringLiteral("out/a/b.png"), false);
    EXPECT_EQ(archive::publish(file), QString());
    EXPECT_EQ(folder.read(QStringLiteral("out/a/b.png")), "new");
    EXPECT_FALSE(folder.has(QStringLiteral("staging/1.png")));
    EXPECT_EQ(archive::stampOf(file.output.path), file.output) << "it is not known again";
}

TEST_F(Publish, ReplacesOnlyWhatMayBeReplaced)
{
    folder.write(QStringLiteral("b.png"), "somebody's");
    const QString error = archive::publish(staged(QStringLiteral("b.png"), false));
    EXPECT_TRUE(error.contains(QStringLiteral("--force"))) << qPrintable(error);
    EXPECT_EQ(folder.read(QStringLiteral("b.png")), "somebody's");
    EXPECT_EQ(archive::publish(staged(QStringLiteral("b.png"), true)), QString());
    EXPECT_EQ(folder.read(QStringLiteral("b.png")), "new");
}

TEST_F(Publish, SaysWhyItFailed)
{
    folder.write(QStringLiteral("file"));
    EXPECT_TRUE(archive::publish(staged(QStringLiteral("file/b.png"), false))
                    .contains(QStringLiteral("folder cannot be made")));
    QDir().mkpath(folder.path(QStringLiteral("taken.png")));
    EXPECT_FALSE(archive::publish(staged(QStringLiteral("taken.png"), true)).isEmpty());
}

// Most systems have a second file system in /dev/shm.
TEST_F(Publish, CopiesBetweenFileSystems)
{
    QTemporaryDir memory(QStringLiteral("/dev/shm/labelport-XXXXXX"));
    if (!memory.isValid()) {
        GTEST_SKIP() << "SKIPPED: there is no /dev/shm to write to";
    }
    archive::StagedFile file = staged(QStringLiteral("b.png"), false);
    file.output.path = memory.filePath(QStringLiteral("b.png"));
    EXPECT_EQ(archive::publish(file), QString());
    EXPECT_EQ(archive::stampOf(file.output.path), file.output);
    EXPECT_TRUE(archive::publish(file).contains(QStringLiteral("--force")));
}

} // namespace

// The hidden folder in which outputs are made.

#include "archive/staging_area.h"
#include "tests/archive/test_folder.h"

#include <QDateTime>

#include <sys/stat.h>

namespace {
using namespace Qt::StringLiterals;

QStringList stagingFolders(const TestFolder& folder)
{
    return QDir(folder.path()).entryList({u".labelport-work-*"_s}, QDir::Dirs | QDir::Hidden);
}

TEST(StagingArea, GoesWithItsValue)
{
    const TestFolder folder;
    {
        archive::StagingArea staging;
        EXPECT_EQ(staging.open(folder.path(u"out"_s)), QString());
        EXPECT_TRUE(QFileInfo(staging.path()).isDir());
        EXPECT_TRUE(QFileInfo(staging.emptySlot(3)).isDir());
    }
    EXPECT_TRUE(QDir(folder.path(u"out"_s))
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(StagingArea, EmptiesASlotThatIsUsedAgain)
{
    const TestFolder folder;
    archive::StagingArea staging;
    ASSERT_EQ(staging.open(folder.path()), QString());
    const QString slot = staging.emptySlot(0);
    QFile left(QDir(slot).filePath(u"1.png.XYZ"_s));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    EXPECT_EQ(staging.emptySlot(0), slot);
    EXPECT_TRUE(QDir(slot).isEmpty());
}

// A worker in a sandbox may write to the folder that it was given, not to a new one of that name.
TEST(StagingArea, KeepsTheFolderOfASlot)
{
    const TestFolder folder;
    archive::StagingArea staging;
    ASSERT_EQ(staging.open(folder.path()), QString());
    const auto identity = [&] {
        struct stat status = {};
        EXPECT_EQ(::stat(QFile::encodeName(staging.emptySlot(0)).constData(), &status), 0);
        return status.st_ino;
    };
    const auto first = identity();
    folder.write(QFileInfo(staging.path()).fileName() + u"/0/left.png"_s);
    EXPECT_EQ(identity(), first);
}

TEST(StagingArea, RemovesWhatAKilledCommandLeft)
{
    const TestFolder folder;
    folder.write(u".labelport-work-dead/lock"_s);
    folder.write(u".labelport-work-dead/0/1.png"_s);
    archive::StagingArea staging;
    ASSERT_EQ(staging.open(folder.path()), QString());
    EXPECT_EQ(stagingFolders(folder), QStringList{QFileInfo(staging.path()).fileName()});
}

TEST(StagingArea, LeavesThoseOfOtherCommandsAlone)
{
    const TestFolder folder;
    archive::StagingArea first;
    archive::StagingArea second;
    ASSERT_EQ(first.open(folder.path()), QString());
    ASSERT_EQ(second.open(folder.path()), QString());
    EXPECT_EQ(stagingFolders(folder).size(), 2);
    // One that was made this moment, and has no lock yet.
    QDir(folder.path()).mkpath(u".labelport-work-new"_s);
    archive::StagingArea third;
    ASSERT_EQ(third.open(folder.path()), QString());
    EXPECT_EQ(stagingFolders(folder).size(), 4);
}

TEST(StagingArea, ReportsWhyItCannotBeCreated)
{
    const TestFolder folder;
    folder.write(u"file"_s);
    archive::StagingArea staging;
    EXPECT_TRUE(staging.open(folder.path(u"file/below"_s)).contains(u"Cannot create folder"_s));
    EXPECT_TRUE(archive::StagingArea().open(u"/proc"_s).contains(u"Cannot write to \"/proc\""_s));
}

} // namespace

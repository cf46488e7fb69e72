// What a confined process may read, from the files of a command.

#include "sandbox/readable_paths.h"
#include "tests/archive/test_folder.h"

namespace {
using namespace Qt::StringLiterals;
using sandbox::ReadablePaths;

class ReadablePathsTest : public ::testing::Test
{
protected:
    [[nodiscard]] QString real(const QString& name) const
    {
        return QFileInfo(folder.path(name)).canonicalFilePath();
    }

    TestFolder folder;
    ReadablePaths readable;
};

TEST_F(ReadablePathsTest, AreTheFilesThemselves)
{
    readable.addFile(folder.write(u"b/two.cnv"_s));
    readable.addFile(folder.write(u"a/one.cnv"_s));
    readable.addFile(folder.path(u"a/../a/one.cnv"_s));
    readable.addFile(folder.path(u"missing.cnv"_s));
    EXPECT_EQ(readable.paths(), (QStringList{real(u"a/one.cnv"_s), real(u"b/two.cnv"_s)}));
}

TEST_F(ReadablePathsTest, AreAFolderForAllThatIsInIt)
{
    folder.write(u"a/b/one.cnv"_s);
    readable.addFile(folder.path(u"a/b/one.cnv"_s));
    readable.addFolder(folder.path(u"a/b"_s));
    readable.addFolder(folder.path(u"a"_s));
    EXPECT_EQ(readable.paths(), QStringList{real(u"a"_s)});
}

TEST_F(ReadablePathsTest, FollowLinks)
{
    folder.write(u"store/one.cnv"_s);
    folder.write(u"in/two.cnv"_s);
    ASSERT_TRUE(QFile::link(folder.path(u"store/one.cnv"_s), folder.path(u"in/link.cnv"_s)));
    ASSERT_TRUE(QFile::link(folder.path(u"nowhere"_s), folder.path(u"in/dead.cnv"_s)));
    ASSERT_TRUE(QFile::link(folder.path(u"store"_s), folder.path(u"shelf"_s)));
    readable.addFile(folder.path(u"in/link.cnv"_s));
    readable.addFile(folder.path(u"in/dead.cnv"_s));
    readable.addFile(folder.path(u"shelf/one.cnv"_s));
    EXPECT_EQ(readable.paths(), QStringList{real(u"store/one.cnv"_s)});
}

// The number of rules decides what the start of a worker takes.
TEST_F(ReadablePathsTest, BecomeFoldersWhenThereAreMany)
{
    for (qsizetype file = 0; file < ReadablePaths::MaximumPaths; ++file) {
        readable.addFile(folder.write(u"a/%1.cnv"_s.arg(file)));
    }
    EXPECT_EQ(readable.paths().size(), ReadablePaths::MaximumPaths);
    readable.addFile(folder.write(u"a/more.cnv"_s));
    EXPECT_EQ(readable.paths(), QStringList{real(u"a"_s)});
}

TEST_F(ReadablePathsTest, BecomeTheFoldersAboveWhenThereAreManyFolders)
{
    for (qsizetype file = 0; file <= ReadablePaths::MaximumPaths; ++file) {
        readable.addFile(folder.write(u"a/%1/one.cnv"_s.arg(file)));
    }
    EXPECT_EQ(readable.paths(), QStringList{real(u"a"_s)});
}

} // namespace

// The files of a command.

#include "archive/input_list.h"
#include "tests/archive/test_folder.h"

#include <QBuffer>

namespace {

class InputListTest : public ::testing::Test
{
protected:
    InputListTest() { request.suffixes = {QStringLiteral("cnv"), QStringLiteral("odg")}; }

    /// Shown names with the folders they keep, "a/b>x.cnv", relative to the test's folder.
    QStringList listed(const QStringList& arguments)
    {
        request.arguments.clear();
        for (const QString& argument : arguments) {
            request.arguments.append(folder.path(argument));
        }
        result = archive::listInputs(request);
        QStringList names;
        for (const archive::Input& input : result.inputs) {
            const QString name = QDir(folder.path()).relativeFilePath(input.shownName);
            names.append(input.folder.isEmpty() ? name : input.folder + QLatin1Char('>') + name);
        }
        return names;
    }

    static QStringList list(const char* names)
    {
        return QString::fromLatin1(names).split(QLatin1Char(' '));
    }

    TestFolder folder;
    archive::InputRequest request;
    archive::InputList result;
};

TEST_F(InputListTest, TakesNamedFilesWhateverTheirNames)
{
    folder.write(QStringLiteral("a.txt"));
    EXPECT_EQ(listed(list("a.txt missing.cnv")), list("a.txt missing.cnv"));
    EXPECT_FALSE(result.searched);
}

TEST_F(InputListTest, SearchesFoldersBySuffix)
{
    for (const char* name : {"old/x.cnv", "old/a/y.ODG", "old/a/b/z.old.cnv", "old/readme.txt",
                             "old/cnv", "old/a/cnv.bak"}) {
        folder.write(QString::fromLatin1(name));
    }
    EXPECT_EQ(listed(list("old")), list("a/b>old/a/b/z.old.cnv a>old/a/y.ODG old/x.cnv"));
    EXPECT_EQ(result.skipped, 3);
    EXPECT_TRUE(result.searched);
}

TEST_F(InputListTest, LeavesOutWhatIsHidden)
{
    for (const char* name : {"old/.x.cnv", "old/.git/y.cnv", "old/z.cnv"}) {
        folder.write(QString::fromLatin1(name));
    }
    EXPECT_EQ(listed(list("old")), list("old/z.cnv"));
}

TEST_F(InputListTest, DoesNotFollowLinksToFolders)
{
    folder.write(QStringLiteral("old/a/x.cnv"));
    folder.write(QStringLiteral("real.cnv"));
    QFile::link(folder.path(QStringLiteral("old")), folder.path(QStringLiteral("old/a/loop")));
    QFile::link(folder.path(QStringLiteral("real.cnv")),
                folder.path(QStringLiteral("old/link.cnv")));
    EXPECT_EQ(listed(list("old")), list("a>old/a/x.cnv old/link.cnv"));
}

TEST_F(InputListTest, NamesEachFileOnceWhateverTheOrder)
{
    folder.write(QStringLiteral("old/a/x.cnv"));
    folder.write(QStringLiteral("old/y.cnv"));
    const QStringList expected = list("a>old/a/x.cnv old/y.cnv");
    EXPECT_EQ(listed(list("old old/a old/y.cnv old/a/x.cnv")), expected);
    EXPECT_EQ(listed(list("old/a/x.cnv old/a old/../old/y.cnv old")), expected);
}

TEST_F(InputListTest, KeepsSubfoldersBelowABase)
{
    request.base = folder.path(QStringLiteral("old"));
    EXPECT_EQ(listed(list("old/a/b/x.cnv old/y.cnv older/z.cnv")),
              list("a/b>old/a/b/x.cnv old/y.cnv older/z.cnv"));
}

TEST_F(InputListTest, DoesNotSearchTheOutputFolder)
{
    folder.write(QStringLiteral("old/x.cnv"));
    folder.write(QStringLiteral("old/out/x.cnv"));
    request.outputFolder = folder.path(QStringLiteral("old/out"));
    EXPECT_EQ(listed(list("old")), list("old/x.cnv"));
    // Unless it is what is to be searched.
    EXPECT_EQ(listed(list("old/out")), list("old/out/x.cnv"));
}

TEST_F(InputListTest, LeavesOutWhatWasMadeHere)
{
    folder.write(QStringLiteral("old/x.cnv"));
    folder.write(QStringLiteral("old/made.odg"));
    request.isOutput = [](const QString& path) {
        return path.endsWith(QStringLiteral("made.odg"));
    };
    EXPECT_EQ(listed(list("old")), list("old/x.cnv"));
}

TEST_F(InputListTest, TellsOfFoldersThatItCannotSearch)
{
    folder.write(QStringLiteral("old/closed/x.cnv"));
    const QString closed = folder.path(QStringLiteral("old/closed"));
    QFile::setPermissions(closed, {});
    if (QFileInfo(closed).isReadable()) {
        GTEST_SKIP() << "SKIPPED: nothing is closed to this user";
    }
    listed(list("old"));
    EXPECT_EQ(result.unreadable, QStringList{closed});
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QStringList namesIn(QByteArray bytes, bool isNullSeparated = false)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    const QStringList names = archive::readNames(buffer, isNullSeparated, error);
    return error.isEmpty() ? names : QStringList{QStringLiteral("error")};
}

TEST(InputNames, StandOnLines)
{
    EXPECT_EQ(
        namesIn("a.cnv\n\nb c.cnv\r\nd.cnv"),
        (QStringList{QStringLiteral("a.cnv"), QStringLiteral("b c.cnv"), QStringLiteral("d.cnv")}));
    EXPECT_EQ(namesIn(""), QStringList());
}

TEST(InputNames, StandBetweenNuls)
{
    const QStringList expected = {QStringLiteral("a\n.cnv"), QStringLiteral("b.cnv")};
    EXPECT_EQ(namesIn(QByteArray("a\n.cnv\0b.cnv\0", 13)), expected);
    EXPECT_EQ(namesIn(QByteArray("a\n.cnv\0b.cnv", 12), true), expected);
    EXPECT_EQ(namesIn("a\n.cnv", true), QStringList{QStringLiteral("a\n.cnv")});
}

TEST(InputNames, OfAnyNumberAreRead)
{
    QByteArray bytes;
    for (int number = 0; number < 20'000; ++number) {
        bytes += "folder/label" + QByteArray::number(number) + ".cnv\n";
    }
    const QStringList names = namesIn(bytes);
    EXPECT_EQ(names.size(), 20'000);
    EXPECT_EQ(names.last(), QStringLiteral("folder/label19999.cnv"));
}

TEST(InputNames, AreNotOfAnyLength)
{
    const QStringList error{QStringLiteral("error")};
    for (const char* end : {"", "\n", "\r\n", "\nb.cnv\n"}) {
        SCOPED_TRACE(end);
        const QByteArray longest(archive::MaximumNameBytes, 'x');
        EXPECT_EQ(namesIn(longest + end).value(0).size(), longest.size());
        EXPECT_EQ(namesIn("a.cnv\n" + longest + end).value(1).size(), longest.size());
        EXPECT_EQ(namesIn(longest + "x" + end), error);
        EXPECT_EQ(namesIn("a.cnv\n" + longest + "x" + end), error);
    }
    EXPECT_EQ(namesIn(QByteArray(1'000'000, 'x')), error);
}

// A list of a gigabyte would keep the test busy, so the bound is a parameter.
TEST(InputNames, AreNotOfAnySum)
{
    for (const qsizetype names : {10, 30'000}) {
        QByteArray list = QByteArray("a.cnv\n").repeated(names);
        QBuffer buffer(&list);
        buffer.open(QIODevice::ReadOnly);
        QString error;
        EXPECT_EQ(archive::readNames(buffer, false, error, list.size()).size(), names);
        EXPECT_EQ(error, QString());
        buffer.seek(0);
        EXPECT_TRUE(archive::readNames(buffer, false, error, list.size() - 1).isEmpty());
        EXPECT_NE(error, QString());
    }
}

} // namespace

// The files of a command.

#include "archive/file_stamp.h"
#include "archive/input_list.h"
#include "console/file_name.h"
#include "tests/archive/test_folder.h"

#include <QBuffer>

#include <fstream>

#include <sys/stat.h>

namespace {
using namespace Qt::StringLiterals;

class InputListTest : public ::testing::Test
{
protected:
    InputListTest() { request.suffixes = {u"cnv"_s, u"odg"_s}; }

    /// Shown names with the folders they keep, "a/b>x.cnv", relative to the test's folder.
    QStringList listed(const QStringList& arguments)
    {
        request.arguments.clear();
        for (const QString& argument : arguments) {
            request.arguments.append(folder.path(argument));
        }
        result = archive::listInputs(request);
        QStringList names;
        for (qsizetype index = 0; index < result.inputs.size(); ++index) {
            const archive::Input input = result.inputs.at(index);
            const QString name = QDir(folder.path()).relativeFilePath(input.shownName);
            names.append(input.folder.isEmpty() ? name : input.folder + u'>' + name);
        }
        return names;
    }

    static QStringList list(const char* names) { return QString::fromLatin1(names).split(u' '); }

    TestFolder folder;
    archive::InputRequest request;
    archive::InputList result;
};

TEST_F(InputListTest, TakesNamedFilesWhateverTheirNames)
{
    folder.write(u"a.txt"_s);
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
    folder.write(u"old/a/x.cnv"_s);
    folder.write(u"real.cnv"_s);
    QFile::link(folder.path(u"old"_s), folder.path(u"old/a/loop"_s));
    QFile::link(folder.path(u"real.cnv"_s), folder.path(u"old/link.cnv"_s));
    EXPECT_EQ(listed(list("old")), list("a>old/a/x.cnv old/link.cnv"));
}

TEST_F(InputListTest, NamesEachFileOnceWhateverTheOrder)
{
    folder.write(u"old/a/x.cnv"_s);
    folder.write(u"old/y.cnv"_s);
    const QStringList expected = list("a>old/a/x.cnv old/y.cnv");
    EXPECT_EQ(listed(list("old old/a old/y.cnv old/a/x.cnv")), expected);
    EXPECT_EQ(listed(list("old/a/x.cnv old/a old/../old/y.cnv old")), expected);
}

TEST_F(InputListTest, KeepsSubfoldersBelowABase)
{
    request.base = folder.path(u"old"_s);
    EXPECT_EQ(listed(list("old/a/b/x.cnv old/y.cnv older/z.cnv")),
              list("a/b>old/a/b/x.cnv old/y.cnv older/z.cnv"));
}

TEST_F(InputListTest, DoesNotSearchTheOutputFolder)
{
    folder.write(u"old/x.cnv"_s);
    folder.write(u"old/out/x.cnv"_s);
    request.outputFolder = folder.path(u"old/out"_s);
    EXPECT_EQ(listed(list("old")), list("old/x.cnv"));
    // Unless it is the folder to search.
    EXPECT_EQ(listed(list("old/out")), list("old/out/x.cnv"));
}

TEST_F(InputListTest, LeavesOutOutputsOfOtherInputs)
{
    folder.write(u"old/x.cnv"_s);
    const QString made = folder.write(u"old/made.odg"_s);
    QString source = folder.path(u"old/x.cnv"_s);
    request.outputSuffix = u".odg"_s;
    request.visitOutputs = [&](const archive::OutputVisitor& visit) { visit(made, source); };
    EXPECT_EQ(listed(list("old")), list("old/x.cnv"));
    EXPECT_EQ(listed(list("old old/made.odg")), list("old/made.odg old/x.cnv")) << "it is named";
    source = folder.path(u"elsewhere/x.cnv"_s);
    EXPECT_EQ(listed(list("old")), list("old/made.odg old/x.cnv"));
    source = made;
    EXPECT_EQ(listed(list("old")), list("old/made.odg old/x.cnv"));
}

TEST_F(InputListTest, ReportsFoldersThatItCannotSearch)
{
    folder.write(u"old/closed/x.cnv"_s);
    const QString closed = folder.path(u"old/closed"_s);
    QFile::setPermissions(closed, {});
    if (QFileInfo(closed).isReadable()) {
        GTEST_SKIP() << "SKIPPED: nothing is closed to this user";
    }
    listed(list("old"));
    ASSERT_EQ(result.unreadable.size(), 1);
    EXPECT_EQ(result.unreadable.first().path, closed);
    EXPECT_EQ(result.unreadable.first().reason, u"Permission denied"_s);
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Their import reports what they are.
TEST_F(InputListTest, TakesDanglingLinksAndPipes)
{
    folder.write(u"old/x.cnv"_s);
    QFile::link(folder.path(u"nothing"_s), folder.path(u"old/link.cnv"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.path(u"old/pipe.cnv"_s)).constData(), 0600), 0);
    EXPECT_EQ(listed(list("old")), list("old/link.cnv old/pipe.cnv old/x.cnv"));
}

TEST_F(InputListTest, TakesNamesThatAreNotUtf8)
{
    const QString name = console::fileNameFromBytes("old/Gr\xF6\xDF"
                                                    "en/\xFC.cnv");
    ASSERT_EQ(console::makeFolder(folder.path(QFileInfo(name).path())), QString());
    std::ofstream(console::systemPath(folder.path(name))) << "x";
    const QString below = console::fileNameFromBytes("Gr\xF6\xDF"
                                                     "en");
    EXPECT_EQ(listed(list("old")), QStringList{below + u'>' + name});
    EXPECT_TRUE(archive::stampOf(result.inputs.at(0).path));
}

QStringList namesIn(QByteArray bytes, bool isNullSeparated = false)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QStringList names;
    const bool isList = archive::readNames(buffer, isNullSeparated,
                                           [&names](const QString& name) { names.append(name); });
    return isList ? names : QStringList{u"error"_s};
}

TEST(InputNames, EndWithLineBreaks)
{
    EXPECT_EQ(namesIn("a.cnv\n\nb c.cnv\r\nd.cnv"),
              (QStringList{u"a.cnv"_s, u"b c.cnv"_s, u"d.cnv"_s}));
    EXPECT_EQ(namesIn(""), QStringList());
}

TEST(InputNames, EndWithNulBytes)
{
    const QStringList expected = {u"a\n.cnv"_s, u"b.cnv"_s};
    EXPECT_EQ(namesIn(QByteArray("a\n.cnv\0b.cnv\0", 13)), expected);
    EXPECT_EQ(namesIn(QByteArray("a\n.cnv\0b.cnv", 12), true), expected);
    EXPECT_EQ(namesIn("a\n.cnv", true), QStringList{u"a\n.cnv"_s});
}

TEST(InputNames, KeepEveryByte)
{
    EXPECT_EQ(console::fileNameToBytes(namesIn("Gr\xF6\xDF"
                                               "e.cnv")
                                           .value(0)),
              "Gr\xF6\xDF"
              "e.cnv");
}

TEST(InputNames, OfAnyNumberAreRead)
{
    QByteArray bytes;
    for (int number = 0; number < 20'000; ++number) {
        bytes += "folder/label" + QByteArray::number(number) + ".cnv\n";
    }
    const QStringList names = namesIn(bytes);
    EXPECT_EQ(names.size(), 20'000);
    EXPECT_EQ(names.last(), u"folder/label19999.cnv"_s);
}

TEST(InputNames, AreNotOfAnyLength)
{
    const QStringList error{u"error"_s};
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
        qsizetype count = 0;
        const auto add = [&count](const QString&) { ++count; };
        EXPECT_TRUE(archive::readNames(buffer, false, add, list.size()));
        EXPECT_EQ(count, names);
        buffer.seek(0);
        EXPECT_FALSE(archive::readNames(buffer, false, add, list.size() - 1));
    }
}

} // namespace

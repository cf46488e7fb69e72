// File names of any bytes.

#include "console/file_name.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace {

using namespace Qt::StringLiterals;

TEST(FileName, KeepsEveryByte)
{
    const QList<QByteArray> names{"plain.odg",
                                  "Gr\xC3\xB6\xC3\x9F"
                                  "e", // UTF-8
                                  "Gr\xF6\xDF"
                                  "e", // Latin-1
                                  "\xFF\xFE\x80",
                                  "cut\xE2\x82",  // half a sequence
                                  "\xC0\xAF",     // overlong
                                  "\xED\xA0\x80", // a surrogate
                                  "\xEF\xBB\xBF"
                                  "mark",                  // a byte order mark
                                  "\xEE\xBE\x80",          // a character that escapes use
                                  "a\xF0\x9F\x8F\xB7\xF6", // four bytes, then Latin-1
                                  ""};
    for (const QByteArray& bytes : names) {
        const QString name = console::fileNameFromBytes(bytes);
        EXPECT_EQ(console::fileNameToBytes(name), bytes) << bytes.toHex().constData();
        // Journal and messages between processes are JSON.
        EXPECT_EQ(QString::fromUtf8(name.toUtf8()), name) << bytes.toHex().constData();
    }
    for (int byte = 1; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        EXPECT_EQ(console::fileNameToBytes(console::fileNameFromBytes(bytes)), bytes);
    }
}

TEST(FileName, IsTextWherePossible)
{
    EXPECT_EQ(console::fileNameFromBytes("Gr\xC3\xB6\xC3\x9F"
                                         "e"),
              u"Größe"_s);
    EXPECT_TRUE(console::isUtf8FileName(u"Größe"_s));
    EXPECT_FALSE(console::isUtf8FileName(console::fileNameFromBytes("Gr\xF6\xDF"
                                                                    "e")));
}

TEST(FileName, IsShownOnOneLineWithoutControlCharacters)
{
    EXPECT_EQ(console::shownFileName(console::fileNameFromBytes("Gr\xF6\xDF"
                                                                "e")),
              u"Gr\\xF6\\xDFe"_s);
    EXPECT_EQ(console::shownFileName(u"a\n\t\x1B[31m\x7F\u0085.odg"_s),
              u"a\\n\\t\\x1B[31m\\x7F\\x85.odg"_s);
    EXPECT_EQ(console::shownFileName(u"a\u202Egdo"_s), u"a\\u202Egdo"_s);
    EXPECT_EQ(console::shownFileName(u"Größe 中.odg"_s), u"Größe 中.odg"_s);
    EXPECT_EQ(console::shownText(u"a\n\tb\x1B"_s), u"a\n\tb\\x1B"_s);
}

TEST(FileName, CanBeOpenedThroughAReachablePath)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(console::fileNameFromBytes("\xF6"
                                                                    "dd/\xDF.odg"));
    EXPECT_EQ(console::kindOf(name), console::FileKind::Missing);
    ASSERT_EQ(console::makeFolder(folder.filePath(console::fileNameFromBytes("\xF6"
                                                                             "dd"))),
              QString());
    std::ofstream(console::systemPath(name)) << "content";
    EXPECT_EQ(console::kindOf(name), console::FileKind::File);
    const console::ReachablePath reachable(name);
    QFile file(reachable.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "content");
    EXPECT_EQ(console::ReachablePath(u"/plain"_s).path(), u"/plain"_s);
    // QTemporaryDir cannot remove such names.
    std::filesystem::remove_all(folder.path().toStdString());
}

TEST(FileName, DistinguishesKinds)
{
    const QTemporaryDir folder;
    EXPECT_EQ(console::kindOf(folder.path()), console::FileKind::Folder);
    EXPECT_EQ(console::kindOf(u"/dev/null"_s), console::FileKind::Other);
    QFile::link(folder.filePath(u"nothing"_s), folder.filePath(u"link"_s));
    EXPECT_EQ(console::kindOf(folder.filePath(u"link"_s)), console::FileKind::Missing);
    EXPECT_NE(console::makeFolder(u"/proc/no/folder"_s), QString());
}

} // namespace

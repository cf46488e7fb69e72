// Lists of the parts of an archive.

#include "archive/input_list.h"
#include "archive/prepared_list.h"
#include "tests/archive/run_fixture.h"

#include <QBuffer>

namespace {
using namespace Qt::StringLiterals;

class PreparedListTest : public RunFixture
{
protected:
    QByteArray written(const archive::Shard& shard, const QStringList& suffixes = {u"png"_s})
    {
        const archive::Inputs all(inputs);
        const archive::OutputNames names(all, suffixes);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(archive::writePreparedList(buffer, {all, names, shard}));
        return buffer.data();
    }

    archive::PreparedList readBack(QByteArray bytes)
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        EXPECT_TRUE(archive::isPreparedList(buffer.peek(archive::PreparedListStart)));
        error.clear();
        return archive::readPreparedList(buffer, error);
    }

    QString errorOf(const QByteArray& bytes)
    {
        EXPECT_TRUE(readBack(bytes).inputs.isEmpty());
        return error;
    }

    QString error;
};

TEST_F(PreparedListTest, HoldsThePartWithItsNames)
{
    for (const char* name :
         {"a/shelf.cnv", "a/shelf.odg", "a/shelf-2.cnv", "b.cnv", "b.png/c.cnv"}) {
        input(QLatin1String(name), "ok");
    }
    const archive::PreparedList part = readBack(written({1, 2}));
    EXPECT_EQ(error, QString());
    EXPECT_EQ(part.shard.number, 1);
    EXPECT_EQ(part.shard.count, 2);
    ASSERT_EQ(part.inputs.size(), 3);
    EXPECT_EQ(part.inputs.at(0), inputs.at(0));
    EXPECT_EQ(part.inputs.at(1), inputs.at(2));
    EXPECT_EQ(part.readable,
              (QStringList{inputs.at(0).path, inputs.at(2).path, inputs.at(4).path}));
    const archive::OutputNames names(part.inputs, {u"png"_s}, part.names);
    EXPECT_EQ(names.output(0, u"png"_s), u"a/shelf-2.png"_s);
    EXPECT_EQ(names.output(1, u"png"_s), u"a/shelf.odg.png"_s) << "shelf.cnv is in the other part";
    EXPECT_EQ(names.output(2, u"png"_s), u"b.png/c.png"_s);
    const archive::PreparedList other = readBack(written({2, 2}));
    ASSERT_EQ(other.inputs.size(), 2);
    // The page mark is due to a name of the first part, and so is the folder b.png.
    const archive::OutputNames otherNames(other.inputs, {u"png"_s}, other.names);
    EXPECT_EQ(otherNames.output(0, u"png"_s), u"a/shelf.cnv.png"_s);
    EXPECT_TRUE(otherNames.isConflicting(1));
    EXPECT_FALSE(archive::OutputNames(other.inputs, {u"svg"_s}, other.names).isConflicting(1));
}

TEST_F(PreparedListTest, KeepsPageMarks)
{
    input(u"shelf.cnv"_s, "ok");
    input(u"shelf-2.cnv"_s, "ok");
    const archive::PreparedList part = readBack(written({2, 2}));
    ASSERT_EQ(part.inputs.size(), 1);
    EXPECT_EQ(archive::OutputNames(part.inputs, {u"png"_s}, part.names).pageMark(0), u"-page-"_s);
}

TEST_F(PreparedListTest, OfAPartWithoutFilesIsEmpty)
{
    input(u"a.cnv"_s, "ok");
    const archive::PreparedList part = readBack(written({3, 3}));
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(part.inputs.isEmpty());
}

// What the parts write together is what one run writes.
TEST_F(PreparedListTest, IsImportedAsThePartOfARun)
{
    for (const char* name : {"shelf.cnv", "shelf.odg", "b.cnv", "c/d.cnv"}) {
        input(QLatin1String(name), "ok");
    }
    inputs.append({inputs.first().path, u"other/b.cnv"_s, {}});
    QStringList whole = run();
    EXPECT_EQ(whole.filter(u"Another input has the same name"_s).size(), 2);
    const QList<archive::Input> all = inputs;
    const QByteArray lists[] = {written({1, 2}), written({2, 2})};
    settings.outputFolder = folder.path(u"parts"_s);
    settings.isPart = true;
    QStringList parts;
    for (const QByteArray& list : lists) {
        const archive::PreparedList part = readBack(list);
        settings.shard = part.shard;
        settings.names = part.names;
        inputs.clear();
        for (qsizetype index = 0; index < part.inputs.size(); ++index) {
            inputs.append(part.inputs.at(index));
        }
        parts += run();
        EXPECT_EQ(progress.total, inputs.size());
    }
    for (QString& line : whole) {
        line.replace(folder.path(u"out"_s), folder.path(u"parts"_s));
    }
    whole.sort();
    parts.sort();
    EXPECT_EQ(parts, whole);
    EXPECT_TRUE(folder.has(u"parts/.labelport-journal-1-of-2.jsonl"_s));
}

TEST_F(PreparedListTest, IsRefusedIfDamaged)
{
    input(u"a/b.cnv"_s, "ok");
    input(u"c.cnv"_s, "ok");
    const QByteArray good = written({1, 1});
    const QString damaged = u"it is damaged or incomplete"_s;
    EXPECT_EQ(errorOf(good.chopped(1)), damaged);
    EXPECT_EQ(errorOf(good.left(good.lastIndexOf('\n', -2) + 1)), damaged) << "a line is missing";
    EXPECT_EQ(errorOf(good + "{}\n"), damaged);
    const auto changed = [&good](const char* before, const char* after) {
        EXPECT_TRUE(good.contains(before));
        return QByteArray(good).replace(before, after);
    };
    EXPECT_EQ(errorOf(changed("\"files\":2", "\"files\":-2")), damaged);
    EXPECT_EQ(errorOf(changed("\"1/1\"", "\"2/1\"")), damaged);
    EXPECT_EQ(errorOf(changed("\"file\"", "\"fill\"")), damaged);
    EXPECT_EQ(errorOf(changed("_list\":1", "_list\":2")),
              u"it was written by another version of labelport"_s);
    EXPECT_EQ(errorOf(changed("\"folder\":", "\"naming\":\"x\",\"folder\":")), damaged);
    EXPECT_EQ(errorOf(changed("\"folder\":", "\"pages\":\"../-\",\"folder\":")), damaged);
}

// Outputs stay below the output folder, whatever the list states.
TEST_F(PreparedListTest, CannotLeadOutOfTheOutputFolder)
{
    input(u"a/b.cnv"_s, "ok");
    const QByteArray good = written({1, 1});
    for (const char* below : {"..", "../x", "/x", "x/../..", "x//y", "."}) {
        SCOPED_TRACE(below);
        EXPECT_NE(errorOf(QByteArray(good).replace("\"folder\":\"a\"",
                                                   "\"folder\":\"" + QByteArray(below) + "\"")),
                  QString());
    }
}

// A line is not read into memory whatever its length.
TEST_F(PreparedListTest, HasLinesOfBoundedLength)
{
    input(u"a.cnv"_s, "ok");
    const QByteArray good = written({1, 1});
    const auto withSpaces = [&good](qsizetype length) {
        QByteArray list = good;
        const qsizetype line = list.size() - list.lastIndexOf('\n', -2) - 1;
        return list.insert(list.size() - 1, QByteArray(length - line, ' '));
    };
    EXPECT_EQ(readBack(withSpaces(archive::MaximumPreparedLine)).inputs.size(), 1);
    EXPECT_NE(errorOf(withSpaces(archive::MaximumPreparedLine + 1)), QString());
}

TEST(PreparedList, IsKnownByItsStart)
{
    for (const char* other : {"", "a.cnv\nb.cnv\n", "{}", "{\"file\":1}"}) {
        EXPECT_FALSE(archive::isPreparedList(other)) << other;
    }
}

} // namespace

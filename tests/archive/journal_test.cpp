// What was done, remembered.

#include "archive/journal.h"
#include "limits/json/tree_size.h"
#include "tests/archive/test_folder.h"

#include <QBuffer>

namespace {
using namespace Qt::StringLiterals;

class JournalTest : public ::testing::Test
{
protected:
    static archive::JournalRecord record(const QString& path, int size = 1)
    {
        return {{path, size, 1'700'000'000'123},
                u"options"_s,
                u"1.0"_s,
                archive::FileOutcome::Done,
                {u"no \"error\"\n"_s},
                {{u"a/x.png"_s, 10, 20}},
                {{u"file"_s, u"x"_s}}};
    }

    archive::Inputs inputs() const
    {
        return archive::Inputs({{u"/in/a.cnv"_s, u"a"_s, {}}, {u"/in/b.cnv"_s, u"b"_s, {}}});
    }

    void openIn(archive::Journal& journal, const archive::Shard& shard = {}) const
    {
        ASSERT_EQ(journal.open(folder.path(), shard, inputs()), QString());
    }

    TestFolder folder;
    const QString name = archive::Journal::fileNameFor({});
    const QString options = u"options"_s;
    const QString a = u"/in/a.cnv"_s;
    const QString b = u"/in/b.cnv"_s;
};

TEST_F(JournalTest, IsEmptyAtFirst)
{
    archive::Journal journal;
    EXPECT_FALSE(journal.isOpen());
    openIn(journal);
    EXPECT_TRUE(journal.isOpen());
    EXPECT_FALSE(journal.find(0, options));
}

TEST_F(JournalTest, RemembersTheLastWordOnEachFile)
{
    {
        archive::Journal journal;
        openIn(journal);
        EXPECT_TRUE(journal.append(record(b, 1)));
        EXPECT_TRUE(journal.append(record(u"/in/other.cnv"_s)));
        EXPECT_TRUE(journal.append(record(b, 2)));
    }
    archive::Journal journal;
    openIn(journal);
    EXPECT_FALSE(journal.find(0, options));
    EXPECT_EQ(journal.find(1, options), record(b, 2));
}

TEST_F(JournalTest, IgnoresATornLine)
{
    const QByteArray torn = archive::lineOf(record(a)).left(40);
    folder.write(name, archive::lineOf(record(b)) + torn);
    {
        archive::Journal journal;
        openIn(journal);
        EXPECT_FALSE(journal.find(0, options));
        EXPECT_EQ(journal.find(1, options), record(b));
        EXPECT_TRUE(journal.append(record(a)));
    }
    archive::Journal journal;
    openIn(journal);
    EXPECT_EQ(journal.find(0, options), record(a)) << "the new line was added to the torn one";
}

// To read lines of 64 megabytes takes seconds, so the bound is a parameter.
TEST_F(JournalTest, HoldsNoLineLongerThanAny)
{
    for (const qint64 longest : {10, 50'000}) {
        SCOPED_TRACE(longest);
        QByteArray whole = QByteArray(longest - 1, 'x') + '\n';
        QBuffer lines;
        lines.setData(whole + 'x' + whole + "rest");
        ASSERT_TRUE(lines.open(QIODevice::ReadOnly));
        EXPECT_EQ(archive::nextLine(lines, longest), whole);
        EXPECT_EQ(archive::nextLine(lines, longest), QByteArray(longest, 'x')) << "a byte too many";
        EXPECT_EQ(archive::nextLine(lines, longest), "\n");
        EXPECT_EQ(archive::nextLine(lines, longest), "rest");
        EXPECT_EQ(archive::nextLine(lines, longest), QByteArray());
    }
}

// Four hundred megabytes are the most that a line becomes.
TEST_F(JournalTest, HoldsNoLineThatWouldFillTheMemory)
{
    const QByteArray whole = archive::lineOf(record(a));
    const auto lineWith = [&whole](qsizetype letters) {
        const QByteArray lists = QByteArray("[0],").repeated(2'050'000);
        return QByteArray(whole).replace("\"errors\":[", "\"more\":[" + lists + "\"" +
                                                             QByteArray(letters, 'x') +
                                                             "\"],\"errors\":[");
    };
    const qint64 taken = jsonlimits::treeBytes(lineWith(0), archive::MaximumLineTree);
    const qint64 left = (archive::MaximumLineTree - taken) / 2; // a letter counts twice
    EXPECT_EQ(archive::recordFromLine(lineWith(left)), record(a));
    EXPECT_FALSE(archive::recordFromLine(lineWith(left + 1)));
}

TEST_F(JournalTest, IsOneOfSeveralWhenAnArchiveIsShared)
{
    EXPECT_EQ(archive::Journal::fileNameFor({2, 8}), u".labelport-journal-2-of-8.jsonl"_s);
    archive::Journal first;
    archive::Journal second;
    openIn(first, {1, 2});
    openIn(second, {2, 2});
    EXPECT_TRUE(first.append(record(a)));
    EXPECT_TRUE(second.append(record(b)));
    archive::Journal whole;
    openIn(whole);
    EXPECT_EQ(whole.find(0, options), record(a));
    EXPECT_EQ(whole.find(1, options), record(b));
}

TEST_F(JournalTest, TakesLinesOfSeveralCommands)
{
    archive::Journal first;
    archive::Journal second;
    openIn(first);
    openIn(second);
    for (int turn = 0; turn < 100; ++turn) {
        EXPECT_TRUE(first.append(record(a, turn)));
        EXPECT_TRUE(second.append(record(b, turn)));
    }
    archive::Journal third;
    openIn(third);
    EXPECT_EQ(third.find(0, options), record(a, 99));
    EXPECT_EQ(third.find(1, options), record(b, 99));
}

TEST_F(JournalTest, KeepsARecordForEachSetOfOptions)
{
    archive::JournalRecord other = record(a, 2);
    other.options = u"others"_s;
    other.outputs = {{u"a/x.pdf"_s, 1, 1}};
    folder.write(name, archive::lineOf(record(a, 1)) + archive::lineOf(other) +
                           archive::lineOf(record(a, 3)));
    archive::Journal journal;
    openIn(journal);
    EXPECT_EQ(journal.find(0, options), record(a, 3));
    EXPECT_EQ(journal.find(0, u"others"_s), other);
    EXPECT_FALSE(journal.find(0, u"none"_s));
    EXPECT_EQ(journal.outputsOf(0), other.outputs + record(a).outputs);
    EXPECT_TRUE(journal.outputsOf(1).isEmpty());
}

TEST_F(JournalTest, IsRewrittenWithoutReplacedRecords)
{
    archive::JournalRecord other = record(b, 7);
    other.options = u"others"_s;
    folder.write(name, archive::lineOf(record(b, 1)) + archive::lineOf(other) +
                           archive::lineOf(record(a)) + archive::lineOf(record(b, 2)) + "torn");
    archive::Journal journal;
    ASSERT_EQ(journal.open(folder.path(), {}, inputs(), true), QString());
    EXPECT_EQ(folder.read(name),
              archive::lineOf(other) + archive::lineOf(record(a)) + archive::lineOf(record(b, 2)));
    EXPECT_EQ(journal.find(0, options), record(a));
    EXPECT_EQ(journal.find(1, options), record(b, 2));
}

TEST_F(JournalTest, IsNotRewrittenWhileAnotherCommandUsesIt)
{
    archive::Journal other;
    openIn(other);
    EXPECT_TRUE(other.append(record(b, 1)));
    EXPECT_TRUE(other.append(record(b, 2)));
    const QByteArray before = folder.read(name);
    archive::Journal journal;
    ASSERT_EQ(journal.open(folder.path(), {}, inputs(), true), QString());
    EXPECT_EQ(folder.read(name), before);
}

TEST_F(JournalTest, KnowsTheSavedLabelsOfAFolder)
{
    archive::JournalRecord saved = record(a);
    saved.outputs = {{u"x/a.label"_s, 1, 1}, {u"x/a.png"_s, 1, 1}};
    folder.write(name, archive::lineOf(saved));
    const QHash<QString, QString> expected{{folder.path(u"x/a.label"_s), a}};
    QHash<QString, QString> sources;
    archive::Journal::visitOutputs(
        folder.path(), u".label"_s,
        [&](const QString& output, const QString& source) { sources.insert(output, source); });
    EXPECT_EQ(sources, expected);
}

TEST_F(JournalTest, CannotBeWrittenWhereNothingCan)
{
    archive::Journal journal;
    EXPECT_FALSE(journal.open(u"/proc"_s, {}, inputs()).isEmpty());
}

class DoneTest : public ::testing::Test
{
protected:
    DoneTest()
    {
        archive::FileStamp output = *archive::stampOf(folder.write(u"out/x.png"_s));
        output.path = u"x.png"_s;
        record = {{u"/in/a.cnv"_s, 1, 2},
                  u"options"_s,
                  u"1.0"_s,
                  archive::FileOutcome::Done,
                  {},
                  {output},
                  {}};
        expected = {record.input, record.options, record.version, folder.path(u"out"_s), false};
    }

    TestFolder folder;
    archive::JournalRecord record;
    archive::Expectation expected;
};

TEST_F(DoneTest, IsWhatIsAsItWas)
{
    EXPECT_TRUE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNothingThatFailed)
{
    record.outcome = archive::FileOutcome::Failed;
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotAChangedFile)
{
    ++expected.input.size;
    EXPECT_FALSE(archive::isDone(record, expected));
    --expected.input.size;
    ++expected.input.modified;
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatWasDoneInAnotherWay)
{
    expected.options = u"others"_s;
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatAnotherVersionDid)
{
    expected.version = u"1.1"_s;
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatHasLostAnOutput)
{
    QFile::remove(folder.path(u"out/x.png"_s));
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatHasAChangedOutput)
{
    folder.write(u"out/x.png"_s, "edited");
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsOnlyWhatHasAReportIfOneIsNeeded)
{
    expected.reportNeeded = true;
    EXPECT_FALSE(archive::isDone(record, expected));
    record.report = {{u"file"_s, u"a"_s}};
    EXPECT_TRUE(archive::isDone(record, expected));
}

TEST(Fingerprint, IsThatOfOptionsAndOutputs)
{
    const QJsonObject options{{u"dpi"_s, 300}};
    const QString print = archive::fingerprintOf(options, {u"a.png"_s});
    EXPECT_EQ(print, archive::fingerprintOf(options, {u"a.png"_s}));
    EXPECT_NE(print, archive::fingerprintOf(options, {u"b.png"_s}));
    EXPECT_NE(print, archive::fingerprintOf({{u"dpi"_s, 301}}, {u"a.png"_s}));
}

} // namespace

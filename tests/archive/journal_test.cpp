// What was done, remembered.

#include "archive/journal.h"
#include "archive/journal_compaction.h"
#include "limits/json/tree_size.h"
#include "tests/archive/test_folder.h"

#include <QBuffer>

namespace {

class JournalTest : public ::testing::Test
{
protected:
    static archive::JournalRecord record(const QString& path, int size = 1)
    {
        return {{path, size, 1'700'000'000'123},
                QStringLiteral("options"),
                QStringLiteral("1.0"),
                archive::Fate::Done,
                {QStringLiteral("no \"error\"\n")},
                {{QStringLiteral("a/x.png"), 10, 20}},
                {{QStringLiteral("file"), QStringLiteral("x")}}};
    }

    QList<archive::Input> inputs() const
    {
        return {{QStringLiteral("/in/a.cnv"), QStringLiteral("a"), {}},
                {QStringLiteral("/in/b.cnv"), QStringLiteral("b"), {}}};
    }

    void openIn(archive::Journal& journal, const archive::Shard& shard = {}) const
    {
        ASSERT_EQ(journal.open(folder.path(), shard, inputs()), QString());
    }

    TestFolder folder;
    const QString name = archive::Journal::fileNameFor({});
    const QString a = QStringLiteral("/in/a.cnv");
    const QString b = QStringLiteral("/in/b.cnv");
};

TEST_F(JournalTest, IsEmptyAtFirst)
{
    archive::Journal journal;
    EXPECT_FALSE(journal.isOpen());
    openIn(journal);
    EXPECT_TRUE(journal.isOpen());
    EXPECT_FALSE(journal.find(0));
}

TEST_F(JournalTest, RemembersTheLastWordOnEachFile)
{
    {
        archive::Journal journal;
        openIn(journal);
        EXPECT_TRUE(journal.append(record(b, 1)));
        EXPECT_TRUE(journal.append(record(QStringLiteral("/in/other.cnv"))));
        EXPECT_TRUE(journal.append(record(b, 2)));
    }
    archive::Journal journal;
    openIn(journal);
    EXPECT_FALSE(journal.find(0));
    EXPECT_EQ(journal.find(1), record(b, 2));
}

TEST_F(JournalTest, IgnoresATornLine)
{
    const QByteArray torn = archive::lineOf(record(a)).left(40);
    folder.write(name, archive::lineOf(record(b)) + torn);
    {
        archive::Journal journal;
        openIn(journal);
        EXPECT_FALSE(journal.find(0));
        EXPECT_EQ(journal.find(1), record(b));
        EXPECT_TRUE(journal.append(record(a)));
    }
    archive::Journal journal;
    openIn(journal);
    EXPECT_EQ(journal.find(0), record(a)) << "the new line was added to the torn one";
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
    const qint64 taken = jsonbounds::treeBytes(lineWith(0), archive::MaximumLineTree);
    const qint64 left = (archive::MaximumLineTree - taken) / 2; // a letter counts twice
    EXPECT_EQ(archive::recordFromLine(lineWith(left)), record(a));
    EXPECT_FALSE(archive::recordFromLine(lineWith(left + 1)));
}

TEST_F(JournalTest, IsOneOfSeveralWhenAnArchiveIsShared)
{
    EXPECT_EQ(archive::Journal::fileNameFor({2, 8}),
              QStringLiteral(".labelport-journal-2-of-8.jsonl"));
    archive::Journal first;
    archive::Journal second;
    openIn(first, {1, 2});
    openIn(second, {2, 2});
    first.append(record(a));
    second.append(record(b));
    archive::Journal whole;
    openIn(whole);
    EXPECT_EQ(whole.find(0), record(a));
    EXPECT_EQ(whole.find(1), record(b));
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
    EXPECT_EQ(third.find(0), record(a, 99));
    EXPECT_EQ(third.find(1), record(b, 99));
}

TEST_F(JournalTest, DoesNotGrowForEver)
{
    QByteArray lines = archive::lineOf(record(a));
    for (int turn = 0; turn <= archive::ToleratedRecords; ++turn) {
        lines += archive::lineOf(record(b, turn));
    }
    folder.write(name, lines);
    archive::Journal journal;
    openIn(journal);
    EXPECT_EQ(folder.read(name),
              archive::lineOf(record(a)) +
                  archive::lineOf(record(b, static_cast<int>(archive::ToleratedRecords))));
    EXPECT_EQ(journal.find(0), record(a));
}

TEST_F(JournalTest, IsNotRewrittenWhileAnotherCommandUsesIt)
{
    archive::Journal other;
    openIn(other);
    for (int turn = 0; turn <= archive::ToleratedRecords + 1; ++turn) {
        other.append(record(b, turn));
    }
    const QByteArray before = folder.read(name);
    archive::Journal journal;
    openIn(journal);
    EXPECT_EQ(folder.read(name), before);
}

TEST_F(JournalTest, KnowsTheSavedLabelsOfAFolder)
{
    archive::JournalRecord saved = record(a);
    saved.outputs = {{QStringLiteral("x/a.label"), 1, 1}, {QStringLiteral("x/a.png"), 1, 1}};
    folder.write(name, archive::lineOf(saved));
    EXPECT_EQ(archive::Journal::outputsIn(folder.path(), QStringLiteral(".label")),
              QSet<QString>{folder.path(QStringLiteral("x/a.label"))});
}

TEST_F(JournalTest, CannotBeWrittenWhereNothingCan)
{
    archive::Journal journal;
    EXPECT_FALSE(journal.open(QStringLiteral("/proc"), {}, inputs()).isEmpty());
}

class DoneTest : public ::testing::Test
{
protected:
    DoneTest()
    {
        archive::FileStamp output = *archive::stampOf(folder.write(QStringLiteral("out/x.png")));
        output.path = QStringLiteral("x.png");
        record = {{QStringLiteral("/in/a.cnv"), 1, 2},
                  QStringLiteral("options"),
                  QStringLiteral("1.0"),
                  archive::Fate::Done,
                  {},
                  {output},
                  {}};
        expected = {record.input, record.options, record.version,
                    folder.path(QStringLiteral("out")), false};
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
    record.fate = archive::Fate::Failed;
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
    expected.options = QStringLiteral("others");
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatAnotherVersionDid)
{
    expected.version = QStringLiteral("1.1");
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatHasLostAnOutput)
{
    QFile::remove(folder.path(QStringLiteral("out/x.png")));
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsNotWhatHasAChangedOutput)
{
    folder.write(QStringLiteral("out/x.png"), "edited");
    EXPECT_FALSE(archive::isDone(record, expected));
}

TEST_F(DoneTest, IsOnlyWhatHasAReportIfOneIsNeeded)
{
    expected.reportNeeded = true;
    EXPECT_FALSE(archive::isDone(record, expected));
    record.report = {{QStringLiteral("file"), QStringLiteral("a")}};
    EXPECT_TRUE(archive::isDone(record, expected));
}

TEST(Fingerprint, IsThatOfOptionsAndOutputs)
{
    const QJsonObject options{{QStringLiteral("dpi"), 300}};
    const QString print = archive::fingerprintOf(options, {QStringLiteral("a.png")});
    EXPECT_EQ(print, archive::fingerprintOf(options, {QStringLiteral("a.png")}));
    EXPECT_NE(print, archive::fingerprintOf(options, {QStringLiteral("b.png")}));
    EXPECT_NE(print,
              archive::fingerprintOf({{QStringLiteral("dpi"), 301}}, {QStringLiteral("a.png")}));
}

} // namespace

#include "supply/csv_table_model.h"
#include "tests/support/captured_log.h"

#include <QAbstractItemModelTester>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class CsvTableModelTest : public testing::Test
{
protected:
    QString fileOf(const QByteArray& content)
    {
        const QString path = m_folder.filePath(u"table.csv"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        return path;
    }

    QTemporaryDir m_folder;
};

QStringList lineOf(CsvTableModel& table, int line)
{
    QStringList cells;
    for (int column = 0; column < table.fileColumnCount(); ++column) {
        cells.append(table.cell(line, column));
    }
    return cells;
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u'|');
}

TEST_F(CsvTableModelTest, IsEmptyWithoutAFile)
{
    const CapturedLog log;
    CsvTableModel table(1);
    EXPECT_EQ(table.fileRowCount(), 0);
    EXPECT_EQ(table.fileColumnCount(), 0);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.fileName(), QString());
    EXPECT_TRUE(log.records().isEmpty());
    EXPECT_EQ(table.cell(0, 0), QString());
    EXPECT_EQ(log.messages(), words("Invalid row number (0)"));
}

TEST_F(CsvTableModelTest, ReadsATable)
{
    const CapturedLog log;
    CsvTableModel table(1);
    const QString path = fileOf("SKU,Name\r\n1,one\r\n2,two\r\n");
    ASSERT_TRUE(table.setFileName(path));

    EXPECT_EQ(table.fileName(), path);
    EXPECT_EQ(table.fileRowCount(), 3);
    EXPECT_EQ(table.fileColumnCount(), 2);
    EXPECT_EQ(table.rowCount(), 2);
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), QVariant(u"Name"_s));
    EXPECT_EQ(table.data(table.index(1, 1)), QVariant(u"two"_s));
    EXPECT_EQ(lineOf(table, 1), words("1|one"));
    EXPECT_EQ(table.cell(1, 2), QString());
    EXPECT_EQ(table.cell(1, -1), QString());
    EXPECT_TRUE(log.records().isEmpty());
}

TEST_F(CsvTableModelTest, FindsWhereLinesStart)
{
    struct
    {
        const char* what;
        QByteArray content;
        QList<QStringList> lines;
    } const cases[] = {
        {"a last line without line feed counts", "a\nb", {words("a"), words("b")}},
        {"nothing behind the last line feed", "a\nb\n", {words("a"), words("b")}},
        {"an empty line is a line", "a\n\nb\n", {words("a"), words(""), words("b")}},
        {"only a line feed", "\n", {words("")}},
        {"a carriage return ends no line", "a\rb\n", {words("ab")}},
        {"a line feed in quotes ends no line", "\"a\nb\"\nc\n", {words("\"a\nb\""), words("c")}},
        {"a doubled quote stays inside", "\"a\"\"\nb\"\nc", {words("\"a\"\nb\""), words("c")}},
        {"a backslash hides a quote", "\\\"a\nb", {words("\"a"), words("b")}},
        {"a backslash in quotes hides the end", "\"\\\"\n\"\nb", {words("\"\"\n\""), words("b")}},
        {"a backslash hides a line feed", "a\\\nb\nc", {words("a\nb"), words("c")}},
        {"an open quote runs to the end", "a\n\"b\nc\n", {words("a"), words("\"b\nc\n")}},
        {"a backslash at the end", "a\nb\\", {words("a"), words("b")}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        CsvTableModel table(0);
        ASSERT_TRUE(table.openFile(fileOf(row.content)));
        ASSERT_EQ(table.fileRowCount(), row.lines.size());
        for (int line = 0; line < row.lines.size(); ++line) {
            EXPECT_EQ(table.cell(line, 0), row.lines[line].first()) << line;
        }
    }
}

TEST_F(CsvTableModelTest, ReadsMoreLinesThanItFirstHasRoomFor)
{
    for (const int lines : {15, 16, 17, 1000}) {
        QByteArray content;
        for (int line = 0; line < lines; ++line) {
            content += "n" + QByteArray::number(line) + "\n";
        }
        CsvTableModel table(0);
        ASSERT_TRUE(table.openFile(fileOf(content)));
        ASSERT_EQ(table.fileRowCount(), lines);
        for (int line = lines - 1; line >= 0; --line) {
            EXPECT_EQ(table.cell(line, 0), u"n%1"_s.arg(line));
        }
    }
}

TEST_F(CsvTableModelTest, AnEmptyFileHasNoLine)
{
    CsvTableModel table(1);
    const CapturedLog log;
    EXPECT_TRUE(table.setFileName(fileOf("")));
    EXPECT_EQ(table.fileRowCount(), 0);
    EXPECT_EQ(table.fileColumnCount(), 0);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(log.messages(), words("Invalid row number (0)"));
    EXPECT_FALSE(table.parseRow(0));
}

TEST_F(CsvTableModelTest, RefusesLinesItDoesNotHave)
{
    CsvTableModel table(1);
    ASSERT_TRUE(table.openFile(fileOf("a\nb\n")));
    const CapturedLog log;
    for (const int line : {-1, 2, 2147483647}) {
        EXPECT_FALSE(table.parseRow(line));
        EXPECT_EQ(table.cell(line, 0), QString());
    }
    EXPECT_EQ(log.records().size(), 6);
    EXPECT_EQ(log.records()[0].level, Logger::Error);
    EXPECT_EQ(log.records()[0].source, QLatin1String("csv_table_model"));
    EXPECT_EQ(log.records()[0].function, QLatin1String("bool CsvTableModel::parseRow(int)"));
    EXPECT_EQ(log.messages()[0], u"Invalid row number (-1)"_s);
    EXPECT_EQ(log.messages()[2], u"Invalid row number (2)"_s);
}

TEST_F(CsvTableModelTest, GrowsColumnsAsLinesAreParsed)
{
    CsvTableModel table(1);
    ASSERT_TRUE(table.setFileName(fileOf(" Index,Color,\r\n0,#FFFFFF,white\r\n1,,,\r\n")));
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.headerData(0, Qt::Horizontal), QVariant(u" Index"_s));
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), QVariant(u"Color"_s));
    EXPECT_FALSE(table.index(0, 2).isValid());

    // A line with three fields, of which the last two are empty, does not increase it.
    EXPECT_TRUE(table.parseRow(2));
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_TRUE(table.parseRow(1));
    EXPECT_EQ(table.columnCount(), 3);
    EXPECT_EQ(table.data(table.index(0, 2)), QVariant(u"white"_s));
    EXPECT_FALSE(table.headerData(2, Qt::Horizontal).isValid());
    // A shorter line does not reduce it.
    EXPECT_TRUE(table.parseRow(0));
    EXPECT_EQ(table.columnCount(), 3);
}

TEST_F(CsvTableModelTest, KeepsHeaderNamesUnchangedWhenOnlyOpened)
{
    CsvTableModel table(1);
    ASSERT_TRUE(table.openFile(fileOf("a,a,,\"q\"\n")));
    QStringList names;
    for (int column = 0; column < 4; ++column) {
        names.append(table.headerData(column, Qt::Horizontal).toString());
    }
    EXPECT_EQ(names, words("a|a||\"q\""));
    ASSERT_TRUE(table.setFileName(fileOf("a,a,,\"q\"\n")));
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), QVariant(u"a1"_s));
    EXPECT_EQ(table.headerData(2, Qt::Horizontal), QVariant(u"C"_s));
}

TEST_F(CsvTableModelTest, AMissingFileChangesNothing)
{
    CsvTableModel table(1);
    const QString path = fileOf("a\nb\n");
    ASSERT_TRUE(table.setFileName(path));
    const QString missing = m_folder.filePath(u"missing.csv"_s);
    const CapturedLog log;

    EXPECT_FALSE(table.openFile(missing));
    EXPECT_EQ(table.fileName(), path);
    EXPECT_EQ(table.rowCount(), 1);
    EXPECT_EQ(table.headerData(0, Qt::Horizontal), QVariant(u"a"_s));
    EXPECT_EQ(table.cell(1, 0), u"b"_s);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.records()[0].level, Logger::Error);
    EXPECT_EQ(log.records()[0].message, u"\"%1\" does not exist"_s.arg(missing));
    EXPECT_EQ(log.records()[0].function,
              QLatin1String("virtual bool CsvTableModel::openFile(const QString&)"));

    EXPECT_FALSE(table.setFileName(missing));
    EXPECT_EQ(log.messages().last(), u"Could not open  \"%1\""_s.arg(missing));
}

TEST_F(CsvTableModelTest, AFileThatDoesNotOpenLeavesItEmpty)
{
    CsvTableModel table(1);
    const QString path = fileOf("a\nb\n");
    ASSERT_TRUE(table.setFileName(path));
    const CapturedLog log;

    EXPECT_FALSE(table.setFileName(m_folder.path()));
    EXPECT_EQ(table.fileName(), path);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.columnCount(), 0);
    EXPECT_FALSE(table.headerData(0, Qt::Horizontal).isValid());
    ASSERT_EQ(log.records().size(), 2);
    EXPECT_EQ(log.records()[0].level, Logger::Error);
    EXPECT_EQ(log.records()[0].message,
              u"CSV File Open Warning: Could not open file \"%1\" (5)."_s.arg(m_folder.path()));
    EXPECT_EQ(log.records()[0].function,
              QLatin1String("virtual bool CsvTableModel::openFile(const QString&)"));

    // And opens again.
    EXPECT_TRUE(table.setFileName(path));
    EXPECT_EQ(table.rowCount(), 1);
}

TEST_F(CsvTableModelTest, IsResetWithEachFile)
{
    CsvTableModel table(1);
    ASSERT_TRUE(table.setFileName(fileOf("a,b,c\n1,2,3\n4,5,6\n")));
    EXPECT_EQ(table.cell(1, 2), u"3"_s);
    ASSERT_TRUE(table.setFileName(fileOf("x\ny\n")));
    EXPECT_EQ(table.rowCount(), 1);
    EXPECT_EQ(table.columnCount(), 1);
    EXPECT_EQ(table.cell(1, 0), u"y"_s);
    EXPECT_EQ(table.cell(1, 2), QString());
    ASSERT_TRUE(table.openFile(fileOf("")));
    EXPECT_EQ(table.columnCount(), 0);
    EXPECT_FALSE(table.headerData(0, Qt::Horizontal).isValid()) << "a name of the file before";
}

// Lines longer than any read-ahead, so that a change of the file is visible.
constexpr int longLine = 100000;

TEST_F(CsvTableModelTest, KeepsTheLineThatWasParsedLast)
{
    const QByteArray filler(longLine, 'x');
    CsvTableModel table(0);
    const QString path = fileOf("first\n" + filler + "\nlast!\n");
    ASSERT_TRUE(table.openFile(path));
    EXPECT_EQ(table.cell(2, 0), u"last!"_s);

    fileOf("FIRST\n" + filler + "\nLAST!\n");
    EXPECT_EQ(table.cell(2, 0), u"last!"_s);
    EXPECT_EQ(table.cell(0, 0), u"FIRST"_s);
    EXPECT_EQ(table.cell(2, 0), u"LAST!"_s);
}

TEST_F(CsvTableModelTest, AReadErrorIsSilentAndKeepsTheParsedLine)
{
    CsvTableModel table(0);
    const QString path = fileOf("first\n" + QByteArray(longLine, 'x') + "\nlast\n");
    ASSERT_TRUE(table.openFile(path));
    EXPECT_EQ(table.cell(0, 0), u"first"_s);
    ASSERT_TRUE(QFile::resize(path, 3));

    const CapturedLog log;
    EXPECT_FALSE(table.parseRow(2));
    EXPECT_EQ(table.cell(2, 0), QString());
    EXPECT_EQ(table.cell(0, 0), u"first"_s);
    EXPECT_TRUE(log.records().isEmpty());
}

TEST_F(CsvTableModelTest, RefusesAFileOfTooManyLines)
{
    CsvTableModel table(1);
    const QString path = fileOf(QByteArray(CsvTableModel::MaximumLines, '\n'));
    const CapturedLog log;
    EXPECT_FALSE(table.openFile(path));
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(log.messages(), QStringList(u"\"%1\" is too large for a table"_s.arg(path)));
}

TEST_F(CsvTableModelTest, RefusesAnEndlessDevice)
{
    const QString device = u"/dev/zero"_s;
    if (!QFileInfo::exists(device)) {
        GTEST_SKIP() << "this system has no endless device";
    }
    CsvTableModel table(1);
    EXPECT_FALSE(table.openFile(device));
    EXPECT_EQ(table.fileRowCount(), 0);
}

TEST_F(CsvTableModelTest, RefusesALineThatIsTooLong)
{
    CsvTableModel table(0);
    const QByteArray longest(CsvTableModel::MaximumLineBytes - 1, 'x');
    const QString path = fileOf("a\n" + longest + "\n" + longest + "x\n");
    ASSERT_TRUE(table.openFile(path));
    EXPECT_EQ(table.cell(1, 0).size(), longest.size());
    const CapturedLog log;
    EXPECT_EQ(table.cell(2, 0), QString());
    EXPECT_EQ(log.messages(), QStringList(u"\"%1\" has a line that is too long"_s.arg(path)));
}

TEST_F(CsvTableModelTest, IsAModelAsViewsExpectIt)
{
    CsvTableModel table(1);
    const QAbstractItemModelTester tester(&table,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_TRUE(table.setFileName(fileOf("a,b\n1,2\n3,4\n")));
    ASSERT_FALSE(table.setFileName(m_folder.path()));
    ASSERT_TRUE(table.setFileName(fileOf("")));
    ASSERT_TRUE(table.setFileName(fileOf("a\n1,2\n3,4,5\n")));
    EXPECT_EQ(table.data(table.index(1, 0)), QVariant(u"3"_s));
}

} // namespace

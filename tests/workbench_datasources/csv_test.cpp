// Files of comma-separated values, and the data source of their records.

#include "workbench/datasources/csv_source.h"
#include "workbench/datasources/csv_table.h"
#include "workbench/datasources/datasource_controller.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;
using namespace workbench::datasources;

using Cells = QStringList;

Cells cellsOf(const QByteArray& bytes, const CsvOptions& options = {})
{
    const CsvTable table = parseCsv(bytes, options);
    EXPECT_EQ(table.error, QString());
    return table.cells;
}

TEST(CsvTable, HasNamedColumnsAndRecords)
{
    const CsvTable table = parseCsv("Name,Price\nApple,1.20\nPear,\n");
    EXPECT_EQ(table.error, QString());
    EXPECT_EQ(table.fields, (Cells{u"Name"_s, u"Price"_s}));
    EXPECT_EQ(table.cells, (Cells{u"Apple"_s, u"1.20"_s, u"Pear"_s, QString()}));
    EXPECT_EQ(table.records(), 2);
}

TEST(CsvTable, EndsLinesInEveryWay)
{
    for (const char* text : {"a,b\n1,2\n3,4\n", "a,b\r\n1,2\r\n3,4", "a,b\r1,2\r3,4\r",
                             "\n\na,b\n\n1,2\r\n\r\n3,4\n\n"}) {
        EXPECT_EQ(cellsOf(text), (Cells{u"1"_s, u"2"_s, u"3"_s, u"4"_s})) << text;
    }
}

TEST(CsvTable, UnquotesFields)
{
    EXPECT_EQ(cellsOf("a,b\n\"x,y\",\"two\nlines\"\n"), (Cells{u"x,y"_s, u"two\nlines"_s}));
    EXPECT_EQ(cellsOf("a,b\n\"say \"\"hi\"\"\",\"\"\n"), (Cells{u"say \"hi\""_s, QString()}));
    EXPECT_EQ(cellsOf("a,b\n\"\"\"\",5\" pipe\n"), (Cells{u"\""_s, u"5\" pipe"_s}));
    EXPECT_EQ(cellsOf("a\n\"last\""), Cells{u"last"_s});
    EXPECT_EQ(cellsOf("a,b\n 1 , 2\n"), (Cells{u" 1 "_s, u" 2"_s})) << "blanks are kept";
}

TEST(CsvTable, NamesTheLineOfAMistake)
{
    const auto errorOf = [](const char* text) { return parseCsv(text).error; };
    EXPECT_EQ(errorOf("a,b\n1,2\n\"x\ny\",2\n3\n"),
              u"Line 5 has 1 fields; the first line has 2."_s);
    EXPECT_EQ(errorOf("a,b\n1,2,3\n"), u"Line 2 has 3 fields; the first line has 2."_s);
    EXPECT_EQ(errorOf("a,b\n\"1\" x,2\n"), u"Line 2 has text after a closing quotation mark."_s);
    EXPECT_EQ(errorOf("a,b\n\"1,2\n3,4\n"),
              u"The quotation mark that begins in line 2 is not closed."_s);
    EXPECT_EQ(errorOf("a,b\n"), u"The file has no records."_s);
    EXPECT_EQ(errorOf(""), u"The file has no records."_s);
}

TEST(CsvTable, FindsTheSeparatorInTheFirstLine)
{
    EXPECT_EQ(parseCsv("a;b\n1,5;2\n").separator, u';');
    EXPECT_EQ(parseCsv("a\tb\n1\t2\n").separator, u'\t');
    EXPECT_EQ(parseCsv("a|b\n1|2\n").separator, u'|');
    EXPECT_EQ(parseCsv("\"a;b;c\",d\n1,2\n").separator, u',');
    EXPECT_EQ(parseCsv("a\n1\n").separator, u',');
    EXPECT_EQ(cellsOf("a;b\n1;2\n", {u',', CsvEncoding::Detect, true}), Cells{u"1;2"_s});
}

TEST(CsvTable, ReadsEncodings)
{
    const Cells cells{u"Größe €"_s};
    const QString text = u"a\nGröße €\n"_s;
    EXPECT_EQ(cellsOf(text.toUtf8()), cells);
    EXPECT_EQ(cellsOf("\xEF\xBB\xBF" + text.toUtf8()), cells);
    EXPECT_EQ(parseCsv("\xEF\xBB\xBF" + text.toUtf8()).fields, Cells{u"a"_s});
    EXPECT_EQ(cellsOf("a\nGr\xF6\xDF\x65 \x80\n"), cells);
    QByteArray utf16("\xFF\xFE", 2);
    for (const QChar character : text) {
        utf16.append(static_cast<char>(character.unicode() & 0xFF));
        utf16.append(static_cast<char>(character.unicode() >> 8));
    }
    EXPECT_EQ(cellsOf(utf16), cells);
    EXPECT_EQ(cellsOf("a\n\xC3\xB6\n", {{}, CsvEncoding::Windows1252, true}), Cells{u"Ã¶"_s});
    EXPECT_NE(parseCsv("a\n\xF6\n", {{}, CsvEncoding::Utf8, true}).error, QString());
    EXPECT_NE(parseCsv(QByteArray("a\n\0\n", 4)).error, QString()) << "not a text";
    EXPECT_NE(parseCsv(utf16.chopped(1)).error, QString());
}

TEST(CsvTable, GivesColumnsDifferentNames)
{
    EXPECT_EQ(parseCsv("a,,a, b \n1,2,3,4\n").fields,
              (Cells{u"a"_s, u"Column 2"_s, u"a (2)"_s, u"b"_s}));
    const CsvTable table = parseCsv("1,2\n3,4\n", {{}, CsvEncoding::Detect, false});
    EXPECT_EQ(table.fields, (Cells{u"Column 1"_s, u"Column 2"_s}));
    EXPECT_EQ(table.records(), 2);
}

TEST(CsvTable, HasLimits)
{
    const auto errorOf = [](const QByteArray& bytes) { return parseCsv(bytes).error; };
    const QByteArray widest = QByteArray(MaximumCsvColumns - 1, ',') + '\n';
    EXPECT_EQ(errorOf(widest + widest), QString());
    EXPECT_NE(errorOf(',' + widest + ',' + widest), QString());
    const QByteArray longest = "a\n" + QByteArray("1\n").repeated(MaximumCsvCells);
    EXPECT_EQ(errorOf(longest), QString());
    EXPECT_NE(errorOf(longest + "1\n"), QString());
    const QByteArray largest = "a\n" + QByteArray(MaximumCsvBytes - 2, 'x');
    EXPECT_EQ(errorOf(largest), QString());
    EXPECT_NE(errorOf(largest + 'x'), QString());
}

TEST(CsvTable, SaysWhyAFileCannotBeRead)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(readCsv(folder.filePath(u"missing.csv"_s)).error.contains(u"missing.csv"_s));
    EXPECT_TRUE(readCsv(folder.path()).error.contains(u"is not a file"_s));
    QFile file(folder.filePath(u"good.csv"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a\n1\n");
    file.close();
    EXPECT_EQ(readCsv(file.fileName()).cells, Cells{u"1"_s});
}

TEST(CsvSource, ShowsTheSelectedColumnOfARecord)
{
    workbench::datasources::DatasourceController sources;
    const CsvTable table = parseCsv("Name,Price\nApple,1\nPear,2\nFig,\n");
    const CsvOptions options{u';', CsvEncoding::Utf8, false};
    const QVariantMap properties = CsvSource::propertiesOf(u"/a/b.csv"_s, options, table);
    ASSERT_TRUE(sources.setValues({{4, CsvSource::Kind.toString(), properties, {}}}));
    EXPECT_EQ(sources.recordCount(), 3);
    EXPECT_EQ(sources.recordText(4, 1, {u"Price"_s}), u"2"_s);
    EXPECT_EQ(sources.recordText(4, 1, {u"Price"_s, u"Name"_s}), u"2 Pear"_s);
    EXPECT_EQ(sources.recordText(4, 2), u"Fig"_s);
    EXPECT_EQ(sources.recordText(4, 3, {u"Name"_s}), u"Apple"_s) << "starts again";
    EXPECT_EQ(sources.values().first().properties, properties);
    EXPECT_EQ(CsvSource::fileOf(properties), u"/a/b.csv"_s);
    EXPECT_EQ(CsvSource::optionsOf(properties), options);
}

TEST(CsvSource, OfADamagedLabelHasNoRecords)
{
    CsvSource source;
    source.setDatasourceProperty(u"Cells"_s, QStringList{u"1"_s});
    EXPECT_EQ(source.recordCount(), 0);
    EXPECT_FALSE(source.value(0).has_value());
    source.setDatasourceProperty(u"Fields"_s, QStringList{u"a"_s, u"a"_s});
    EXPECT_EQ(source.recordCount(), 0);
    EXPECT_EQ(CsvSource::optionsOf({{u"Encoding"_s, 17}}).encoding, CsvEncoding::Detect);
}

} // namespace

// TableModel's behavior for any table, tested with one that each test fills.

#include "supply/table_model.h"
#include "tests/support/captured_log.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class FilledTable : public TableModel
{
public:
    FilledTable(int headerRows, QList<QStringList> lines)
        : TableModel(headerRows)
        , m_lines(std::move(lines))
    {}

    bool openFile(const QString&) override { return m_opens; }
    [[nodiscard]] int fileRowCount() const override { return static_cast<int>(m_lines.size()); }
    [[nodiscard]] int fileColumnCount() const override
    {
        return m_lines.isEmpty() ? 0 : static_cast<int>(m_lines.first().size());
    }
    [[nodiscard]] QString cell(int line, int column) override
    {
        return m_lines.value(line).value(column);
    }

    void setOpens(bool opens) { m_opens = opens; }

private:
    QList<QStringList> m_lines;
    bool m_opens = true;
};

QStringList cells(const char* text)
{
    return QString::fromLatin1(text).split(u',');
}

TEST(TableModel, CountsTheLinesAfterItsHeaders)
{
    const QList<QStringList> lines = {cells("h,i"), cells("a,b"), cells("c,d")};
    for (const int headerRows : {0, 1, 2}) {
        const FilledTable table(headerRows, lines);
        EXPECT_EQ(table.rowCount(), 3 - headerRows);
        EXPECT_EQ(table.columnCount(), 2);
        EXPECT_EQ(table.rowCount(table.index(0, 0)), 0);
        EXPECT_EQ(table.columnCount(table.index(0, 0)), 0);
        EXPECT_EQ(table.data(table.index(0, 1)), lines[headerRows][1]);
    }
}

TEST(TableModel, HasNoRowsWhenEvenItsHeaderIsMissing)
{
    EXPECT_EQ(FilledTable(1, {}).rowCount(), 0);
    EXPECT_EQ(FilledTable(1, {}).columnCount(), 0);
}

TEST(TableModel, GivesTextAndAlignmentOnly)
{
    const FilledTable table(1, {cells("h"), cells("a")});
    const QModelIndex cell = table.index(0, 0);

    EXPECT_EQ(table.data(cell, Qt::DisplayRole), QVariant(u"a"_s));
    EXPECT_EQ(table.data(cell, Qt::TextAlignmentRole), QVariant(129));
    for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole, Qt::UserRole}) {
        EXPECT_FALSE(table.data(cell, role).isValid()) << role;
    }
    EXPECT_FALSE(table.data(QModelIndex(), Qt::DisplayRole).isValid());
    EXPECT_FALSE(table.data(QModelIndex(), Qt::TextAlignmentRole).isValid());
    EXPECT_FALSE(table.data(table.index(1, 0)).isValid());
    EXPECT_FALSE(table.data(table.index(0, 1)).isValid());
}

TEST(TableModel, NumbersItsRowsFromOne)
{
    const FilledTable table(1, {});
    EXPECT_EQ(table.headerData(0, Qt::Vertical), QVariant(u"1"_s));
    EXPECT_EQ(table.headerData(41, Qt::Vertical), QVariant(u"42"_s));
    EXPECT_EQ(table.headerData(2147483647, Qt::Vertical), QVariant(u"2147483648"_s));
    EXPECT_EQ(table.headerData(0, Qt::Vertical, Qt::TextAlignmentRole), QVariant(129));
    EXPECT_EQ(table.headerData(0, Qt::Horizontal, Qt::TextAlignmentRole), QVariant(129));
    EXPECT_FALSE(table.headerData(0, Qt::Vertical, Qt::EditRole).isValid());
    EXPECT_FALSE(table.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
}

TEST(TableModel, LettersItsColumnsWhenItHasNoHeaderLine)
{
    struct
    {
        int section;
        const char* name;
    } const cases[] = {{0, "A"},
                       {1, "B"},
                       {25, "Z"},
                       {26, "AA"},
                       {27, "AB"},
                       {51, "AZ"},
                       {52, "BA"},
                       {701, "ZZ"},
                       {702, "AAA"},
                       {-1, ""},
                       {2147483647, "FXSHRXX"}};
    const FilledTable table(0, {});
    for (const auto& row : cases) {
        EXPECT_EQ(table.headerData(row.section, Qt::Horizontal).toString(),
                  QLatin1String(row.name));
    }
}

TEST(TableModel, TakesColumnNamesFromItsHeaderLine)
{
    FilledTable table(1, {cells("SKU,Name"), cells("1,2")});
    EXPECT_FALSE(table.headerData(0, Qt::Horizontal).isValid());

    ASSERT_TRUE(table.setFileName(u"some file"_s));
    EXPECT_EQ(table.fileName(), u"some file"_s);
    EXPECT_EQ(table.headerData(0, Qt::Horizontal), QVariant(u"SKU"_s));
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), QVariant(u"Name"_s));
    EXPECT_FALSE(table.headerData(2, Qt::Horizontal).isValid());
    EXPECT_FALSE(table.headerData(-1, Qt::Horizontal).isValid());
}

TEST(TableModel, MakesColumnNamesUnique)
{
    struct
    {
        const char* header;
        const char* names;
    } const cases[] = {{"a,a,a", "a,a1,a2"}, {"a1,a,a", "a1,a,a2"}, {"a,a1,a", "a,a1,a2"},
                       {"a,,c", "a,B,c"},    {"B,", "B,B1"},        {",,", "A,B,C"},
                       {"B,,B", "B,B1,B2"},  {"a,a,a1", "a,a1,a11"}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.header);
        FilledTable table(1, {cells(row.header)});
        table.setFileName(u"x"_s);
        QStringList names;
        for (int column = 0; column < table.columnCount(); ++column) {
            names.append(table.headerData(column, Qt::Horizontal).toString());
        }
        EXPECT_EQ(names, cells(row.names)) << names.join(u',').toStdString();
    }
}

TEST(TableModel, NamesManyEqualColumnsInReasonableTime)
{
    FilledTable table(1, {QStringList(200000, u"a"_s)});
    table.setFileName(u"x"_s);
    EXPECT_EQ(table.headerData(199999, Qt::Horizontal).toString(), u"a199999"_s);
}

TEST(TableModel, KeepsItsFileNameWhenAnotherFileDoesNotOpen)
{
    FilledTable table(1, {cells("a")});
    table.setFileName(u"first"_s);
    table.setOpens(false);
    const CapturedLog log;

    EXPECT_FALSE(table.setFileName(u"second"_s));
    EXPECT_EQ(table.fileName(), u"first"_s);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.records()[0].level, Logger::Error);
    EXPECT_EQ(log.records()[0].source, QLatin1String("table_model"));
    EXPECT_EQ(log.records()[0].function,
              QLatin1String("virtual bool TableModel::setFileName(const QString&)"));
    // The stream separates its values with a space.
    EXPECT_EQ(log.records()[0].message, u"Could not open  \"second\""_s);
}

TEST(TableModel, NotifiesItsViewsOfAChangedTable)
{
    FilledTable table(1, {cells("a"), cells("b")});
    const QAbstractItemModelTester tester(&table,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
    table.setFileName(u"x"_s);
    EXPECT_EQ(reset.count(), 1);
}

} // namespace

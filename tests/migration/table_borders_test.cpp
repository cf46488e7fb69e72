// Cells whose borders are on some sides only.

#include "migration/census/table_borders.h"

#include <gtest/gtest.h>

using namespace migration;

namespace {

constexpr CellBorders All{true, true, true, true};
constexpr CellBorders None{};
constexpr CellBorders WithoutRight{true, true, true, false};
constexpr CellBorders WithoutTop{false, true, true, true};
constexpr CellBorders WithoutTopAndRight{false, true, true, false};
constexpr CellBorders AboveAndBelow{true, false, true, false};

} // namespace

// Office programs give a border between two cells to one of them.
TEST(TableBorders, ABorderBelongsToBothOfItsCells)
{
    TableBorders table;
    table.openRow();
    table.openCell(WithoutRight, 1);
    table.openCell(All, 1);
    table.openRow();
    table.openCell(WithoutTopAndRight, 1);
    table.openCell(WithoutTop, 1);
    table.close();
    EXPECT_EQ(table.bordered(), 4);
    EXPECT_EQ(table.partly(), 0);
}

TEST(TableBorders, CountsCellsWithABorderOnSomeSides)
{
    TableBorders table;
    table.openRow();
    table.openCell(All, 1);
    table.openCell(AboveAndBelow, 1); // no border between the two
    table.openCell(AboveAndBelow, 1);
    table.openCell(All, 1);
    table.openRow();
    table.openCell(None, 1);
    table.openCell(None, 1);
    table.openCell(None, 1);
    table.openCell(WithoutTop, 1); // the one above has it
    table.close();
    EXPECT_EQ(table.bordered(), 5);
    EXPECT_EQ(table.partly(), 2);
}

TEST(TableBorders, ComparesAllSidesOfTheTable)
{
    for (const CellBorders& borders :
         {WithoutRight, WithoutTop, AboveAndBelow, CellBorders{true, true, false, true}}) {
        TableBorders table;
        table.openRow();
        table.openCell(borders, 1);
        table.close();
        EXPECT_EQ(table.partly(), 1);
    }
}

TEST(TableBorders, FollowsCellsThatSpanColumnsAndRows)
{
    TableBorders table;
    table.openRow();
    table.openCell(WithoutRight, 2);
    table.openCovered(1);
    table.openCell(All, 1);
    table.openRow();
    table.openCell(WithoutTop, 1);
    table.openCell(WithoutTop, 1);
    table.openCovered(1); // the last cell of the first row
    table.close();
    EXPECT_EQ(table.bordered(), 4);
    EXPECT_EQ(table.partly(), 0);
}

TEST(TableBorders, IgnoresColumnsThatNoPageShows)
{
    TableBorders table;
    table.openRow();
    table.openCell(All, 1);
    table.openCovered(2'000'000'000);
    table.openCell(All, 1);
    table.close();
    EXPECT_EQ(table.bordered(), 2);
}

// The starts of lines, independent of the blocks in which the file is read.
#include "supply/csv_line_starts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

using testing::ElementsAre;

namespace {

std::vector<qint64> startsOf(std::string_view content, std::size_t pieceSize)
{
    CsvLineStarts starts;
    for (std::size_t from = 0; from < content.size(); from += pieceSize) {
        starts.take(content.substr(from, pieceSize));
    }
    starts.finish();
    return starts.offsets();
}

TEST(CsvLineStarts, AreTheSameInPiecesOfAnySize)
{
    struct
    {
        std::string_view content;
        std::vector<qint64> starts;
    } const cases[] = {
        {"", {0}},
        {"a\nbc\n", {0, 2, 5}},
        {"a\nbc", {0, 2, 4}},
        {"\"a\nb\"\nc\n", {0, 6, 8}},
        {"a\\\nb\nc", {0, 5, 6}},
        {"\"\\\"\n\"\nb", {0, 6, 7}},
        {"a\nb\\", {0, 2, 4}},
    };
    for (const auto& row : cases) {
        for (std::size_t size = 1; size <= std::max<std::size_t>(row.content.size(), 1); ++size) {
            EXPECT_EQ(startsOf(row.content, size), row.starts)
                << '"' << row.content << "\" in pieces of " << size;
        }
    }
}

TEST(CsvLineStarts, ReportTheirPosition)
{
    CsvLineStarts starts;
    EXPECT_EQ(starts.position(), 0);
    starts.take(std::string_view("a\\"));
    starts.take(std::string_view("\nb"));
    EXPECT_EQ(starts.position(), 4);
}

TEST(CsvLineStarts, StartEmptyInReusedMemory)
{
    CsvLineStarts starts(std::vector<qint64>{7, 8, 9});
    starts.take(std::string_view("a\n"));
    starts.finish();
    EXPECT_THAT(starts.takeOffsets(), ElementsAre(0, 2));
}

} // namespace

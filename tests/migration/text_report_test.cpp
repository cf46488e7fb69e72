#include "migration/report/text_report.h"

#include "tests/migration/documents.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

FileReport shelfReport()
{
    FileReport report;
    report.file = u"shelf.odg"_s;
    report.status = Status::Imported;
    report.page.width = 50.8;
    report.page.height = 25.4;
    report.sandbox = {u"files"_s, u"calls"_s};
    report.objects.inFile = 3;
    report.objects.imported = 2;
    report.itemList = {{u"rounded-rectangle"_s, 1.0, 2.0, 30.5, 4.0, {}, -1},
                       {u"text"_s, 0.0, 0.0, 9.0, 3.0, u"Two\nlines"_s, 4}};
    report.complete = {{u"text"_s, 1}};
    report.lost = {{u"table"_s, u"Tables were left out."_s, 2, true, {u"A"_s, u"B"_s}}};
    report.repaired = {{u"lists-replaced"_s, u"A list."_s, 1}};
    report.datasources = {{4, u"SequenceDatasource"_s, {u"Value"_s}, {}}};
    report.issues = {{u"Something."_s, -1, 3}};
    return report;
}

} // namespace

TEST(Inspect, DescribesALabelOnOneScreen)
{
    EXPECT_EQ(describeAsText(shelfReport()).toStdString(),
              "shelf.odg\n"
              "  Imported 2 of 3 objects. Content was lost or changed.\n"
              "  Page: 50.8 × 25.4 mm\n"
              "  Sandbox: files, calls\n"
              "Items (millimeters):\n"
              "  # kind                x   y width height source content\n"
              "  1 Rounded rectangle 1.0 2.0  30.5    4.0 -\n"
              "  2 Text              0.0 0.0   9.0    3.0 4      Two lines\n"
              "Data sources:\n"
              "  4: SequenceDatasource (Value)\n"
              "Imported completely:\n"
              "  1 × Text\n"
              "Not imported:\n"
              "  table (×2): Tables were left out. [A, B]\n"
              "Repaired:\n"
              "  lists-replaced: A list.\n"
              "Warnings:\n"
              "  Something. (×3)\n");
}

TEST(Inspect, SaysWhyAFileWasNotImported)
{
    FileReport report;
    report.file = u"old.cnv"_s;
    report.error = u"The file is empty."_s;
    EXPECT_EQ(describeAsText(report).toStdString(),
              "old.cnv\n  Not imported: The file is empty.\n");
}

TEST(Inspect, NothingFromAFileMovesTheCursor)
{
    FileReport report = shelfReport();
    report.itemList[0].content = u"\x1b[2J\x07"_s;
    report.issues[0].text = u"\x1b]0;title\x07"_s;
    EXPECT_FALSE(describeAsText(report).contains(QChar(0x1b)));
    EXPECT_FALSE(describeAsText(report).contains(QChar(0x07)));
}

TEST(Inspect, ListsEveryItemOfALabel)
{
    const FileReport report = reportOn(qmtx(PlainLabel), nullptr, {.itemList = true});
    ASSERT_EQ(report.itemList.size(), 1);
    const ItemReport& item = report.itemList.constFirst();
    EXPECT_EQ(item.kind, u"rich-text"_s);
    EXPECT_EQ(item.content, u"Plain"_s);
    EXPECT_NEAR(item.x, 15.0 / 72.0 * 25.4, 0.001);
    EXPECT_NEAR(item.width, 75.0 / 72.0 * 25.4, 0.001);
    EXPECT_TRUE(reportOn(qmtx(PlainLabel)).itemList.isEmpty());
}

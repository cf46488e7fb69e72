#include "migration/report/text_report.h"

#include "tests/migration/documents.h"

#include <gtest/gtest.h>

using namespace migration;

namespace {

FileReport shelfReport()
{
    FileReport report;
    report.file = QStringLiteral("shelf.odg");
    report.status = Status::Imported;
    report.page.width = 50.8;
    report.page.height = 25.4;
    report.sandbox = {QStringLiteral("files"), QStringLiteral("calls")};
    report.objects.inFile = 3;
    report.objects.imported = 2;
    report.itemList = {
        {QStringLiteral("rounded-rectangle"), 1.0, 2.0, 30.5, 4.0, {}, -1},
        {QStringLiteral("text"), 0.0, 0.0, 9.0, 3.0, QStringLiteral("Two\nlines"), 4}};
    report.complete = {{QStringLiteral("text"), 1}};
    report.lost = {{QStringLiteral("table"),
                    QStringLiteral("Tables were left out."),
                    2,
                    true,
                    {QStringLiteral("A"), QStringLiteral("B")}}};
    report.repaired = {{QStringLiteral("lists-replaced"), QStringLiteral("A list."), 1}};
    report.datasources = {{4, QStringLiteral("SequenceDatasource"), {QStringLiteral("Value")}, {}}};
    report.issues = {{QStringLiteral("Something."), -1, 3}};
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
    report.file = QStringLiteral("old.cnv");
    report.error = QStringLiteral("The file is empty.");
    EXPECT_EQ(describeAsText(report).toStdString(),
              "old.cnv\n  Not imported: The file is empty.\n");
}

TEST(Inspect, NothingFromAFileMovesTheCursor)
{
    FileReport report = shelfReport();
    report.itemList[0].content = QStringLiteral("\x1b[2J\x07");
    report.issues[0].text = QStringLiteral("\x1b]0;title\x07");
    EXPECT_FALSE(describeAsText(report).contains(QChar(0x1b)));
    EXPECT_FALSE(describeAsText(report).contains(QChar(0x07)));
}

TEST(Inspect, ListsEveryItemOfALabel)
{
    const FileReport report = reportOn(qmtx(kPlainLabel), nullptr, {.itemList = true});
    ASSERT_EQ(report.itemList.size(), 1);
    const ItemReport& item = report.itemList.constFirst();
    EXPECT_EQ(item.kind, QStringLiteral("rich-text"));
    EXPECT_EQ(item.content, QStringLiteral("Plain"));
    EXPECT_NEAR(item.x, 15.0 / 72.0 * 25.4, 0.001);
    EXPECT_NEAR(item.width, 75.0 / 72.0 * 25.4, 0.001);
    EXPECT_TRUE(reportOn(qmtx(kPlainLabel)).itemList.isEmpty());
}

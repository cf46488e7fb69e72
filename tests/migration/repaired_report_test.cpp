// Reports on documents that are really repaired, page by page.

#include "migration/model/loss_kinds.h"
#include "repair/repaired_import.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

/// @param pages that are imported; all if 0
FileReport repairedReport(const Document& document, int pagesTaken = 0)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(document.name);
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(document.bytes) < 0 || !file.flush()) {
        return {};
    }
    RepairedFileReport report(fileName, document.name);
    repair::RepairedImport import = repair::importRepaired(fileName);
    const std::shared_ptr<repair::DocumentRepair> pages = import.document;
    const int count = pagesTaken > 0 ? pagesTaken : import.pageCount;
    for (int page = 1; page <= count; ++page) {
        if (page > 1) {
            import = repair::importFurtherPage(*pages, page);
        }
        QList<RepairReport> repairs;
        for (const repair::Repair& repair : import.repairs) {
            repairs.append({repair.code, {}, repair.count});
        }
        report.addPage(import.result, import.package, repairs);
    }
    if (count < import.pageCount) {
        report.leaveOutPages(import.pageCount - count);
    }
    return report.finish();
}

const DocumentParts PageBreaks = {
    .automaticStyles =
        "<style:style style:name=\"B\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:break-before=\"page\"/></style:style>"};

} // namespace

TEST(RepairedReport, ATextOfSeveralPagesIsComplete)
{
    const FileReport report =
        repairedReport(odt("<text:p>First page</text:p>"
                           "<text:p text:style-name=\"B\">Second page</text:p>"
                           "<text:p text:style-name=\"B\">Third page</text:p>",
                           PageBreaks));
    EXPECT_EQ(report.objects.imported, 3);
    EXPECT_EQ(verdictOf(report), Verdict::Complete) << codesOf(report).toStdString();
}

TEST(RepairedReport, CountsTheTextsOfPagesThatWereLeftOut)
{
    const Document document = odt("<text:p>First page</text:p>"
                                  "<text:p text:style-name=\"B\">Second page</text:p>"
                                  "<text:p text:style-name=\"B\">Third page</text:p>"
                                  "<text:p>More of the third page</text:p>",
                                  PageBreaks);
    const FileReport report = repairedReport(document, 2);
    const Finding* const leftOut = findingOf(report, lossCode(LossKind::PagesLeftOut));
    ASSERT_NE(leftOut, nullptr) << codesOf(report).toStdString();
    EXPECT_EQ(leftOut->count, 2);
    EXPECT_EQ(leftOut->details, QStringList{u"3…"_s});
    EXPECT_EQ(report.objects.imported, 2);
    EXPECT_EQ(verdictOf(report), Verdict::Lossy);
    EXPECT_EQ(codesOf(report), u"pages-left-out ×2 [3…]"_s) << codesOf(report).toStdString();
}

// Unlike a frame, a shape of a text is filled unless its style says otherwise.
TEST(RepairedReport, AShapeOfATextIsFilledByDefault)
{
    const FileReport report = repairedReport(
        odt("<text:p>Text<draw:rect text:anchor-type=\"paragraph\" draw:style-name=\"F\" "
            "svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\"/></text:p>",
            {.automaticStyles = "<style:style style:name=\"F\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:fill-color=\"#ffde21\"/>"
                                "</style:style>"}));
    EXPECT_EQ(report.objects.imported, 2);
    EXPECT_EQ(findingOf(report, lossCode(LossKind::FillSimplified)), nullptr)
        << codesOf(report).toStdString();
    EXPECT_EQ(findingOf(report, lossCode(LossKind::FillAdded)), nullptr)
        << codesOf(report).toStdString();
}

// White letters are on the blue behind them, not on the white page.
TEST(RepairedReport, AutomaticTextIsReadableOnItsOwnDarkGround)
{
    const FileReport report = repairedReport(
        odt("<text:p><text:span text:style-name=\"D\">Night</text:span></text:p>",
            {.automaticStyles = "<style:style style:name=\"D\" style:family=\"text\">"
                                "<style:text-properties fo:background-color=\"#000080\"/>"
                                "</style:style>"}));
    EXPECT_EQ(report.objects.imported, 1);
    EXPECT_EQ(verdictOf(report), Verdict::Complete) << codesOf(report).toStdString();
}

// The colors of texts in tables are not looked up: white letters on gray are the document's own.
TEST(RepairedReport, TextsOfTablesHaveTheColorsOfTheDocument)
{
    const auto unreadable = [](const QByteArray& ground) {
        const FileReport report = repairedReport(
            odt("<table:table><table:table-column/><table:table-row><table:table-cell "
                "table:style-name=\"C\"><text:p><text:span text:style-name=\"W\">Head</text:span>"
                "</text:p></table:table-cell></table:table-row></table:table>",
                {.automaticStyles =
                     "<style:style style:name=\"C\" style:family=\"table-cell\">"
                     "<style:table-cell-properties fo:background-color=\"" +
                     ground +
                     "\"/></style:style><style:style style:name=\"W\" style:family=\"text\">"
                     "<style:text-properties fo:color=\"#ffffff\"/></style:style>"}));
        EXPECT_EQ(report.objects.imported, 1);
        return findingOf(report, lossCode(LossKind::TextUnreadable)) != nullptr;
    };
    EXPECT_FALSE(unreadable("#b2b2b2"));
    EXPECT_TRUE(unreadable("transparent"));
}

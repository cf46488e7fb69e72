// Reports on documents that are really repaired, page by page.

#include "migration/losses/check_numbers.h"
#include "migration/model/loss_kinds.h"
#include "repair/repaired_import.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>

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

TEST(RepairedReport, ObjectsOfTheMasterPageOfADrawingAreComplete)
{
    const QByteArray shape = "<draw:rect svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
                             "svg:height=\"0.5in\"/>";
    const DocumentParts parts = {
        .masterPages = "<style:master-page style:name=\"M\" style:page-layout-name=\"L\">"
                       "<draw:frame svg:x=\"1in\" svg:y=\"2in\" svg:width=\"2in\" "
                       "svg:height=\"0.5in\"><draw:text-box><text:p>Footer</text:p></draw:text-box>"
                       "</draw:frame></style:master-page>"};
    const FileReport one = repairedReport(odg(shape, parts));
    EXPECT_TRUE(one.lost.isEmpty());
    EXPECT_EQ(one.objects.imported, one.objects.inFile);
    const FileReport two = repairedReport(odg(
        shape + "</draw:page><draw:page draw:name=\"page2\" draw:master-page-name=\"M\">" + shape,
        parts));
    EXPECT_TRUE(two.lost.isEmpty());
    EXPECT_EQ(two.objects.imported, two.objects.inFile);
}

TEST(RepairedReport, FormControlsThatBecameBoxesAreComplete)
{
    const QByteArray control = "<draw:control draw:style-name=\"filled\" svg:x=\"1in\" "
                               "svg:y=\"1in\" svg:width=\"1in\" svg:height=\"0.5in\" "
                               "draw:control=\"c\"/>";
    const DocumentParts parts = {.automaticStyles =
                                     "<style:style style:name=\"filled\" style:family=\"graphic\">"
                                     "<style:graphic-properties draw:fill=\"solid\" "
                                     "draw:fill-color=\"#729fcf\"/></style:style>"};
    const FileReport shown =
        repairedReport(odg("<office:forms><form:form><form:textarea form:id=\"c\" "
                           "form:current-value=\"Lot 42\"/></form:form></office:forms>" +
                               control,
                           parts));
    EXPECT_TRUE(shown.lost.isEmpty());
    EXPECT_TRUE(shown.changed.isEmpty());
    EXPECT_EQ(shown.objects.imported, 1);
    const FileReport unknown = repairedReport(odg(control, parts));
    ASSERT_EQ(unknown.lost.size(), 1);
    EXPECT_EQ(unknown.lost[0].code, u"form-control"_s) << "no form has this control";
}

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

TEST(RepairedReport, AWatermarkIsPaleInTheDocument)
{
    const FileReport report = repairedReport(
        odt("<text:p><draw:rect draw:style-name=\"G\" text:anchor-type=\"paragraph\" svg:x=\"1in\" "
            "svg:y=\"1in\" svg:width=\"2in\" svg:height=\"1in\"><text:p text:style-name=\"W\">DRAFT"
            "</text:p></draw:rect></text:p>",
            {.automaticStyles =
                 "<style:style style:name=\"G\" style:family=\"graphic\">"
                 "<style:graphic-properties draw:fill=\"none\" draw:stroke=\"none\"/></style:style>"
                 "<style:style style:name=\"W\" style:family=\"paragraph\">"
                 "<style:text-properties fo:color=\"#eeeeee\"/></style:style>"}));
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

// The ground is behind the letters: a blank line above them is on white.
TEST(RepairedReport, TextIsReadableOnTheGroundOfItsParagraph)
{
    const FileReport report = repairedReport(
        odt("<text:section><text:p text:style-name=\"W\"/><text:p text:style-name=\"T\">Topics"
            "</text:p></text:section>",
            {.automaticStyles = "<style:style style:name=\"W\" style:family=\"paragraph\">"
                                "<style:text-properties fo:color=\"#ffffff\"/></style:style>"
                                "<style:style style:name=\"T\" style:family=\"paragraph\" "
                                "style:parent-style-name=\"W\"><style:paragraph-properties "
                                "fo:background-color=\"#0099ff\"/></style:style>"}));
    EXPECT_EQ(report.objects.imported, 1);
    EXPECT_EQ(findingOf(report, lossCode(LossKind::TextUnreadable)), nullptr);
}

TEST(RepairedReport, ShadowsOfPagesAreMissed)
{
    const auto verdict = [](const QByteArray& shadow) {
        return verdictOf(repairedReport(
            odt("<text:p>Text</text:p>",
                {.pageLayout =
                     "fo:page-width=\"4in\" fo:page-height=\"3in\" style:shadow=\"" + shadow + '"',
                 .masterPages = "<style:master-page style:name=\"Standard\" "
                                "style:page-layout-name=\"L\"/>"})));
    };
    EXPECT_EQ(verdict("none"), Verdict::Complete);
    EXPECT_EQ(verdict("#808080 0.1in 0.1in"), Verdict::Changed);
}

// A picture that cannot be read leaves a color.
TEST(RepairedReport, PicturesThatFillShapesAreMissedIfTheyCannotBeRead)
{
    const FileReport report = repairedReport(
        odg("<draw:rect draw:style-name=\"B\" svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
            "svg:height=\"1in\"/>",
            {.automaticStyles = "<style:style style:name=\"B\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:fill=\"bitmap\" "
                                "draw:fill-image-name=\"P\"/></style:style>",
             .commonStyles = "<draw:fill-image draw:name=\"P\" xlink:href=\"Pictures/p.wmf\"/>"}));
    EXPECT_EQ(report.objects.imported, 1);
    EXPECT_NE(findingOf(report, lossCode(LossKind::PictureFill)), nullptr)
        << codesOf(report).toStdString();
}

// The reader puts all text on one side.
TEST(RepairedReport, TextOnOneSideOfAnObjectIsAChange)
{
    const auto count = [](const QByteArray& wrap, const QByteArray& x) {
        const QByteArray stated = wrap.isEmpty() ? wrap : "style:wrap=\"" + wrap + '"';
        const FileReport report = repairedReport(
            odt("<text:p><draw:rect text:anchor-type=\"paragraph\" draw:style-name=\"W\" svg:x=\"" +
                    x + "\" svg:y=\"0in\" svg:width=\"2in\" svg:height=\"1in\"/>" +
                    QByteArray("Words beside the object. ").repeated(30) + "</text:p>",
                {.pageLayout = "fo:page-width=\"8in\" fo:page-height=\"6in\"",
                 .automaticStyles = "<style:style style:name=\"W\" style:family=\"graphic\">"
                                    "<style:graphic-properties " +
                                    stated + "/></style:style>"}));
        const Finding* const finding = findingOf(report, lossCode(LossKind::TextWrap));
        return finding != nullptr ? finding->count : 0;
    };
    EXPECT_EQ(count("", "3in"), 1);
    EXPECT_EQ(count("parallel", "3in"), 1);
    EXPECT_EQ(count("dynamic", "3in"), 1);
    EXPECT_EQ(count("parallel", "0.4in"), 1) << "a narrow column on the left";
    EXPECT_EQ(count("parallel", "0.2in"), 0) << "too narrow for words";
    EXPECT_EQ(count("right", "3in"), 0);
    EXPECT_EQ(count("run-through", "3in"), 0);
    EXPECT_EQ(count("parallel", "0in"), 0) << "there is no room on the left";
}

// The reader makes room for the object in all lines of its paragraph.
TEST(RepairedReport, TextAboveAnObjectThatMakesRoomForItIsAChange)
{
    const auto isReported = [](const QByteArray& x) {
        const FileReport report = repairedReport(
            odt("<text:p><draw:rect text:anchor-type=\"paragraph\" svg:x=\"" + x +
                    "\" svg:y=\"0.3in\" svg:width=\"2in\" svg:height=\"1in\"/>Above it</text:p>",
                {.pageLayout = "fo:page-width=\"8in\" fo:page-height=\"6in\""}));
        return findingOf(report, lossCode(LossKind::TextWrap)) != nullptr;
    };
    EXPECT_TRUE(isReported("0.5in"));
    EXPECT_FALSE(isReported("5in")) << "the text ends before the object";
    EXPECT_FALSE(isReported("0in"));
}

TEST(RepairedReport, AnAssumedPageSizeIsAChange)
{
    const auto isAssumed = [](const QByteArray& layout) {
        const FileReport report =
            repairedReport(odt("<text:p>Words</text:p>", {.pageLayout = layout}));
        return findingOf(report, lossCode(LossKind::PageSizeAssumed)) != nullptr;
    };
    EXPECT_TRUE(isAssumed("fo:margin=\"1in\""));
    EXPECT_TRUE(isAssumed("fo:page-width=\"4in\""));
    EXPECT_FALSE(isAssumed("fo:page-width=\"4in\" fo:page-height=\"3in\""));
}

// The picture of an object shows more than its content.
TEST(RepairedReport, ObjectsThatAreDrawnAgainAreAChange)
{
    const QByteArray object =
        "<draw:frame svg:x=\"1in\" svg:y=\"1in\" svg:width=\"2in\" svg:height=\"1in\">"
        "<draw:object xlink:href=\"./Object 1\"/></draw:frame>";
    const DocumentParts parts = {.embeddedObject =
                                     "<office:text><text:p>Inner</text:p></office:text>"};
    const FileReport report = repairedReport(odg(object + PlainRect + object, parts));
    const Finding* const finding = findingOf(report, lossCode(LossKind::ObjectRedrawn));
    ASSERT_NE(finding, nullptr) << codesOf(report).toStdString();
    EXPECT_EQ(finding->count, 2);
    EXPECT_EQ(findingOf(repairedReport(odg(PlainRect)), lossCode(LossKind::ObjectRedrawn)),
              nullptr);
}

// The text does not make room for objects of the page.
TEST(RepairedReport, TextOverAnObjectOfThePageIsAChange)
{
    const auto isReported = [](const QByteArray& wrap) {
        const FileReport report = repairedReport(
            odt("<text:p><draw:rect text:anchor-type=\"page\" text:anchor-page-number=\"1\" "
                "draw:style-name=\"W\" svg:x=\"3in\" svg:y=\"0in\" svg:width=\"2in\" "
                "svg:height=\"1in\"/>" +
                    QByteArray("Words below the object. ").repeated(30) + "</text:p>",
                {.pageLayout = "fo:page-width=\"8in\" fo:page-height=\"6in\"",
                 .automaticStyles = "<style:style style:name=\"W\" style:family=\"graphic\">"
                                    "<style:graphic-properties style:wrap=\"" +
                                    wrap + "\"/></style:style>"}));
        return findingOf(report, lossCode(LossKind::TextWrap)) != nullptr;
    };
    EXPECT_TRUE(isReported("parallel"));
    EXPECT_FALSE(isReported("run-through"));
}

TEST(RepairedReport, HeadingsHaveTheirNumbers)
{
    const DocumentParts parts = {
        .automaticStyles = "<style:style style:name=\"N\" style:family=\"paragraph\" "
                           "style:list-style-name=\"\"/>",
        .commonStyles = "<text:outline-style><text:outline-level-style text:level=\"1\" "
                        "style:num-format=\"1\"/><text:outline-level-style text:level=\"2\" "
                        "style:num-format=\"\"/></text:outline-style>"};
    const FileReport report =
        repairedReport(odt("<text:h text:outline-level=\"1\">First</text:h>"
                           "<text:h text:outline-level=\"2\">Second</text:h>"
                           "<text:h text:outline-level=\"1\" text:style-name=\"N\">Third</text:h>"
                           "<text:p>First</text:p>",
                           parts));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::Numbering)), nullptr);
    EXPECT_EQ(codesOf(report), QString());
}

TEST(RepairedReport, NumbersOfHeadingsAreMissed)
{
    Census document;
    document.numberedHeadings = {u"First"_s, u"Second"_s};
    LabelFacts label;
    ItemFacts item;
    item.text = u"First\n2 Second\nSecond"_s;
    label.items.append(item);
    checkNumbers(document, label);
    const Tally tally = label.tallies[LossKind::Numbering];
    EXPECT_EQ(tally.count, 1);
    EXPECT_EQ(tally.details, QStringList{u"First"_s});
}

TEST(RepairedReport, FontsOfPartsOfATextAreCompared)
{
    const auto fonts = [](const QByteArray& family) {
        const FileReport report = repairedReport(
            odt("<text:p>The first words <text:span text:style-name=\"F\">are followed by others"
                "</text:span> and the last ones</text:p>",
                {.automaticStyles = "<style:style style:name=\"F\" style:family=\"text\">"
                                    "<style:text-properties fo:font-family=\"" +
                                    family + "\"/></style:style>"}));
        const Finding* const finding = findingOf(report, lossCode(LossKind::FontReplaced));
        return finding != nullptr ? finding->details.join(u';') : QString();
    };
    EXPECT_EQ(fonts("'Liberation Mono'"), u""_s);
    // As documents made from PDF files write it.
    EXPECT_EQ(fonts("LiberationMono"), u""_s);
    EXPECT_TRUE(fonts("'No Such Font'").startsWith(u"No Such Font → "_s))
        << fonts("'No Such Font'").toStdString();
}

TEST(RepairedReport, ColorsThatLookTheSameAreEqual)
{
    const auto isColored = [](const QByteArray& color) {
        const FileReport report = repairedReport(
            odt("<text:p text:style-name=\"C\">Colored</text:p>",
                {.automaticStyles = "<style:style style:name=\"C\" style:family=\"paragraph\">"
                                    "<style:text-properties fo:color=\"" +
                                    color + "\"/></style:style>"}));
        return findingOf(report, lossCode(LossKind::TextColor)) != nullptr;
    };
    EXPECT_FALSE(isColored("#00000a"));
    EXPECT_FALSE(isColored("#ff0000")) << "repair sets it";
}

// Pictures and captions in a text box are objects of the label.
TEST(RepairedReport, ObjectsInATextBoxAreNotLost)
{
    const QByteArray size = " svg:width=\"1in\" svg:height=\"1in\"";
    const FileReport report = repairedReport(
        odt("<text:p>Figure<draw:frame text:anchor-type=\"paragraph\" svg:x=\"1in\" "
            "svg:y=\"1in\" svg:width=\"1.5in\"><draw:text-box fo:min-height=\"1.5in\"><text:p>"
            "<draw:frame text:anchor-type=\"as-char\"" +
            size +
            "><draw:image xlink:href=\"Pictures/good.png\"/></draw:frame><draw:frame "
            "text:anchor-type=\"as-char\" svg:width=\"1in\"><draw:text-box "
            "fo:min-height=\"0.2in\"><text:p>Caption</text:p></draw:text-box></draw:frame>"
            "</text:p></draw:text-box></draw:frame></text:p>"));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::NestedObject)), nullptr)
        << codesOf(report).toStdString();
    EXPECT_EQ(report.objects.inFile, report.objects.imported);
}

TEST(RepairedReport, NumbersOfLinesAreMissed)
{
    const auto isChanged = [](const QByteArray& numbers) {
        const FileReport report = repairedReport(
            odt("<text:p>Text</text:p>",
                {.commonStyles = "<text:linenumbering-configuration" + numbers + "/>"}));
        return findingOf(report, lossCode(LossKind::TextEffect)) != nullptr;
    };
    EXPECT_TRUE(isChanged(""));
    EXPECT_FALSE(isChanged(" text:number-lines=\"false\""));
}

// The curve is not drawn, as in the document.
TEST(RepairedReport, TextAlongACurveBecomesStraight)
{
    const FileReport report = repairedReport(
        odg("<draw:custom-shape draw:style-name=\"F\" svg:x=\"1in\" svg:y=\"1in\" "
            "svg:width=\"2in\" svg:height=\"1in\"><text:p>Around</text:p>"
            "<draw:enhanced-geometry draw:type=\"mso-spt100\" draw:text-path=\"true\" "
            "svg:viewBox=\"0 0 100 100\" draw:enhanced-path=\"M 0 0 L 100 0 100 100 Z N\"/>"
            "</draw:custom-shape>",
            {.automaticStyles = "<style:style style:name=\"F\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:fill=\"solid\" "
                                "draw:fill-color=\"#c9211e\"/></style:style>"}));
    EXPECT_NE(findingOf(report, lossCode(LossKind::TextPath)), nullptr)
        << codesOf(report).toStdString();
    const auto symbol =
        std::find_if(report.items.begin(), report.items.end(),
                     [](const KindCount& each) { return each.kind == "symbol"_L1; });
    EXPECT_TRUE(symbol == report.items.end() || symbol->count == 0);
    EXPECT_EQ(verdictOf(report), Verdict::Changed) << codesOf(report).toStdString();
}

TEST(RepairedReport, CellsHaveTheBordersOfTheirSides)
{
    const auto count = [](const QByteArray& borders,
                          const QByteArray& content = "<text:p>Head</text:p>") {
        const FileReport report = repairedReport(
            odt("<table:table><table:table-column/><table:table-row><table:table-cell "
                "table:style-name=\"C\">" +
                    content +
                    "</table:table-cell>"
                    "</table:table-row></table:table>",
                {.automaticStyles = "<style:style style:name=\"C\" style:family=\"table-cell\">"
                                    "<style:table-cell-properties " +
                                    borders + "/></style:style>"}));
        const Finding* const finding = findingOf(report, lossCode(LossKind::CellBorders));
        return finding != nullptr ? finding->count : 0;
    };
    EXPECT_EQ(count("fo:border=\"1pt solid #000000\""), 0);
    EXPECT_EQ(count("fo:border=\"none\""), 0);
    EXPECT_EQ(
        count("fo:border=\"1pt solid #000000\"",
              "<table:table table:is-sub-table=\"true\"><table:table-column/><table:table-row>"
              "<table:table-cell table:style-name=\"C\"><text:p>Part</text:p>"
              "</table:table-cell></table:table-row></table:table>"),
        1);
    EXPECT_EQ(count("fo:border=\"1pt solid #000000\" fo:border-left=\"none\""), 0);
    EXPECT_EQ(count("fo:border-top=\"2pt double #000000\""), 0);
    EXPECT_EQ(count("fo:border=\"1pt hidden #000000\""), 0);
    EXPECT_EQ(count("fo:border=\"none\" fo:border-top=\"1pt dotted #000000\""), 1);
}

TEST(RepairedReport, ParagraphsHaveTheirBorders)
{
    const auto isChanged = [](const QByteArray& border) {
        const FileReport report = repairedReport(
            odt("<text:p text:style-name=\"B\">Words</text:p>",
                {.automaticStyles = "<style:style style:name=\"B\" style:family=\"paragraph\">"
                                    "<style:paragraph-properties " +
                                    border + "/></style:style>"}));
        return verdictOf(report) != Verdict::Complete;
    };
    EXPECT_FALSE(isChanged("fo:border=\"1pt solid #000000\""));
    EXPECT_FALSE(isChanged("fo:border=\"none\" fo:border-top=\"3pt double #000000\""));
    EXPECT_TRUE(isChanged("fo:border-bottom=\"1pt dotted #000000\""));
}

// Repair puts it at the end of its page.
TEST(RepairedReport, FootnotesHaveANumberAndAText)
{
    const FileReport report = repairedReport(
        odt("<text:p>Words<text:note text:note-class=\"footnote\"><text:note-citation>1"
            "</text:note-citation><text:note-body><text:p>of a note</text:p></text:note-body>"
            "</text:note> and more</text:p>"));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::TextDiffers)), nullptr)
        << codesOf(report).toStdString();
    EXPECT_EQ(findingOf(report, lossCode(LossKind::Footnote)), nullptr);
}

// The value in the file may be that of another page.
// Their numbers are between the lines.
TEST(RepairedReport, ListsInShapesAreComplete)
{
    const auto box = [](const QByteArray& y, const QByteArray& text) {
        return "<draw:frame svg:x=\"1in\" svg:y=\"" + y +
               "\" svg:width=\"2in\" svg:height=\"0.8in\"><draw:text-box>" + text +
               "</draw:text-box></draw:frame>";
    };
    const QByteArray list =
        "<text:list text:style-name=\"L\"><text:list-item><text:p>One</text:p></text:list-item>"
        "<text:list-item><text:p>Two</text:p></text:list-item></text:list><text:p>End</text:p>";
    const FileReport report = repairedReport(
        odg(box("0.2in", list) + box("1.2in", "<text:p>H<text:span>2</text:span>O</text:p>"
                                              "<text:p>a<text:tab/>b</text:p>"),
            {.automaticStyles = "<text:list-style style:name=\"L\"><text:list-level-style-bullet "
                                "text:level=\"1\" text:bullet-char=\"-\"/></text:list-style>"}));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::TextDiffers)), nullptr)
        << codesOf(report).toStdString();
}

TEST(RepairedReport, NumbersOfPagesAreThoseOfTheLabel)
{
    const FileReport report = repairedReport(
        odt("<text:p>See page <text:page-number>0</text:page-number> of <text:page-count>7"
            "</text:page-count>.</text:p>"));
    EXPECT_EQ(report.objects.imported, report.objects.inFile);
    EXPECT_EQ(findingOf(report, lossCode(LossKind::TextDiffers)), nullptr)
        << codesOf(report).toStdString();
}

TEST(RepairedReport, ValuesOfVariablesInHeadersMayDiffer)
{
    const FileReport shown = repairedReport(odt(
        "<text:p><text:variable-set text:name=\"V\">fresh</text:variable-set> Text</text:p>",
        {.masterPages =
             "<style:master-page style:name=\"Standard\" "
             "style:page-layout-name=\"L\"><style:header><text:p>Value: "
             "<text:span><text:variable-get text:name=\"V\">stale"
             "</text:variable-get></text:span> here</text:p></style:header></style:master-page>"}));
    EXPECT_EQ(findingOf(shown, lossCode(LossKind::HeaderOrFooter)), nullptr)
        << codesOf(shown).toStdString();
    EXPECT_EQ(findingOf(shown, lossCode(LossKind::TextDiffers)), nullptr)
        << codesOf(shown).toStdString();
}

// Repair takes groups and further pages apart, but cannot draw what has three dimensions.
TEST(RepairedReport, ThreeDimensionalObjectsAreLostEverywhere)
{
    const QByteArray scene = "<dr3d:scene svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
                             "svg:height=\"1in\"><dr3d:cube/></dr3d:scene>";
    for (const Document& document :
         {odg("<draw:g>" + scene + PlainRect + "</draw:g>"),
          odt("<text:p>Text" + scene + "</text:p>"), odt("<text:p>Text</text:p>" + scene)}) {
        const FileReport report = repairedReport(document);
        const Finding* const lost = findingOf(report, lossCode(LossKind::ThreeDScene));
        ASSERT_NE(lost, nullptr) << codesOf(report).toStdString();
        EXPECT_EQ(lost->count, 1);
        EXPECT_EQ(report.objects.imported, 1);
        EXPECT_EQ(verdictOf(report), Verdict::Lossy);
    }
}

TEST(RepairedReport, DepthOfAShapeIsAnEffect)
{
    const auto isDropped = [](const QByteArray& depth) {
        const FileReport report =
            repairedReport(odg("<draw:custom-shape svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
                               "svg:height=\"1in\"><draw:enhanced-geometry draw:type=\"rectangle\" "
                               "draw:extrusion=\"" +
                               depth + "\"/></draw:custom-shape>"));
        return findingOf(report, lossCode(LossKind::EffectDropped)) != nullptr;
    };
    EXPECT_TRUE(isDropped("true"));
    EXPECT_FALSE(isDropped("false"));
}

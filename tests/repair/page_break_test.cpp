// Text documents without page breaks: a page that is full continues on the next one.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Points: the page of these documents, 5 cm high, with margins of 36 points above and below.
constexpr double PageHeight = 5.0 * 72.0 / 2.54;
constexpr double Margin = 20.0;

QByteArray pageStyles(const QByteArray& footer = {})
{
    QByteArray styles = drawingStyles({}, {}, footer);
    styles.replace("fo:page-height=\"5cm\" fo:margin=\"0cm\"/>",
                   "fo:page-height=\"5cm\" fo:margin=\"20pt\"/><style:footer-style>"
                   "<style:header-footer-properties fo:min-height=\"15pt\"/></style:footer-style>");
    return styles;
}

QByteArray textDocument(const QByteArray& text, const QByteArray& styles = {})
{
    return "<office:document-content><office:automatic-styles>" + styles +
           "</office:automatic-styles><office:body><office:text>" + text +
           "</office:text></office:body></office:document-content>";
}

QByteArray paragraphs(int first, int last, const QByteArray& style = {})
{
    QByteArray text;
    for (int number = first; number <= last; ++number) {
        text += "<text:p text:style-name=\"" + style + "\">p" + QByteArray::number(number) +
                "</text:p>";
    }
    return text;
}

/// The texts of one label, from top to bottom, and where they end.
struct Label
{
    QString text;
    double bottom = 0.0;
    double objectTop = 0.0; ///< of the last drawn object
    int pageCount = 0;
};

Label labelOf(const repair::RepairedImport& import)
{
    Label label;
    label.pageCount = import.pageCount;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const double top = item->graphicsItem()->pos().y();
        if (auto* const text = dynamic_cast<RichTextItem*>(item->contractItem())) {
            label.text += (label.text.isEmpty() ? QString() : u"|"_s) + text->toPlainText();
            label.bottom = std::max(label.bottom, top + text->getItemHeight());
        } else if (item->shapeType() == KestTypes::Ellipse) {
            label.objectTop = top;
        }
    }
    return label;
}

QList<Label> labelsOf(const QByteArray& content, const QByteArray& styles = pageStyles())
{
    const QTemporaryDir folder;
    const repair::RepairedImport first =
        repair::importRepaired(writePackage(folder.path(), content, styles));
    QList<Label> labels;
    if (!first.isRepaired()) {
        return labels;
    }
    labels.append(labelOf(first));
    for (int page = 2; first.document && page <= first.document->pageCount(); ++page) {
        labels.append(labelOf(repair::importFurtherPage(*first.document, page)));
    }
    return labels;
}

QStringList wordsOf(const QList<Label>& labels)
{
    QStringList words;
    for (const Label& label : labels) {
        words += QString(label.text)
                     .replace(u'\n', u' ')
                     .replace(u'|', u' ')
                     .split(u' ', Qt::SkipEmptyParts);
    }
    return words;
}

QStringList numbered(int count)
{
    QStringList words;
    for (int number = 1; number <= count; ++number) {
        words.append(u"p%1"_s.arg(number));
    }
    return words;
}

} // namespace

TEST(PageBreaks, ContinueFullPages)
{
    const QList<Label> labels = labelsOf(textDocument(paragraphs(1, 18)));
    ASSERT_EQ(labels.size(), 3);
    EXPECT_EQ(wordsOf(labels).join(u' '), numbered(18).join(u' '));
    EXPECT_EQ(labels[0].pageCount, 2); // as far as known
    EXPECT_EQ(labels[2].pageCount, 3);
    for (const Label& label : labels) {
        EXPECT_LE(label.bottom, PageHeight - Margin + 1.0);
    }
}

TEST(PageBreaks, ContinueOnManyPages)
{
    // Rows were counted on from page to page, twice as many each time.
    const QList<Label> labels = labelsOf(textDocument(paragraphs(1, 320)));
    EXPECT_GE(labels.size(), 40);
    EXPECT_EQ(wordsOf(labels).join(u' '), numbered(320).join(u' '));
}

TEST(PageBreaks, LeaveTextThatFits)
{
    EXPECT_EQ(labelsOf(textDocument(paragraphs(1, 7))).size(), 1);
    // Blank paragraphs behind it need no page.
    EXPECT_EQ(labelsOf(textDocument(paragraphs(1, 7) + QByteArray("<text:p/>").repeated(9))).size(),
              1);
}

TEST(PageBreaks, SeparateLinesOfAParagraph)
{
    QByteArray text;
    for (const QString& word : numbered(300)) {
        text += word.toLatin1() + ' ';
    }
    const QList<Label> labels = labelsOf(textDocument("<text:p>" + text + "</text:p>"));
    ASSERT_GT(labels.size(), 2);
    EXPECT_EQ(wordsOf(labels).join(u' '), numbered(300).join(u' '));
    for (const Label& label : labels) {
        EXPECT_LE(label.bottom, PageHeight - Margin + 1.0);
    }
}

TEST(PageBreaks, KeepLinesAndHeadingsTogether)
{
    const QByteArray styles =
        "<style:style style:name=\"k\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:keep-with-next=\"always\"/></style:style>"
        "<style:style style:name=\"w\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:orphans=\"2\" fo:widows=\"2\"/></style:style>";
    const QByteArray lines = "<text:p text:style-name=\"w\">a<text:line-break/>b<text:line-break/>c"
                             "</text:p>";
    // Seven lines have room: one of the three would be left, or one would be on the next page.
    for (const int before : {5, 6}) {
        const QList<Label> labels = labelsOf(textDocument(
            paragraphs(2, before) + paragraphs(1, 1, "k") + lines + paragraphs(21, 22), styles));
        ASSERT_EQ(labels.size(), 2) << before;
        EXPECT_TRUE(labels[0].text.endsWith(u"p%1"_s.arg(before))) << labels[0].text.toStdString();
        EXPECT_TRUE(labels[1].text.startsWith("p1\na"_L1)) << labels[1].text.toStdString();
    }
}

TEST(PageBreaks, RepeatTheFooterWithThePagesNumber)
{
    const QList<Label> labels = labelsOf(
        textDocument(paragraphs(1, 8)),
        pageStyles("<style:footer><text:p>page <text:page-number>1</text:page-number></text:p>"
                   "</style:footer>"));
    ASSERT_EQ(labels.size(), 2);
    EXPECT_TRUE(labels[0].text.endsWith("|page 1"_L1)) << labels[0].text.toStdString();
    EXPECT_TRUE(labels[1].text.endsWith("|page 2"_L1)) << labels[1].text.toStdString();
}

TEST(PageBreaks, MoveObjectsWithTheirParagraph)
{
    const auto ellipse = [](const QByteArray& place) {
        return "<text:p>p8<draw:ellipse " + place +
               " svg:width=\"10pt\" svg:height=\"10pt\"/></text:p>";
    };
    const QByteArray onPage =
        "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
        "style:vertical-rel=\"page\" style:vertical-pos=\"from-top\"/></style:style>";
    for (const QByteArray& place :
         {QByteArray("text:anchor-type=\"as-char\""),
          QByteArray("text:anchor-type=\"paragraph\" draw:style-name=\"g\" svg:y=\"40pt\"")}) {
        const QList<Label> labels =
            labelsOf(textDocument(paragraphs(1, 7) + paragraphs(9, 9) + ellipse(place), onPage));
        ASSERT_EQ(labels.size(), 2);
        EXPECT_EQ(labels[0].objectTop, 0.0);
        EXPECT_GT(labels[1].objectTop, Margin - 1.0);
        EXPECT_LT(labels[1].objectTop, 41.0);
    }
}

TEST(PageBreaks, SeparateLinesBesideAnObject)
{
    QByteArray text;
    for (const QString& word : numbered(120)) {
        text += word.toLatin1() + ' ';
    }
    const QByteArray styles = "<style:style style:name=\"g\" style:family=\"graphic\">"
                              "<style:graphic-properties style:wrap=\"parallel\"/></style:style>";
    const QList<Label> labels = labelsOf(
        textDocument("<text:p><draw:ellipse text:anchor-type=\"paragraph\" draw:style-name=\"g\" "
                     "svg:y=\"40pt\" svg:width=\"30pt\" svg:height=\"30pt\"/>" +
                         text + "</text:p>",
                     styles));
    ASSERT_GT(labels.size(), 1);
    EXPECT_EQ(wordsOf(labels).join(u' ').remove(QChar::ObjectReplacementCharacter),
              numbered(120).join(u' '));
    EXPECT_NEAR(labels[0].objectTop, Margin + 40.0, 0.5);
}

TEST(PageBreaks, KeepRowsOfTablesWhole)
{
    const auto row = [](const QByteArray& text) {
        return "<table:table-row><table:table-cell>" + text +
               "</table:table-cell>"
               "</table:table-row>";
    };
    const QByteArray table = "<table:table><table:table-column/>" + row(paragraphs(5, 6)) +
                             row(paragraphs(7, 9)) + row(paragraphs(10, 29)) +
                             row(paragraphs(30, 30)) + "</table:table>";
    const QList<Label> labels = labelsOf(textDocument(paragraphs(1, 4) + table));
    ASSERT_EQ(labels.size(), 4);
    EXPECT_TRUE(labels[0].text.endsWith("|p5\np6"_L1)) << labels[0].text.toStdString();
    EXPECT_EQ(labels[1].text, "p7\np8\np9"_L1);
    // A row that is higher than a page has its own.
    EXPECT_TRUE(labels[2].text.startsWith("p10\n"_L1));
    EXPECT_EQ(labels[3].text, "p30"_L1);
}

TEST(PageBreaks, RepeatTheHeadersOfTables)
{
    const auto row = [](const QByteArray& text) {
        return "<table:table-row><table:table-cell>" + text +
               "</table:table-cell></table:table-row>";
    };
    const auto table = [&row](const QByteArray& rows) {
        return textDocument("<table:table><table:table-column/><table:table-header-rows>" +
                            row("<text:p>head</text:p>") + "</table:table-header-rows>" + rows +
                            "</table:table><text:p>end</text:p>");
    };
    QByteArray rows;
    for (int number = 1; number <= 16; ++number) {
        rows += row(paragraphs(number, number));
    }
    const QList<Label> labels = labelsOf(table(rows));
    ASSERT_EQ(labels.size(), 3);
    for (const Label& label : labels) {
        EXPECT_TRUE(label.text.startsWith("head|p"_L1)) << label.text.toStdString();
        EXPECT_LE(label.bottom, PageHeight - Margin + 1.0);
    }
    QStringList words = wordsOf(labels);
    words.removeAll(u"head"_s);
    EXPECT_EQ(words.join(u' '), numbered(16).join(u' ') + " end"_L1);
    // No page has room for such a row and the header: each row is shown once nevertheless.
    const QList<Label> high =
        labelsOf(table(row(paragraphs(1, 20)) + row(paragraphs(21, 40)) + row(paragraphs(41, 41))));
    QStringList highWords = wordsOf(high);
    highWords.removeAll(u"head"_s);
    EXPECT_EQ(highWords.join(u' '), numbered(41).join(u' ') + " end"_L1);
}

TEST(PageBreaks, FillThePageUpToTheNextBreakOfTheDocument)
{
    const QByteArray styles =
        "<style:style style:name=\"b\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:break-before=\"page\"/></style:style><style:style style:name=\"a\" "
        "style:family=\"paragraph\"><style:paragraph-properties fo:break-after=\"page\"/>"
        "</style:style>";
    // The text before a break of the editor continues; that before one of the author does not.
    const QByteArray soft = "<text:soft-page-break/>";
    QList<Label> labels = labelsOf(textDocument(
        paragraphs(1, 9) + soft + paragraphs(10, 11) + paragraphs(12, 12, "b"), styles));
    ASSERT_EQ(labels.size(), 3);
    EXPECT_EQ(wordsOf(labels).join(u' '), numbered(12).join(u' '));
    EXPECT_TRUE(labels[1].text.contains("p10"_L1));
    EXPECT_EQ(labels[2].text, "p12"_L1);
    labels =
        labelsOf(textDocument(paragraphs(1, 2) + paragraphs(3, 3, "a") + paragraphs(4, 4), styles));
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[1].text, "p4"_L1);
}

TEST(PageBreaks, LayOutLongTextsInParts)
{
    const QList<Label> labels = labelsOf(textDocument(
        paragraphs(1, 40) + "<text:p>" + QByteArray("word ").repeated(2'200) + "</text:p>"));
    ASSERT_FALSE(labels.isEmpty());
    EXPECT_EQ(wordsOf(labels).size(), 2'240);
    for (const Label& label : labels) {
        EXPECT_LE(label.bottom, PageHeight - Margin + 1.0);
    }
}

namespace {

// Two master pages: M, 10 by 5 cm, and a wide one, which is followed by M.
QByteArray twoLayouts()
{
    QByteArray styles = drawingStyles(
        {},
        "<style:page-layout style:name=\"W\"><style:page-layout-properties "
        "fo:page-width=\"20cm\" fo:page-height=\"4cm\" fo:margin=\"20pt\"/></style:page-layout>",
        {});
    styles.replace("</office:master-styles>",
                   "<style:master-page style:name=\"Wide\" style:page-layout-name=\"W\" "
                   "style:next-style-name=\"M\"><style:header><text:p>head</text:p></style:header>"
                   "</style:master-page></office:master-styles>");
    return styles;
}

const QByteArray WideStyles =
    "<style:style style:name=\"wide\" style:family=\"paragraph\" style:master-page-name=\"Wide\"/>"
    "<style:style style:name=\"plain\" style:family=\"paragraph\" "
    "style:parent-style-name=\"wide\" style:master-page-name=\"\"/>"
    "<style:style style:name=\"table\" style:family=\"table\" style:master-page-name=\"Wide\"/>"
    "<style:style style:name=\"break\" style:family=\"table\"><style:table-properties "
    "fo:break-before=\"page\"/></style:style>";

/// The sizes of the pages in whole points, with their texts: "283x142 p1".
QStringList pagesOf(const QByteArray& text)
{
    const QTemporaryDir folder;
    const QString path = writePackage(folder.path(), textDocument(text, WideStyles), twoLayouts());
    QStringList pages;
    repair::RepairedImport import = repair::importRepaired(path);
    const std::shared_ptr<repair::DocumentRepair> document = import.document;
    for (int page = 1; import.isRepaired(); ++page) {
        const QSizeF size = import.result.canvas->page().size;
        pages.append(u"%1x%2 %3"_s.arg(size.width(), 0, 'f', 0)
                         .arg(size.height(), 0, 'f', 0)
                         .arg(labelOf(import).text));
        if (!document || page >= document->pageCount()) {
            break;
        }
        import = repair::importFurtherPage(*document, page + 1);
    }
    return pages;
}

} // namespace

TEST(PageBreaks, HaveTheLayoutOfTheMasterPageThatAParagraphStates)
{
    EXPECT_EQ(pagesOf("<text:p>p1</text:p><text:p text:style-name=\"wide\">p2</text:p>"
                      "<text:p text:style-name=\"plain\">p3</text:p>"),
              QStringList({u"283x142 p1"_s, u"567x113 p2\np3|head"_s}));
}

TEST(PageBreaks, HaveTheLayoutThatTheFirstParagraphStates)
{
    EXPECT_EQ(pagesOf("<text:p text:style-name=\"wide\">p1</text:p>"),
              QStringList({u"567x113 p1|head"_s}));
}

namespace {

QByteArray frameOnPage(const QByteArray& page, const QByteArray& text)
{
    return "<draw:frame text:anchor-type=\"page\" " + page +
           " svg:x=\"1cm\" svg:y=\"1cm\" svg:width=\"2cm\" svg:height=\"1cm\"><draw:text-box>"
           "<text:p>" +
           text + "</text:p></draw:text-box></draw:frame>";
}

QByteArray numberedPage(const QByteArray& number)
{
    return "text:anchor-page-number=\"" + number + "\"";
}

} // namespace

TEST(PageBreaks, AreNotBetweenObjectsOfThePageAndTheFirstParagraph)
{
    EXPECT_EQ(pagesOf(frameOnPage(numberedPage("1"), "frame") +
                      "<text:p text:style-name=\"wide\">p1</text:p>"),
              QStringList({u"567x113 frame|p1|head"_s}));
    EXPECT_EQ(pagesOf(frameOnPage({}, "frame") + "<text:p text:style-name=\"wide\">p1</text:p>"),
              QStringList({u"567x113 frame|p1|head"_s}));
}

TEST(PageBreaks, LeaveObjectsOnThePageOfTheirNumber)
{
    const QByteArray next = "<text:p text:style-name=\"wide\">p2</text:p>";
    EXPECT_EQ(pagesOf(frameOnPage(numberedPage("2"), "frame") + "<text:p>p1</text:p>" + next),
              QStringList({u"283x142 p1"_s, u"567x113 frame|p2|head"_s}));
    EXPECT_EQ(pagesOf("<text:p>p1</text:p>" + next + frameOnPage(numberedPage("1"), "frame")),
              QStringList({u"283x142 frame|p1"_s, u"567x113 p2|head"_s}));
    EXPECT_EQ(pagesOf("<text:p>p1</text:p>" + next + frameOnPage({}, "frame")),
              QStringList({u"283x142 p1"_s, u"567x113 frame|p2|head"_s}));
    EXPECT_EQ(pagesOf("<draw:a>" + frameOnPage(numberedPage("1"), "frame") +
                      "</draw:a><text:p>p1</text:p>"),
              QStringList({u"283x142 frame|p1"_s}))
        << "in a link";
}

TEST(PageBreaks, GoOnAtAPageThatOnlyHasAnObject)
{
    const QList<Label> labels =
        labelsOf(textDocument(frameOnPage(numberedPage("2"), "frame") + paragraphs(1, 14)));
    ASSERT_EQ(labels.size(), 2);
    EXPECT_FALSE(labels[0].text.contains("frame"_L1)) << labels[0].text.toStdString();
    EXPECT_TRUE(labels[1].text.contains("frame"_L1)) << labels[1].text.toStdString();
    EXPECT_TRUE(labels[1].text.contains("p14"_L1)) << labels[1].text.toStdString();
}

TEST(PageBreaks, GoOnWithTheNextMasterPageOfAFullPage)
{
    const QStringList pages =
        pagesOf("<text:p text:style-name=\"wide\">p1</text:p>" + paragraphs(2, 8, "plain"));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].startsWith("567x113 "_L1)) << pages[0].toStdString();
    EXPECT_TRUE(pages[1].startsWith("283x142 "_L1)) << pages[1].toStdString();
    EXPECT_FALSE(pages[1].contains("head"_L1)) << pages[1].toStdString();
}

TEST(PageBreaks, AreBeforeTablesThatDemandThem)
{
    const auto table = [](const QByteArray& style) {
        return "<table:table table:style-name=\"" + style +
               "\"><table:table-column/><table:table-row><table:table-cell><text:p>cell</text:p>"
               "</table:table-cell></table:table-row></table:table>";
    };
    EXPECT_EQ(pagesOf("<text:p>p1</text:p>" + table("break") + table("table")),
              QStringList({u"283x142 p1"_s, u"283x142 cell"_s, u"567x113 cell|head"_s}));
}

// The counts of OpenDocument packages.

#include "migration/census/counting.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

struct Counted
{
    const char* what;
    QByteArray package;
    qint64 kept;
    qint64 lost;
};

qint64 lostOf(const Census& census)
{
    return std::count_if(census.objects.begin(), census.objects.end(),
                         [](const CountedObject& object) { return object.lost.has_value(); });
}

bool changes(const Census& census, LossKind kind)
{
    return std::any_of(census.objects.begin(), census.objects.end(),
                       [kind](const CountedObject& object) { return object.changes.has(kind); });
}

QByteArray styleOf(const QByteArray& name, const QByteArray& family, const QByteArray& properties,
                   const QByteArray& parent = {})
{
    return "<style:style style:name=\"" + name + "\" style:family=\"" + family +
           "\" style:parent-style-name=\"" + parent + "\">" + properties + "</style:style>";
}

} // namespace

TEST(OpenDocumentCensus, CountsObjectsAsALabelDesignerDoes)
{
    const QList<Counted> rows = {
        {"a shape", drawingOf("<draw:rect/>"), 1, 0},
        {"a shape with a text",
         drawingOf("<draw:rect><text:p>A</text:p><text:p>B</text:p></draw:rect>"), 2, 0},
        {"a shape with blanks", drawingOf("<draw:rect><text:p>  </text:p></draw:rect>"), 1, 0},
        {"a text frame: box and text",
         drawingOf("<draw:frame><draw:text-box><text:p>A</text:p></draw:text-box></draw:frame>"), 2,
         0},
        {"a picture and its replacement",
         drawingOf("<draw:frame><draw:image xlink:href=\"a.svg\"/><draw:image "
                   "xlink:href=\"a.png\"/></draw:frame>"),
         1, 0},
        {"a titled picture",
         drawingOf("<draw:frame><svg:title>T</svg:title><draw:image/></draw:frame>"), 1, 0},
        {"an empty frame", drawingOf("<draw:frame/>"), 1, 0},
        {"a line with a text", drawingOf("<draw:line><text:p>A</text:p></draw:line>"), 1, 1},
        {"pieces of a paragraph", textOf("<text:p>A<text:span>B</text:span>C</text:p>"), 3, 0},
        {"a comment of the file divides", textOf("<text:p>A<!-- x -->B</text:p>"), 2, 0},
        {"spans in spans are one piece",
         textOf("<text:p><text:span>A<text:span>B</text:span></text:span></text:p>"), 1, 0},
        {"blank pieces are none", textOf("<text:p>A<text:span> </text:span></text:p><text:p/>"), 1,
         0},
        {"forms, declarations and deleted texts are not seen",
         textOf("<office:forms><form:form/></office:forms><text:tracked-changes><text:p>gone</"
                "text:p></text:tracked-changes><text:sequence-decls/><text:p>A</text:p>"),
         1, 0},
        {"marks are not seen", textOf("<text:p>A<text:bookmark/><text:soft-page-break/></text:p>"),
         2 - 1, 0},
        {"a list in a table",
         textOf("<table:table><table:table-row><table:table-cell><text:list><text:list-item><text:"
                "p>A</text:p></text:list-item></text:list></table:table-cell></table:table-row></"
                "table:table>"),
         0, 1},
        {"a frame in a table",
         textOf("<table:table><table:table-cell><text:p>A<draw:frame><draw:text-box><text:p>B</"
                "text:p></draw:text-box></draw:frame></text:p></table:table-cell></table:table>"),
         0, 3},
        {"a date in a shape's paragraph",
         drawingOf("<draw:rect><text:p>On <text:date>1 May</text:date></text:p></draw:rect>"), 2,
         1},
        {"a list in a text box",
         drawingOf("<draw:frame><draw:text-box><text:list><text:list-item><text:p>A</text:p></"
                   "text:list-item></text:list></draw:text-box></draw:frame>"),
         1, 1},
        {"a table in a frame",
         drawingOf("<draw:frame><table:table><table:table-cell><text:p>A</text:p></"
                   "table:table-cell></table:table></draw:frame>"),
         1, 1},
        {"a group of texts",
         drawingOf("<draw:g><draw:rect><text:p>A</text:p></draw:rect></draw:g>"), 0, 2},
    };
    for (const Counted& row : rows) {
        SCOPED_TRACE(row.what);
        const Census census = countOpenDocument(row.package);
        EXPECT_TRUE(census.unknown.isEmpty()) << census.unknown.toStdString();
        EXPECT_EQ(census.objects.size() - lostOf(census), row.kept);
        EXPECT_EQ(lostOf(census), row.lost);
    }
}

TEST(OpenDocumentCensus, FramesOfAParagraphComeBeforeItsTexts)
{
    const Census census =
        countOpenDocument(textOf("<text:p>A<draw:frame><draw:image/></draw:frame>B</text:p>"));
    ASSERT_EQ(census.objects.size(), 3);
    EXPECT_EQ(census.objects.constFirst().objectClass, ObjectClass::Picture);
}

TEST(OpenDocumentCensus, OnlyTheMasterPageOfTheFirstPageCounts)
{
    const QByteArray pages =
        "<style:master-page style:name=\"X\"><draw:rect/><draw:rect/></style:master-page>"
        "<style:master-page style:name=\"M\"><draw:rect/></style:master-page>";
    EXPECT_EQ(lostOf(countOpenDocument(drawingOf("", {.masterPages = pages}))), 1);
}

// The styles of paragraphs and tables name it, directly or through their parents.
TEST(OpenDocumentCensus, TheFirstParagraphDecidesTheMasterPage)
{
    const auto header = [](const QByteArray& name, const QByteArray& texts) {
        return "<style:master-page style:name=\"" + name + "\" style:page-layout-name=\"P\">" +
               "<style:header>" + texts + "</style:header></style:master-page>";
    };
    const DocumentParts parts{
        .automaticStyles = "<style:style style:name=\"Letter\" style:family=\"paragraph\" "
                           "style:master-page-name=\"First\"/>"
                           "<style:style style:name=\"Child\" style:family=\"paragraph\" "
                           "style:parent-style-name=\"Letter\"/>"
                           "<style:style style:name=\"Plain\" style:family=\"paragraph\" "
                           "style:parent-style-name=\"Letter\" style:master-page-name=\"\"/>"
                           "<style:style style:name=\"Grid\" style:family=\"table\" "
                           "style:master-page-name=\"First\"/>",
        .masterPages = header("Standard", "<text:p>Further</text:p>") +
                       header("First", "<text:p>Address</text:p><text:p>Date</text:p>")};
    const auto headers = [&parts](const QByteArray& body) {
        const Census census = countOpenDocument(textOf(body, parts));
        return std::count_if(
            census.objects.begin(), census.objects.end(),
            [](const CountedObject& each) { return each.lost == LossKind::HeaderOrFooter; });
    };
    EXPECT_EQ(headers("<text:p>Text</text:p>"), 1);
    EXPECT_EQ(headers("<text:p text:style-name=\"Letter\">Text</text:p>"), 2);
    EXPECT_EQ(headers("<text:p text:style-name=\"Child\">Text</text:p>"), 2);
    EXPECT_EQ(headers("<text:p text:style-name=\"Plain\">Text</text:p>"), 1);
    EXPECT_EQ(headers("<table:table table:style-name=\"Grid\"/>"), 2);
    EXPECT_EQ(headers("<text:section><text:h text:style-name=\"Letter\">A</text:h></text:section>"),
              2);
    // Neither objects before the text nor later paragraphs.
    EXPECT_EQ(headers("<draw:frame><draw:text-box><text:p>Box</text:p></draw:text-box></draw:frame>"
                      "<text:p text:style-name=\"Letter\">Text</text:p>"),
              2);
    EXPECT_EQ(headers("<text:p>Text</text:p><text:p text:style-name=\"Letter\">Text</text:p>"), 1);
}

TEST(OpenDocumentCensus, PlaceholdersOfMasterPagesAreNotPrinted)
{
    const QByteArray page =
        "<style:master-page style:name=\"M\"><draw:frame presentation:placeholder=\"true\">"
        "<draw:text-box><text:p>Click</text:p></draw:text-box></draw:frame></style:master-page>";
    EXPECT_EQ(lostOf(countOpenDocument(drawingOf("", {.masterPages = page}))), 0);
}

TEST(OpenDocumentCensus, StylesInheritWhatLabelsDoNotShow)
{
    const QByteArray red = "<style:text-properties fo:color=\"#ff0000\"/>";
    const QByteArray black = "<style:text-properties fo:color=\"#000000\"/>";
    const DocumentParts parts = {.automaticStyles = styleOf("Child", "paragraph", "", "Red") +
                                                    styleOf("Back", "paragraph", black, "Red"),
                                 .commonStyles = styleOf("Red", "paragraph", red)};
    const auto colorOf = [&parts](const QByteArray& style) {
        return changes(countOpenDocument(
                           textOf("<text:p text:style-name=\"" + style + "\">A</text:p>", parts)),
                       LossKind::TextColor);
    };
    EXPECT_TRUE(colorOf("Red"));
    EXPECT_TRUE(colorOf("Child"));
    EXPECT_FALSE(colorOf("Back"));
    EXPECT_FALSE(colorOf("Unknown"));
}

TEST(OpenDocumentCensus, TextsOfShapesTakeNothingFromTheShapesStyle)
{
    const DocumentParts parts = {
        .automaticStyles =
            styleOf("G", "graphic",
                    "<style:graphic-properties draw:textarea-vertical-align=\"middle\"/>") +
            styleOf("Big", "graphic", "<style:text-properties fo:font-size=\"30pt\"/>") +
            styleOf("T", "text", "<style:text-properties fo:font-size=\"9pt\"/>")};
    const auto formatLost = [&parts](const QByteArray& shape) {
        return changes(countOpenDocument(drawingOf(shape, parts)), LossKind::TextFormat);
    };
    EXPECT_TRUE(formatLost("<draw:rect draw:style-name=\"G\"><text:p>A</text:p></draw:rect>"));
    EXPECT_FALSE(formatLost("<draw:rect draw:style-name=\"G\"/>"));
    EXPECT_TRUE(formatLost("<draw:rect draw:style-name=\"Big\"><text:p>A</text:p></draw:rect>"));
    EXPECT_FALSE(
        formatLost("<draw:rect draw:style-name=\"Big\"><text:p><text:span text:style-name=\"T\">A"
                   "</text:span></text:p></draw:rect>"));
}

TEST(OpenDocumentCensus, ATextOfZeroWidthIsNoObject)
{
    const auto objects = [](const QByteArray& text) {
        return countOpenDocument(drawingOf("<draw:frame><draw:text-box><text:p>" + text +
                                           "</text:p></draw:text-box></draw:frame>"))
            .objects.size();
    };
    EXPECT_EQ(objects("\xe2\x80\x8b"), objects(" "));
    EXPECT_EQ(objects("\xe2\x80\x8bword"), objects("word"));
    EXPECT_LT(objects(" "), objects("word"));
}

TEST(OpenDocumentCensus, RotationAndTranslationAreKeptOtherTransformsAreLosses)
{
    const auto dropped = [](const QByteArray& transform) {
        return changes(
            countOpenDocument(drawingOf("<draw:rect draw:transform=\"" + transform + "\"/>")),
            LossKind::TransformDropped);
    };
    EXPECT_FALSE(dropped("rotate (1.57) translate (2in 3in)"));
    EXPECT_TRUE(dropped("skewX (0.1) rotate (1.57) translate (2in 3in)"));
    EXPECT_TRUE(dropped("rotate(1.57) translate (2in 3in)")) << "read with the blank alone";
}

TEST(OpenDocumentCensus, FramesInATextHaveThePositionOfTheText)
{
    const auto isMoved = [](const QByteArray& frame, const QByteArray& content) {
        const QByteArray text =
            "<text:p><draw:frame " + frame + ">" + content + "</draw:frame></text:p>";
        return changes(countOpenDocument(textOf(text)), LossKind::PositionAssumed);
    };
    const QByteArray box = "<draw:text-box><text:p>A</text:p></draw:text-box>";
    const QByteArray place = "svg:x=\"1in\" svg:y=\"1in\"";
    EXPECT_FALSE(isMoved("text:anchor-type=\"page\" " + place, "<draw:image/>"));
    EXPECT_TRUE(isMoved("text:anchor-type=\"paragraph\" " + place, "<draw:image/>"));
    EXPECT_TRUE(isMoved("text:anchor-type=\"char\"", "<draw:image/>"));
    EXPECT_TRUE(isMoved("text:anchor-type=\"paragraph\" " + place, box));
    EXPECT_FALSE(isMoved("text:anchor-type=\"paragraph\"", box)) << "runs along with the text";
}

TEST(OpenDocumentCensus, PageBreaksAndUncountedSpacesAreReported)
{
    const Census census = countOpenDocument(
        textOf("<text:p>A<text:s/>B<text:s text:c=\"2\"/>C</text:p><text:soft-page-break/>"));
    EXPECT_EQ(census.tallies.at(LossKind::TextSpacing).count, 1);
    EXPECT_EQ(census.tallies.at(LossKind::PageBreak).count, 1);
}

TEST(OpenDocumentCensus, SaysWhatIsMissingInThePackage)
{
    EXPECT_FALSE(countOpenDocument({}).unknown.isEmpty());
    EXPECT_FALSE(countOpenDocument("PK\x05\x06").unknown.isEmpty());
    EXPECT_FALSE(countOpenDocument(drawingOf("<draw:rect>")).unknown.isEmpty());
}

TEST(OpenDocumentCensus, SurvivesDamagedPackages)
{
    const QByteArray whole = drawingOf("<draw:rect><text:p>A</text:p></draw:rect>");
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = whole;
        for (int hit = 0; hit < 4; ++hit) {
            damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(random());
        }
        EXPECT_LE(countOpenDocument(damaged).objects.size(), 2);
    }
    for (qsizetype size = 0; size < whole.size(); size += 7) {
        EXPECT_TRUE(countOpenDocument(whole.first(size)).objects.isEmpty());
    }
}

TEST(OpenDocumentCensus, KnowsWhereLostObjectsAre)
{
    struct Row
    {
        const char* shapes;
        LossKind lost;
        QRectF box;
    };
    const Row rows[] = {
        {R"(<draw:path svg:x="1cm" svg:y="20mm" svg:width="1in" svg:height="72pt"/>)",
         LossKind::FreeformShape, QRectF(10.0, 20.0, 25.4, 25.4)},
        {R"(<draw:connector svg:x1="3cm" svg:y1="2cm" svg:x2="1cm" svg:y2="5cm"/>)",
         LossKind::Connector, QRectF(10.0, 20.0, 20.0, 30.0)},
        {R"(<draw:path svg:width="4cm" svg:height="2cm")"
         R"x( draw:transform="rotate (1.5707963267949) translate (1cm 7cm)"/>)x",
         LossKind::FreeformShape, QRectF(10.0, 30.0, 20.0, 40.0)},
        {R"(<draw:g><draw:rect svg:x="1mm" svg:y="2mm" svg:width="3mm" svg:height="4mm"/></draw:g>)",
         LossKind::GroupedObject, QRectF(1.0, 2.0, 3.0, 4.0)},
        {R"(<draw:rect svg:x="1mm" svg:y="2mm" svg:width="3mm" svg:height="4mm"><text:p>)"
         R"(<text:a>link</text:a></text:p></draw:rect>)",
         LossKind::LinkText, QRectF(1.0, 2.0, 3.0, 4.0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.shapes);
        const Census census = countOpenDocument(drawingOf(row.shapes));
        const auto lost = std::find_if(census.objects.begin(), census.objects.end(),
                                       [](const CountedObject& one) { return one.lost; });
        ASSERT_NE(lost, census.objects.end());
        EXPECT_EQ(lost->lost, row.lost);
        ASSERT_TRUE(lost->place.has_value());
        EXPECT_NEAR(lost->place->x(), row.box.x(), 1e-6);
        EXPECT_NEAR(lost->place->y(), row.box.y(), 1e-6);
        EXPECT_NEAR(lost->place->width(), row.box.width(), 1e-6);
        EXPECT_NEAR(lost->place->height(), row.box.height(), 1e-6);
    }
}

TEST(OpenDocumentCensus, KnowsNoPlaceOnFurtherPagesAndOfUnknownLengths)
{
    for (const char* shapes :
         {R"(</draw:page><draw:page><draw:rect svg:x="1mm" svg:y="2mm"/>)",
          R"(<draw:path svg:x="1 mm and more" svg:y="2mm"/>)", R"(<draw:path svg:y="2mm"/>)",
          R"(<draw:path svg:x="nanmm" svg:y="infmm"/>)", R"(<draw:path/>)"}) {
        const Census census = countOpenDocument(drawingOf(shapes));
        ASSERT_EQ(lostOf(census), 1) << shapes;
        EXPECT_FALSE(census.objects.constLast().place.has_value()) << shapes;
    }
}

TEST(OpenDocumentCensus, DoesNotCountWhatTheDocumentHides)
{
    const Census census = countOpenDocument(
        textOf("<text:section text:display=\"none\"><text:p>Hidden</text:p></text:section>"
               "<text:section text:display=\"condition\" text:is-hidden=\"true\"><text:p>Hidden"
               "</text:p></text:section><text:p>Shown<text:hidden-text text:is-hidden=\"true\">not"
               "</text:hidden-text><text:hidden-text text:is-hidden=\"false\">too"
               "</text:hidden-text></text:p>"));
    ASSERT_EQ(census.objects.size(), 2);
    EXPECT_EQ(census.paragraphs, QStringList{u"Showntoo"_s});
}

TEST(OpenDocumentCensus, DoesNotCountWhatIsNotPrinted)
{
    const QByteArray layers =
        "<draw:layer-set><draw:layer draw:name=\"hidden\" draw:display=\"none\"/><draw:layer "
        "draw:name=\"notes\" draw:display=\"screen\"/><draw:layer draw:name=\"shown\"/>"
        "</draw:layer-set>";
    const Census census = countOpenDocument(
        drawingOf("<draw:rect draw:layer=\"hidden\"/><draw:rect draw:layer=\"notes\"/><draw:rect "
                  "draw:layer=\"shown\"/><draw:rect draw:display=\"screen\"/>",
                  {.masterPages = layers}));
    EXPECT_EQ(census.objects.size(), 1);
}

TEST(OpenDocumentCensus, FindsSectionsThatDoNotLookLikePlainText)
{
    const auto count = [](LossKind kind, const QByteArray& properties) {
        const Census census = countOpenDocument(
            textOf("<text:section text:style-name=\"S\" text:name=\"Notes\"><text:section "
                   "text:style-name=\"S\"><text:p>Text</text:p></text:section></text:section>",
                   {.automaticStyles =
                        styleOf("S", "section", "<style:section-properties " + properties)}));
        const auto tally = census.tallies.find(kind);
        return tally != census.tallies.end() ? tally->second.count : 0;
    };
    const LossKind effect = LossKind::TextEffect;
    const LossKind layout = LossKind::LayoutSimplified;
    EXPECT_EQ(count(effect, "fo:background-color=\"#e0e0e0\"/>"), 2);
    EXPECT_EQ(count(effect, "fo:margin-left=\"0.4in\"/>"), 2);
    EXPECT_EQ(count(layout, "><style:columns fo:column-count=\"2\"/></style:section-properties>"),
              2);
    for (const LossKind kind : {effect, layout}) {
        EXPECT_EQ(count(kind, "fo:background-color=\"transparent\" fo:margin-left=\"0in\">"
                              "<style:columns fo:column-count=\"1\"/></style:section-properties>"),
                  0);
    }
}

TEST(OpenDocumentCensus, FindsTabsAtOtherPlacesThanOnLabels)
{
    const auto effects = [](const QByteArray& paragraphs) {
        const QByteArray stops = "<style:paragraph-properties><style:tab-stops><style:tab-stop "
                                 "style:position=\"2in\"/></style:tab-stops>"
                                 "</style:paragraph-properties>";
        const QByteArray none =
            "<style:paragraph-properties><style:tab-stops/></style:paragraph-properties>";
        const Census census = countOpenDocument(
            textOf(paragraphs, {.automaticStyles = styleOf("P", "paragraph", stops) +
                                                   styleOf("C", "paragraph", {}, "P") +
                                                   styleOf("N", "paragraph", none, "P")}));
        const auto tally = census.tallies.find(LossKind::TextEffect);
        return tally != census.tallies.end() ? tally->second.count : 0;
    };
    const QByteArray tabs = "<text:p text:style-name=\"C\">A<text:tab/>B<text:tab/>C</text:p>";
    EXPECT_EQ(effects(tabs), 1);
    EXPECT_EQ(
        effects("<text:list><text:list-item>" + tabs + tabs + "</text:list-item></text:list>"), 2);
    EXPECT_EQ(effects("<text:p text:style-name=\"P\">A B</text:p><text:p>C<text:tab/>D</text:p>"
                      "<text:p text:style-name=\"N\">E<text:tab/>F</text:p>"),
              0);
}

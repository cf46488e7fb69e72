// From the file to the items.

#include "tests/repair/documents.h"

#include "repair/repaired_import.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr char Page[] = "<draw:g><draw:rect draw:style-name=\"g\" svg:width=\"4cm\" "
                        "svg:height=\"2cm\" svg:x=\"1cm\" svg:y=\"1cm\">"
                        "<text:p><text:span>red</text:span> <text:span>text</text:span></text:p>"
                        "</draw:rect></draw:g>"
                        "<draw:polygon svg:width=\"1cm\" svg:height=\"1cm\" svg:x=\"6cm\" "
                        "svg:y=\"1cm\" svg:viewBox=\"0 0 10 10\" draw:points=\"0,0 10,0 5,10\"/>";
constexpr char Style[] = "<style:style style:name=\"g\" style:family=\"graphic\">"
                         "<style:graphic-properties draw:stroke=\"solid\" "
                         "svg:stroke-width=\"0.01cm\" draw:fill=\"solid\" "
                         "draw:fill-color=\"#ffffff\" draw:opacity=\"50%\" "
                         "draw:textarea-vertical-align=\"bottom\"/>"
                         "<style:text-properties fo:color=\"#ff0000\" fo:font-size=\"10pt\"/>"
                         "</style:style>";

class RepairedFile : public ::testing::Test
{
protected:
    void importDrawing(const QByteArray& shapes, const QByteArray& styles)
    {
        const QString original =
            writePackage(folder.path(), drawingContent(shapes, styles), drawingStyles());
        import = repair::importRepaired(original);
        ASSERT_TRUE(import.result.isImported()) << import.result.error.toStdString();
        ASSERT_TRUE(import.isRepaired());
    }

    [[nodiscard]] workbench::ItemValues item(KestTypes::ShapeType type) const
    {
        for (const workbench::CanvasItem* each : import.result.canvas->items()) {
            if (each->shapeType() == type) {
                return each->values();
            }
        }
        ADD_FAILURE() << "no item of type " << int(type);
        return {};
    }

    QTemporaryDir folder;
    repair::RepairedImport import;
};

} // namespace

TEST_F(RepairedFile, HasAllObjectsInTheirTrueSize)
{
    importDrawing(Page, Style);
    EXPECT_EQ(import.result.canvas->items().size(), 3);
    EXPECT_NEAR(import.result.canvas->page().size.width(), 10 * 72 / 2.54, 0.01);
    const workbench::ItemValues rectangle = item(KestTypes::Rectangle);
    EXPECT_NEAR(rectangle.box.size.width(), 4 * 72 / 2.54, 0.01);
    EXPECT_NEAR(rectangle.placement.position.x(), 72 / 2.54, 0.01);
    EXPECT_NEAR(item(KestTypes::Symbol).placement.position.x(), 6 * 72 / 2.54, 1.0);
}

TEST_F(RepairedFile, ShowsColorsPensAndOpacity)
{
    importDrawing(Page, Style);
    const workbench::ItemValues rectangle = item(KestTypes::Rectangle);
    EXPECT_NEAR(rectangle.pen->width, 0.01 * 72 / 2.54, 0.05);
    EXPECT_NEAR(rectangle.fill->color.alphaF(), 0.5, 0.01);
    const workbench::ItemValues text = item(KestTypes::RichText);
    EXPECT_TRUE(text.text->html.contains("#ff0000"_L1));
    EXPECT_TRUE(text.text->html.contains("red text"_L1));
}

TEST_F(RepairedFile, KeepsSizeAndAutomaticColorOfATextOnADrawnShape)
{
    importDrawing("<draw:polygon draw:style-name=\"dark\" draw:text-style-name=\"small\" "
                  "svg:width=\"4cm\" svg:height=\"2cm\" svg:x=\"1cm\" svg:y=\"1cm\" "
                  "svg:viewBox=\"0 0 10 10\" draw:points=\"0,0 10,0 10,10 0,10\">"
                  "<text:p>ZINC</text:p></draw:polygon>",
                  "<style:style style:name=\"dark\" style:family=\"graphic\">"
                  "<style:graphic-properties draw:fill=\"solid\" draw:fill-color=\"#18040f\"/>"
                  "</style:style><style:style style:name=\"small\" style:family=\"paragraph\">"
                  "<style:text-properties fo:font-size=\"5pt\"/></style:style>");
    const QString html = item(KestTypes::RichText).text->html;
    // A point of the label is a pixel of the text, and there are 96 pixels per inch.
    EXPECT_TRUE(html.contains("font-size:3.75pt"_L1)) << html.toStdString();
    EXPECT_TRUE(html.contains("color:#ffffff"_L1)) << html.toStdString();
}

TEST_F(RepairedFile, IgnoresTheParagraphStyleOfATextBox)
{
    importDrawing("<draw:frame draw:text-style-name=\"small\" svg:width=\"4cm\" "
                  "svg:height=\"2cm\" svg:x=\"1cm\" svg:y=\"1cm\"><draw:text-box>"
                  "<text:p>box</text:p></draw:text-box></draw:frame>",
                  "<style:style style:name=\"small\" style:family=\"paragraph\">"
                  "<style:text-properties fo:font-size=\"5pt\"/></style:style>");
    EXPECT_TRUE(item(KestTypes::RichText).text->html.contains("font-size:13.5pt"_L1));
}

TEST_F(RepairedFile, PlacesTextAsItsShapeSays)
{
    importDrawing(Page, Style);
    const workbench::ItemValues text = item(KestTypes::RichText);
    const double bottom = text.placement.position.y() + text.box.size.height();
    EXPECT_NEAR(bottom, 3 * 72 / 2.54 - 3.543, 0.01);
    EXPECT_NEAR(text.placement.position.x(), 72 / 2.54 + 7.087, 0.01);
}

TEST_F(RepairedFile, KeepsTheSpaceAroundParagraphs)
{
    const auto frame = [](const QByteArray& paragraphs) {
        return "<draw:frame svg:width=\"8cm\" svg:height=\"4cm\" svg:x=\"0cm\" svg:y=\"0cm\">"
               "<draw:text-box>" +
               paragraphs + "</draw:text-box></draw:frame>";
    };
    const QByteArray style = "<style:style style:name=\"p\" style:family=\"paragraph\">"
                             "<style:paragraph-properties fo:margin-top=\"10pt\" "
                             "fo:margin-bottom=\"20pt\"/></style:style>";
    importDrawing(frame("<text:p>a</text:p><text:p>b</text:p>"), style);
    const workbench::ItemValues plain = item(KestTypes::RichText);
    importDrawing(
        frame("<text:p text:style-name=\"p\">a</text:p><text:p text:style-name=\"p\">b</text:p>"),
        style);
    const workbench::ItemValues spaced = item(KestTypes::RichText);
    EXPECT_NEAR(spaced.placement.position.y() - plain.placement.position.y(), 10.0, 0.01);
    EXPECT_NEAR(spaced.box.size.height() - plain.box.size.height(), 30.0, 0.5);
}

TEST_F(RepairedFile, TurnsTextWithItsShape)
{
    importDrawing("<draw:rect svg:width=\"4cm\" svg:height=\"2cm\" "
                  "draw:transform=\"rotate (1.5707963267949) translate (1cm 4.5cm)\">"
                  "<text:p>up</text:p></draw:rect>",
                  {});
    const workbench::ItemValues rectangle = item(KestTypes::Rectangle);
    const workbench::ItemValues text = item(KestTypes::RichText);
    EXPECT_NEAR(rectangle.placement.position.x() + rectangle.box.size.width() / 2.0, 2 * 72 / 2.54,
                0.01);
    EXPECT_NEAR(std::remainder(text.box.rotation + 90.0, 360.0), 0.0, 0.01);
    // Above in the shape is to the left on the page.
    EXPECT_LT(text.placement.position.x() + text.box.size.width() / 2.0, 2 * 72 / 2.54);
}

TEST_F(RepairedFile, CountsItsRepairs)
{
    importDrawing(Page, Style);
    const auto count = [this](const QString& code) {
        const auto found =
            std::find_if(import.repairs.begin(), import.repairs.end(),
                         [&code](const repair::Repair& each) { return each.code == code; });
        return found != import.repairs.end() ? found->count : 0;
    };
    EXPECT_EQ(count(u"groups-dissolved"_s), 1);
    EXPECT_EQ(count(u"paths-drawn"_s), 1);
    EXPECT_EQ(count(u"blanks-kept"_s), 1);
    EXPECT_EQ(count(u"lists-replaced"_s), 0);
    for (const repair::Repair& each : import.repairs) {
        EXPECT_NE(repair::repairText(each), each.code);
    }
}

TEST(Repair, ImportsAsWrittenWhatItCannotRepair)
{
    const QTemporaryDir folder;
    const QByteArray sheet = "<office:document-content><office:body><office:spreadsheet/>"
                             "</office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), sheet, drawingStyles()));
    ASSERT_TRUE(import.result.isImported()) << import.result.error.toStdString();
    EXPECT_FALSE(import.isRepaired());
    EXPECT_TRUE(import.repairs.isEmpty());
    ASSERT_FALSE(import.result.issues.isEmpty());
    EXPECT_EQ(import.result.issues.constLast().text,
              "The document could not be repaired: it was imported as it is written."_L1);
    EXPECT_FALSE(repair::importRepaired(folder.filePath(u"missing.odg"_s)).result.isImported());
}

TEST(Repair, GivesEachPageADocumentOfItsOwn)
{
    const QTemporaryDir folder;
    QByteArray content = drawingContent("<draw:rect svg:width=\"1in\" svg:height=\"1in\"/>");
    content.replace("</draw:page>", "</draw:page><draw:page><draw:ellipse svg:width=\"1in\" "
                                    "svg:height=\"1in\"/></draw:page>");
    const QString file = writePackage(folder.path(), content, drawingStyles());
    const repair::RepairedImport first = repair::importRepaired(file);
    ASSERT_TRUE(first.document);
    EXPECT_EQ(first.result.canvas->items().front()->shapeType(), KestTypes::Rectangle);
    const repair::RepairedImport second = repair::importFurtherPage(*first.document, 2);
    EXPECT_EQ(second.pageCount, 2);
    ASSERT_EQ(second.result.canvas->items().size(), 1);
    EXPECT_EQ(second.result.canvas->items().front()->shapeType(), KestTypes::Ellipse);
    EXPECT_FALSE(repair::importFurtherPage(*first.document, 2).isRepaired());
    EXPECT_FALSE(repair::importFurtherPage(*first.document, 3).isRepaired());
    // What concerns the document as a whole is counted once.
    const auto converted = [](const repair::RepairedImport& import) {
        return std::count_if(
            import.repairs.begin(), import.repairs.end(),
            [](const repair::Repair& each) { return each.code == "lengths-converted"_L1; });
    };
    EXPECT_EQ(converted(first), 1);
    EXPECT_EQ(converted(second), 0);
}

TEST(Repair, DeclinesWhatItCannotRead)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(repair::repairPage(folder.filePath(u"missing.odg"_s)));
    EXPECT_FALSE(repair::repairPage(folder.path()));
    EXPECT_FALSE(repair::repairPage(
        writePackage(folder.path(), "<office:document-content", drawingStyles())));
    EXPECT_FALSE(
        repair::repairPage(writePackage(folder.path(), drawingContent({}), "no styles at all")));
    EXPECT_FALSE(
        repair::repairPage(writePackage(folder.path(), drawingContent({}), drawingStyles()), 2));
}

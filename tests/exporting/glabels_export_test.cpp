// Labels for gLabels: paper, shapes, barcodes, records.

#include "glabels_fixture.h"

#include "exporting/records_table.h"

#include <gmock/gmock.h>

namespace {

using namespace exporting;
using namespace workbench;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

TEST_F(Glabels, HasAPaperOfTheLabelsSize)
{
    canvas.importCanvasParameters(200, 100, false, false);
    const std::string label = xml();
    EXPECT_THAT(label, HasSubstr(R"(part="asset" size="Other" width="200pt" height="100pt")"));
    EXPECT_THAT(label, HasSubstr(R"(<Label-rectangle id="0" width="200pt" height="100pt")"));
    EXPECT_THAT(label, HasSubstr(R"(nx="1" ny="1" x0="0pt" y0="0pt" dx="200pt" dy="100pt")"));
    EXPECT_THAT(label, Not(HasSubstr("<Merge")));
}

TEST_F(Glabels, PutsTheLabelInTheCellsOfASheet)
{
    canvas.importCanvasParameters(72, 36, false, false);
    canvas.addItem(shapeOf(KestTypes::Rectangle));
    printing::Sheet sheet;
    sheet.names = {u"X1"_s};
    sheet.paperSize = {210, 297};
    sheet.columns = 2;
    sheet.rows = 3;
    sheet.label = {50.8, 25.4};
    sheet.start = {25.4, 12.7};
    sheet.pitch = {76.2, 25.4};
    const std::string label = xml(sheet);
    EXPECT_THAT(label, HasSubstr(R"(nx="2" ny="3" x0="72pt" y0="36pt" dx="216pt" dy="72pt")"));
    EXPECT_THAT(label, HasSubstr(R"(rotate="False")"));
    // Centered in the cell of 144 by 72 points.
    EXPECT_THAT(label, HasSubstr(R"(<Object-box x="46pt" y="38pt")"));

    sheet.label = {25.4, 50.8};
    canvas.importCanvasParameters(144, 72, false, false);
    EXPECT_THAT(xml(sheet), HasSubstr(R"(rotate="True")"));
}

TEST_F(Glabels, WritesBoxesAndEllipsesExactly)
{
    ItemValues box = shapeOf(KestTypes::Rectangle);
    box.box.rotation = 90;
    canvas.addItem(box);
    canvas.addItem(shapeOf(KestTypes::Ellipse));
    const GlabelsLabel label = write();
    const std::string text = label.label.toStdString();
    EXPECT_THAT(text, HasSubstr(R"(<Object-box x="40pt" y="10pt" w="40pt" h="20pt" )"
                                R"(line_width="2pt" line_color="0xff0000ff" )"
                                R"(fill_color="0x00ff0080" a0="0" a1="1" a2="-1" a3="0")"));
    EXPECT_THAT(text, HasSubstr(R"(<Object-ellipse x="10pt" y="20pt" w="40pt" h="20pt")"));
    ASSERT_EQ(label.findings.all().size(), 2);
    EXPECT_EQ(label.findings.all().at(0).fidelity, Fidelity::Exact);
    EXPECT_EQ(label.findings.all().at(1).kind, u"ellipse"_s);
}

TEST_F(Glabels, FlipsWithTheTransform)
{
    ItemValues box = shapeOf(KestTypes::Rectangle);
    box.box.flipHorizontal = true;
    canvas.addItem(box);
    EXPECT_THAT(xml(), HasSubstr(R"(x="50pt" y="20pt" w="40pt")"));
    EXPECT_THAT(xml(), HasSubstr(R"(a0="-1" a1="0" a2="0" a3="1")"));
}

TEST_F(Glabels, LengthensLinesWithSquareEnds)
{
    ItemValues line = itemOf(KestTypes::Line);
    line.pen = PenValues{Qt::black, 4.0, Qt::SolidLine, Qt::SquareCap};
    line.line = LineValues{{30, 0}, 0, 0};
    canvas.addItem(line);
    EXPECT_THAT(xml(), HasSubstr(R"(<Object-line x="8pt" y="20pt" dx="34pt" dy="0pt")"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, EncodesBarcodesItselfWhereItCan)
{
    canvas.addItem(barcodeOf(20, u"ABC-123"_s));
    const std::string label = xml();
    EXPECT_THAT(label, HasSubstr(R"(backend="gnu-barcode" style="Code128" text="False")"));
    EXPECT_THAT(label, HasSubstr(R"(data="ABC-123")"));
    EXPECT_THAT(label, HasSubstr(">ABC-123</Span>")); // the caption
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, EncodesArticleNumbersWithTheirCheckDigits)
{
    const int id = addList({u"4006381333931"_s, u"4006381333948"_s});
    addBound(barcodeOf(13, {}), id);
    EXPECT_THAT(xml(), HasSubstr(R"(style="EAN-13" text="False" checksum="False")"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, EmbedsOtherBarcodes)
{
    ItemValues bearerBars = barcodeOf(3, u"123456"_s);
    bearerBars.barcode->flag2 = true;
    for (const ItemValues& values :
         {barcodeOf(55, u"ABC"_s), barcodeOf(20, u"Größe"_s), barcodeOf(13, u"12"_s), bearerBars}) {
        canvas.clear();
        canvas.addItem(values);
        EXPECT_THAT(xml(), HasSubstr("<File name=\"drawing-1.svg\""));
        EXPECT_THAT(xml(), Not(HasSubstr("<Object-barcode")));
        EXPECT_EQ(onlyFidelity(), Fidelity::Picture);
    }
}

TEST_F(Glabels, MergesRecords)
{
    const int id = addList({u"a"_s, u"b, \"c\""_s, u"d\\e"_s});
    addBound(textOf(u"own"_s), id);
    addBound(barcodeOf(20, u"own"_s), id);
    const GlabelsLabel label = write();
    const std::string text = label.label.toStdString();
    EXPECT_THAT(text, HasSubstr(R"(<Field name="Text"/>)"));
    EXPECT_THAT(text, HasSubstr(R"(field="Text" format="1")"));
    EXPECT_THAT(text, HasSubstr(R"(<Merge type="Text/Comma/Line1Keys" src="asset.csv"/>)"));
    EXPECT_EQ(label.records, "Text\r\na\r\n\"b, \"\"c\"\"\"\r\nd\\\\e\r\n");
    EXPECT_TRUE(areRecordsOf(label.label.left(4096), label.records));
    EXPECT_FALSE(areRecordsOf(label.label.left(4096), label.records + "f\r\n"));
}

TEST_F(Glabels, WritesCaptionsThatDifferFromTheContent)
{
    addBound(barcodeOf(13, {}), addList({u"590123412345"_s, u"400638133393"_s}));
    EXPECT_THAT(write().records.toStdString(), HasSubstr("590123412345,5901234123457\r\n"));
}

TEST_F(Glabels, ReportsBarcodesThatShowTheFirstRecordOnly)
{
    addBound(barcodeOf(55, {}), addCounter(3));
    EXPECT_EQ(onlyFidelity(), Fidelity::Simplified);
}

TEST_F(Glabels, LimitsTheRecords)
{
    addBound(textOf({}), addCounter(2'000'000'000));
    const GlabelsLabel label = write();
    EXPECT_EQ(label.records.count('\n'), MaximumTableRecords + 1);
    EXPECT_EQ(label.findings.all().last().kind, u"label"_s);
}

TEST_F(Glabels, LimitsTheCellsOfTheRecords)
{
    for (int column = 0; column < 200; ++column) {
        addBound(textOf({}), addCounter(20'000));
    }
    EXPECT_EQ(write().records.count('\n'), MaximumTableCells / 200 + 1);
}

TEST_F(Glabels, RecognizesItsOwnLabels)
{
    const QByteArray label = write().label;
    EXPECT_TRUE(isUneditedGlabels(label));
    // gLabels writes no comments.
    EXPECT_FALSE(isUneditedGlabels(QByteArray(label).replace("<!-- LabelPort -->", "")));
}

} // namespace

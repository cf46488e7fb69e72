// A reader that skips an object without a log record: each item of labels with every kind of
// object is removed from the label in turn.

#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"
#include "tests/support/canvas_writer/canvas_writer.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

Document fullDrawing()
{
    const QByteArray place = " svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\"";
    return odg("<draw:rect" + place + "><text:p>In a box</text:p></draw:rect><draw:ellipse" +
               place +
               "/><draw:line svg:x1=\"1in\" svg:y1=\"1in\" svg:x2=\"2in\" svg:y2=\"2in\"/>"
               "<draw:custom-shape" +
               place +
               "><draw:enhanced-geometry draw:type=\"diamond\"/>"
               "</draw:custom-shape><draw:frame" +
               place +
               "><draw:text-box><text:p>Text</text:p>"
               "</draw:text-box></draw:frame><draw:frame" +
               place + "><draw:image xlink:href=\"Pictures/good.png\"/></draw:frame>");
}

Document fullText()
{
    return odt("<text:h>Head</text:h><text:p>One <text:span>two</text:span> three</text:p><text:p/>"
               "<draw:frame svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\">"
               "<draw:text-box><text:p>Box</text:p></draw:text-box></draw:frame>");
}

Document fullLabel()
{
    const auto control = [](const QByteArray& tag, const QByteArray& more) {
        return "<" + tag +
               "><printable_control><text>12345</text><bounds><x>220</x><y>220</y><w>100</w>"
               "<h>40</h></bounds><font><family>Liberation "
               "Sans</family></font></printable_control>" +
               more + "</" + tag + ">";
    };
    return qmtx(
        control("barcode", "<barcode_type>8</barcode_type>") +
        control("combo_box", "<ArrayOfAnyType><a>x</a></ArrayOfAnyType>") +
        control("date_time_picker", "<format>1</format>") +
        control("numeric_up_down", "<minimum>1</minimum><maximum>9</maximum>") +
        control("picture_box", "<image><content>" + pngOf().toBase64() + "</content></image>") +
        control("swap_text_box", "") + control("transparent_label", "") +
        control("transparent_shape", "<shape_index>0</shape_index>") +
        control("transparent_polygon", "<sides>6</sides>"));
}

Document fullCanvas()
{
    CanvasWriter writer(2000024);
    writer.start();
    canvas::ShapeRecord shape;
    canvas::TextRecord text;
    canvas::BarcodeRecord barcode;
    canvas::PictureRecord picture;
    canvas::SymbolRecord symbol;
    for (canvas::ItemHeader* header :
         {&shape.header, &text.header, &barcode.header, &picture.header, &symbol.header}) {
        header->x = 0.2;
        header->y = 0.2;
    }
    text.content = u"Text"_s;
    barcode.content = u"12345"_s;
    picture.picture = QImage(4, 4, QImage::Format_RGB32);
    picture.picture.fill(Qt::red);
    symbol.svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><rect "
                 "width=\"9\" height=\"9\"/></svg>";
    writer.add(text).add(barcode).add(picture).add(symbol);
    for (const char* name : {"Rectangle", "HorizontalLine", "VerticalLine", "Oval", "Hexagon"}) {
        shape.name = QString::fromLatin1(name);
        writer.add(shape);
    }
    return cnv(writer.bytes());
}

qsizetype itemsOf(const Document& document)
{
    qsizetype count = 0;
    (void)reportOn(document, [&count](auto& result) { count = result.canvas->items().size(); });
    return count;
}

void expectEveryDropIsSeen(const Document& document, qint64 objects)
{
    const FileReport whole = reportOn(document);
    SCOPED_TRACE(codesOf(whole).toStdString());
    ASSERT_EQ(whole.objects.inFile, objects);
    ASSERT_EQ(whole.objects.imported, objects);
    ASSERT_TRUE(whole.lost.isEmpty());
    const qsizetype count = itemsOf(document);
    ASSERT_EQ(count, objects);
    for (qsizetype index = 0; index < count; ++index) {
        SCOPED_TRACE(index);
        const FileReport report =
            reportOn(document, [index](auto& result) { dropItem(result, index); });
        EXPECT_EQ(report.objects.inFile, objects);
        EXPECT_EQ(report.objects.imported, objects - 1);
        const Finding* finding = findingOf(report, lossCode(LossKind::ObjectMissing));
        ASSERT_NE(finding, nullptr);
        EXPECT_EQ(finding->count, 1);
        EXPECT_TRUE(finding->countsObjects);
        EXPECT_TRUE(hasLoss(report));
    }
}

// Readers cannot be made to skip a kind of element, so this renames the element.
Document without(const Document& document, const QByteArray& tag)
{
    Document changed = document;
    changed.bytes.replace("<" + tag + ">", "<x_" + tag + ">");
    changed.bytes.replace("</" + tag + ">", "</x_" + tag + ">");
    return changed;
}

} // namespace

TEST(SilentLoss, IsSeenInDrawings)
{
    expectEveryDropIsSeen(fullDrawing(), 8);
}

TEST(SilentLoss, IsSeenInTexts)
{
    expectEveryDropIsSeen(fullText(), 6);
}

TEST(SilentLoss, IsSeenInXmlLabels)
{
    expectEveryDropIsSeen(fullLabel(), 9);
}

TEST(SilentLoss, IsSeenInBinaryLabels)
{
    expectEveryDropIsSeen(fullCanvas(), 9);
}

TEST(SilentLoss, OfAKindThatIsNotDispatchedIsCounted)
{
    for (const char* tag :
         {"barcode", "combo_box", "date_time_picker", "numeric_up_down", "picture_box",
          "swap_text_box", "transparent_label", "transparent_shape", "transparent_polygon"}) {
        SCOPED_TRACE(tag);
        const FileReport report = reportOn(without(fullLabel(), tag));
        EXPECT_EQ(report.objects.inFile, 9);
        EXPECT_EQ(report.objects.imported, 8);
        EXPECT_TRUE(summaryOf(report).startsWith(QLatin1String("Imported 8 of 9 objects.")));
    }
}

TEST(SilentLoss, ADocumentOfOtherPrefixesIsNotReportedAsComplete)
{
    // A document may define other prefixes; the reader only supports the usual ones.
    Document document = {
        u"prefixes.odg"_s,
        packageOf("<office:drawing><draw:page>" + PlainRect +
                  "<d:rect xmlns:d=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\"/>"
                  "</draw:page></office:drawing>")};
    const FileReport report = reportOn(document);
    EXPECT_EQ(report.objects.imported, 1);
    EXPECT_EQ(report.objects.inFile, 2);
}

// One small document for every kind of loss and change, through the importer and the
// workbench to the report.

#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"
#include "tests/support/canvas_writer/canvas_writer.h"

#include <gtest/gtest.h>

#include <QSet>

#include <ostream>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

struct Sample
{
    LossKind kind;
    Document document;
    qint64 count = 1;
    qint64 lostObjects = 0; ///< how many objects fewer are on the label
    Tamper tamper = nullptr;
};

constexpr quint32 ReadVersion = 2000024;

CanvasWriter& shapeOn(CanvasWriter& writer, const char* name = "Rectangle")
{
    canvas::ShapeRecord shape;
    shape.header.x = 0.5;
    shape.header.y = 0.5;
    shape.header.width = u"1/2"_s;
    shape.header.height = u"1/2"_s;
    shape.name = QString::fromLatin1(name);
    return writer.add(shape);
}

template <class Record>
Document canvasWith(const Record& record)
{
    CanvasWriter writer(ReadVersion);
    writer.start();
    return cnv(shapeOn(writer).add(record).bytes());
}

canvas::TextRecord textRecord(const char* key, const char* keyText = "")
{
    canvas::TextRecord text;
    text.header.x = 0.2;
    text.header.y = 0.2;
    text.content = u"Content"_s;
    text.datasourceKey = QString::fromLatin1(key);
    text.datasourceText = QString::fromLatin1(keyText);
    return text;
}

Document unboundText()
{
    return canvasWith(textRecord("_ROW"));
}

Document placeholderText()
{
    return canvasWith(textRecord("_SPECIAL", "Lot %_DATES% of today"));
}

Document stretchedText()
{
    canvas::TextRecord text = textRecord("");
    text.header.width = u"2"_s;
    return canvasWith(text);
}

Document unknownSymbol()
{
    canvas::SymbolRecord symbol;
    symbol.name = u"no such symbol.svg"_s;
    return canvasWith(symbol);
}

canvas::BarcodeRecord barcodeRecord(qint32 symbology, const char* content)
{
    canvas::BarcodeRecord barcode;
    barcode.header.x = 0.5;
    barcode.header.y = 0.5;
    barcode.symbology = symbology;
    barcode.content = QString::fromLatin1(content);
    return barcode;
}

Document unknownRecord()
{
    CanvasWriter writer(ReadVersion);
    writer.start();
    return cnv(shapeOn(writer).code(77).bytes());
}

Document cutFile()
{
    CanvasWriter writer(ReadVersion);
    writer.start();
    return cnv(shapeOn(shapeOn(writer)).bytes().chopped(10));
}

Document linkedFile()
{
    canvas::DatabaseList databases;
    databases.entries = {{u"C:\\data\\list.csv"_s, 0}};
    CanvasWriter writer(ReadVersion);
    writer.start({}, {}, databases);
    return cnv(shapeOn(writer).bytes());
}

QByteArray shapeControl(const char* bounds)
{
    return "<transparent_shape><printable_control><bounds>" + QByteArray(bounds) +
           "</bounds></printable_control><shape_index>0</shape_index></transparent_shape>";
}

QByteArray pictureControl(const QByteArray& bytes)
{
    return "<picture_box><printable_control><bounds><x>210</x><y>210</y><w>50</w><h>50</h></bounds>"
           "</printable_control><image><content>" +
           bytes.toBase64() + "</content></image></picture_box>";
}

QByteArray fontControl(const char* family)
{
    return QByteArray(PlainLabel).replace("Liberation Sans", family);
}

QByteArray styled(const char* group, const char* properties)
{
    const QByteArray family = QByteArray(group) == "graphic" ? "graphic" : "paragraph";
    return "<style:style style:name=\"S\" style:family=\"" + family + "\"><style:" + group +
           "-properties " + properties + "/></style:style>";
}

const QByteArray FramedPicture =
    "<draw:frame draw:style-name=\"S\" text:anchor-type=\"paragraph\" svg:width=\"1in\" "
    "svg:height=\"1in\"><draw:image xlink:href=\"Pictures/good.png\"/></draw:frame>";
const QByteArray StyledRect =
    QByteArray(PlainRect).replace("<draw:rect", "<draw:rect draw:style-name=\"S\"");
const QByteArray StyledText = "<text:p text:style-name=\"S\">Text</text:p>";

QByteArray rectWith(const QByteArray& children)
{
    return QByteArray(PlainRect).replace("/>", ">" + children + "</draw:rect>");
}

QByteArray masterPage(const QByteArray& content)
{
    return "<style:master-page style:name=\"M\" style:page-layout-name=\"L\">" + content +
           "</style:master-page>";
}

// The object next to the lost one must be imported: a binary file without any item is refused,
// and other files could be empty for any reason.
const QList<Sample>& samples()
{
    static const QList<Sample> all = {
        {LossKind::GroupedObject,
         odg(PlainRect + "<draw:g>" + PlainRect + "<draw:g>" + PlainRect + "</draw:g></draw:g>"), 2,
         2},
        {LossKind::FurtherPage,
         {u"pages.odg"_s,
          packageOf("<office:drawing><draw:page>" + PlainRect + "</draw:page><draw:page>" +
                    rectWith("<text:p>Back</text:p>") + "</draw:page></office:drawing>")},
         2,
         2},
        {LossKind::MasterPageObject, odg(PlainRect, {.masterPages = masterPage(PlainRect)}), 1, 1},
        {LossKind::Connector, odg(PlainRect + "<draw:connector/>"), 1, 1},
        {LossKind::FreeformShape, odg(PlainRect + "<draw:path/><draw:polygon/><draw:polyline/>"), 3,
         3},
        {LossKind::Callout, odg(PlainRect + "<draw:caption/>"), 1, 1},
        {LossKind::ThreeDScene, odg(PlainRect + "<dr3d:scene><dr3d:cube/></dr3d:scene>"), 1, 1},
        {LossKind::FormControl, odg(PlainRect + "<draw:control/>"), 1, 1},
        {LossKind::EmbeddedObject,
         odg(PlainRect + "<draw:frame svg:x=\"1in\"><draw:object/><draw:image/></draw:frame>"), 1,
         1},
        {LossKind::NestedObject, odg(rectWith("<text:p>Text<draw:rect/></text:p>")), 1, 1},
        {LossKind::ShapeInText, odt("<text:p>Text<draw:rect/></text:p>"), 1, 1},
        {LossKind::Table,
         odt("<text:p>Text</text:p><table:table><table:table-row><table:table-cell><text:p>A</"
             "text:p><text:p/></table:table-cell><table:table-cell><text:p>B</text:p></"
             "table:table-cell></table:table-row></table:table>"),
         2, 2},
        {LossKind::List,
         odt("<text:p>Text</text:p><text:list><text:list-item><text:p>A</text:p></text:list-item></"
             "text:list>"),
         1, 1},
        {LossKind::TextSection,
         odt("<text:p>Text</text:p><text:section><text:p>A "
             "<text:span>B</text:span></text:p></text:section>"),
         1, 1},
        {LossKind::HeaderOrFooter,
         odt("<text:p>Text</text:p>",
             {.masterPages = masterPage("<style:footer><text:p>Page 1</text:p></style:footer>")}),
         1, 1},
        {LossKind::LinkText, odt("<text:p>See <text:a>there</text:a></text:p>"), 1, 1},
        {LossKind::TextField, odt("<text:p>Page <text:page-number>1</text:page-number></text:p>"),
         1, 1},
        {LossKind::TextElement, odt("<text:p>Text <text:ruby>strange</text:ruby></text:p>"), 1, 1},
        {LossKind::ShapeText, odg(rectWith("<text:h>Heading</text:h>")), 1, 1},
        {LossKind::LineText,
         odg("<draw:line svg:x1=\"1in\" svg:y1=\"1in\" svg:x2=\"2in\" svg:y2=\"1in\">"
             "<text:p>100 mm</text:p></draw:line>"),
         1, 1},
        {LossKind::Footnote,
         odt("<text:p>Text<text:note><text:note-citation>1</"
             "text:note-citation><text:note-body><text:p>Note</text:p></text:note-body></"
             "text:note></text:p>"),
         1, 1},
        {LossKind::Comment,
         odt("<text:p>Text<office:annotation><text:p>Why?</text:p></office:annotation></text:p>"),
         1, 0},
        {LossKind::Animation, odg(PlainRect + "<anim:par/>"), 1, 0},
        {LossKind::UnknownObject, odg(PlainRect + "<draw:hologram/>"), 1, 1},
        {LossKind::UnknownControl, qmtx(PlainLabel + "<rich_box/><rich_box/>"), 2, 2},
        {LossKind::FurtherControls, qmtx(PlainLabel + "</controls><controls>" + PlainLabel), 1, 1},
        {LossKind::EmptyPictureBox, qmtx(PlainLabel + pictureControl({})), 1, 1},
        {LossKind::PictureUnreadable, qmtx(PlainLabel + pictureControl("no picture")), 1, 1},
        {LossKind::DrawingUnreadable, qmtx(PlainLabel + pictureControl("<svg")), 1, 1},
        {LossKind::SymbolUnreadable, unknownSymbol(), 1, 1},
        {LossKind::BarcodeUnsupported, canvasWith(barcodeRecord(9999, "1")), 1, 1},
        {LossKind::RestUnread, unknownRecord(), 1, 0},
        {LossKind::FileCutShort, cutFile(), 1, 0},
        {LossKind::DocumentTypeUnsupported,
         {u"sheet.odt"_s,
          packageOf(
              "<office:spreadsheet><table:table><table:table-row><table:table-cell><text:p>A</"
              "text:p></table:table-cell></table:table-row></table:table></office:spreadsheet>")},
         1,
         1},
        {LossKind::OverLimit, odt("<text:p>" + QByteArray((4 << 20) + 1, 'a') + "</text:p>"), 1, 1},
        {LossKind::ObjectMissing, qmtx(PlainLabel + PlainLabel), 1, 1,
         [](auto& result) { dropItem(result, 0); }},
        {LossKind::LogCut, qmtx(PlainLabel + QByteArray("<rich_box/>").repeated(1001)), 1, 1001},
        {LossKind::UnknownShape, odg("<draw:custom-shape svg:x=\"1in\" svg:y=\"1in\" "
                                     "svg:width=\"1in\" svg:height=\"1in\"><draw:enhanced-geometry "
                                     "draw:type=\"star5\"/></draw:custom-shape>")},
        {LossKind::DatasourceUnbound, unboundText()},
        {LossKind::DatabaseUnlinked, linkedFile()},
        {LossKind::PlaceholderText, placeholderText()},
        {LossKind::FixedField, odt("<text:p>Made <text:date>1 May</text:date></text:p>")},
        {LossKind::BarcodeNotEncodable, canvasWith(barcodeRecord(13, "letters"))},
        {LossKind::BarcodeTypeAssumed,
         qmtx(
             "<barcode><printable_control><text>123</text><bounds><x>210</x><y>210</y><w>100</"
             "w><h>50</h></bounds></printable_control><barcode_type>999</barcode_type></barcode>")},
        {LossKind::OutsidePage,
         qmtx(PlainLabel + shapeControl("<x>900</x><y>210</y><w>50</w><h>50</h>"))},
        {LossKind::OverPageEdge,
         qmtx(PlainLabel + shapeControl("<x>580</x><y>210</y><w>90</w><h>50</h>"))},
        {LossKind::SizeLimited,
         odg(PlainRect, {.pageLayout = "fo:page-width=\"1000000000in\" fo:page-height=\"3in\""})},
        {LossKind::MillimetersEnlarged,
         odg("<draw:rect svg:x=\"1mm\" svg:y=\"1mm\" svg:width=\"9mm\" svg:height=\"9mm\"/>",
             {.pageLayout = "fo:page-width=\"50mm\" fo:page-height=\"30mm\""})},
        {LossKind::MixedUnits,
         odg(QByteArray(PlainRect).replace("svg:width=\"1in\"", "svg:width=\"0.02cm\""))},
        {LossKind::UnitUnknown,
         odg("<draw:rect svg:x=\"1pt\" svg:y=\"1pt\" svg:width=\"9pt\" svg:height=\"9pt\"/>",
             {.pageLayout = "fo:page-width=\"90pt\" fo:page-height=\"90pt\""})},
        {LossKind::PageSizeAssumed,
         {u"bare.qmtx"_s, "<qmtx><controls>" + PlainLabel + "</controls></qmtx>"}},
        {LossKind::PositionAssumed, odg("<draw:rect svg:width=\"1in\" svg:height=\"1in\"/>")},
        {LossKind::PageMargins,
         odt("<text:p>Text</text:p>",
             {.pageLayout = "fo:page-width=\"4in\" fo:page-height=\"3in\" fo:margin-top=\"1in\"",
              .masterPages = masterPage("")})},
        {LossKind::PageBreak,
         odt(StyledText, {.automaticStyles = styled("paragraph", "fo:break-before=\"page\"")})},
        {LossKind::TransformDropped, odg(QByteArray(PlainRect).replace(
                                         "svg:x=\"1in\" svg:y=\"1in\"",
                                         "draw:transform=\"skewX (0.001) translate (1in 1in)\""))},
        {LossKind::FontReplaced, qmtx(fontControl("No Such Font"))},
        {LossKind::TextStretched, stretchedText()},
        {LossKind::TextColor,
         odt(StyledText, {.automaticStyles = styled("text", "fo:color=\"#ff0000\"")})},
        {LossKind::TextSpacing, odg(rectWith("<text:p>One <text:s/>Two</text:p>"))},
        {LossKind::TextFormat,
         odt(StyledText, {.automaticStyles = styled("text", "style:text-position=\"super 58%\"")})},
        {LossKind::TextEffect,
         odt(StyledText, {.automaticStyles = styled("text", "style:text-outline=\"true\"")})},
        {LossKind::TextPath,
         odg("<draw:custom-shape svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
             "svg:height=\"1in\"><draw:enhanced-geometry draw:type=\"rectangle\" "
             "draw:text-path=\"true\"/></draw:custom-shape>")},
        {LossKind::Numbering,
         odt("<text:h text:outline-level=\"1\">Head</text:h>",
             {.commonStyles = "<text:outline-style><text:outline-level-style text:level=\"1\" "
                              "style:num-format=\"1\"/></text:outline-style>"})},
        {LossKind::TextDiffers,
         odg(rectWith("<text:p><text:span>12.40</text:span> <text:span>kg</text:span></text:p>"))},
        {LossKind::TextUnreadable,
         odg(QByteArray(StyledRect).replace("/>", "><text:p>Mains</text:p></draw:rect>"),
             {.automaticStyles = styled("graphic", "draw:fill=\"solid\" "
                                                   "draw:fill-color=\"#000000\"")})},
        {LossKind::TextsOverlap,
         odt("<text:p text:style-name=\"S\">Price <text:span>12.40</text:span> per "
             "kilogram</text:p>",
             {.automaticStyles = styled("paragraph", "fo:text-align=\"center\"")})},
        {LossKind::Covered, odt("<text:p>" + FramedPicture + FramedPicture + "</text:p>",
                                {.automaticStyles = styled("graphic", "style:wrap=\"none\"")})},
        {LossKind::Moved, odg(QByteArray(PlainRect).replace(
                              "svg:x=\"1in\" svg:y=\"1in\"",
                              "draw:transform=\"rotate (0.5) translate (1in 1.5in)\""))},
        {LossKind::Mirrored,
         odg("<draw:custom-shape svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
             "svg:height=\"1in\"><draw:enhanced-geometry draw:type=\"right-triangle\" "
             "draw:mirror-horizontal=\"true\"/></draw:custom-shape>")},
        {LossKind::Invisible,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:stroke=\"none\" "
                                                               "draw:fill=\"bitmap\" "
                                                               "draw:fill-color=\"#ffffff\"")})},
        {LossKind::FillAdded,
         odt("<draw:frame draw:style-name=\"S\" svg:width=\"1in\" svg:height=\"1in\">"
             "<draw:text-box><text:p>Text</text:p></draw:text-box></draw:frame>",
             {.automaticStyles = styled("graphic", "draw:fill-color=\"#3465a4\"")})},
        {LossKind::PenWidth,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:stroke=\"solid\" "
                                                               "svg:stroke-width=\"0.02in\" "
                                                               "draw:fill=\"none\"")})},
        {LossKind::FillSimplified,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:fill=\"gradient\" "
                                                               "draw:fill-color=\"#3465a4\"")})},
        {LossKind::PictureFill,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:fill=\"bitmap\" "
                                                               "draw:fill-color=\"#3465a4\"")})},
        {LossKind::EffectDropped,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:shadow=\"visible\"")})},
        {LossKind::Transparency,
         odg(StyledRect, {.automaticStyles = styled("graphic", "draw:opacity=\"40%\"")})},
        {LossKind::Other, qmtx(PlainLabel), 1, 0,
         [](auto& result) {
             result.log.append({true, u"x.cpp"_s, u"News"_s});
         }},
    };
    return all;
}

class ReportedLoss : public testing::TestWithParam<qsizetype>
{};

std::string nameOf(const testing::TestParamInfo<qsizetype>& info)
{
    std::string name = lossCode(samples().at(info.param).kind).toStdString();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace

TEST_P(ReportedLoss, IsReported)
{
    const Sample& sample = samples().at(GetParam());
    const LossRow& row = lossRow(sample.kind);
    const FileReport report = reportOn(sample.document, sample.tamper);
    SCOPED_TRACE(codesOf(report).toStdString());
    ASSERT_EQ(report.status, Status::Imported) << report.error.toStdString();

    const Finding* finding = findingOf(report, lossCode(sample.kind));
    ASSERT_NE(finding, nullptr);
    EXPECT_EQ(finding->count, sample.count);
    EXPECT_FALSE(finding->text.isEmpty());
    const QList<Finding>& list = row.outcome == Outcome::Lost ? report.lost : report.changed;
    EXPECT_TRUE(list.contains(*finding)) << "in the wrong list";
    EXPECT_EQ(objectsLost(report), sample.lostObjects);
    EXPECT_NE(verdictOf(report), Verdict::Complete);
}

TEST_P(ReportedLoss, FailsTheRunWhenTheContentIsAffected)
{
    const Sample& sample = samples().at(GetParam());
    const FileReport report = reportOn(sample.document, sample.tamper);
    SCOPED_TRACE(codesOf(report).toStdString());
    // Each sample has a single loss or change, which determines the result.
    EXPECT_EQ(hasLoss(report), lossRow(sample.kind).impact == Impact::Content);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ReportedLoss,
                         testing::Range(qsizetype(0), qsizetype(samples().size())), nameOf);

TEST(ReportedLosses, EveryKindHasASample)
{
    QSet<QString> shown;
    for (const Sample& sample : samples()) {
        shown.insert(lossCode(sample.kind));
    }
    // Of repaired documents: see repaired_report_test.cpp.
    shown.insert(lossCode(LossKind::PagesLeftOut));
    shown.insert(lossCode(LossKind::TextWrap));
    shown.insert(lossCode(LossKind::CellBorders));
    shown.insert(lossCode(LossKind::LayoutSimplified));
    shown.insert(lossCode(LossKind::ObjectRedrawn));
    for (const LossRow& row : lossRows()) {
        EXPECT_TRUE(shown.contains(lossCode(row.kind))) << row.code;
    }
}

TEST(ReportedLosses, NothingIsReportedForCompleteDocuments)
{
    CanvasWriter writer(ReadVersion);
    writer.start();
    for (const Document& document : {odg(PlainRect), odt("<text:p>Text</text:p>"), qmtx(PlainLabel),
                                     cnv(shapeOn(writer).bytes())}) {
        const FileReport report = reportOn(document);
        SCOPED_TRACE(codesOf(report).toStdString());
        EXPECT_TRUE(report.lost.isEmpty());
        EXPECT_FALSE(hasLoss(report));
        EXPECT_EQ(report.objects.inFile, report.objects.imported);
        EXPECT_TRUE(summaryOf(report).startsWith(QLatin1String("Imported 1 of 1 objects.")));
    }
}

TEST(ReportedLosses, APictureThatManyFramesShowIsMissingInAll)
{
    const QByteArray frame = "<draw:frame svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" "
                             "svg:height=\"1in\"><draw:image xlink:href=\"no.png\"/></draw:frame>";
    const FileReport report = reportOn(odg(PlainRect + frame.repeated(3)));
    const Finding* finding = findingOf(report, lossCode(LossKind::PictureUnreadable));
    ASSERT_NE(finding, nullptr) << codesOf(report).toStdString();
    EXPECT_EQ(finding->count, 3);
    EXPECT_EQ(findingOf(report, lossCode(LossKind::ObjectMissing)), nullptr);
}

TEST(ReportedLosses, AFileThatIsNotImportedIsALoss)
{
    const FileReport report = reportOn(cnv("no label"));
    EXPECT_EQ(report.status, Status::Failed);
    EXPECT_FALSE(report.error.isEmpty());
    EXPECT_TRUE(hasLoss(report));
    EXPECT_FALSE(report.objects.inFile.has_value());
    EXPECT_TRUE(report.objects.unknown.isEmpty()) << "a guess next to the reason";
}

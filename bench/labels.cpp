#include "bench/labels.h"

#include "tests/support/canvas_writer/canvas_writer.h"

#include <QBuffer>

#include <algorithm>

#include <private/qzipwriter_p.h>

namespace bench {

namespace {

using namespace Qt::StringLiterals;

constexpr quint32 NewestVersion = 2000024;

QByteArray number(int value)
{
    return QByteArray::number(value);
}

// Places spread over a page of 20 by 30 inches.
double placeX(int i)
{
    return i % 157 * 0.125;
}

double placeY(int i)
{
    return i % 239 * 0.125;
}

canvas::ItemHeader headerOf(int i)
{
    return {false, placeX(i), placeY(i), double(i % 5), 0.0, u"3/2"_s, u"3/8"_s};
}

canvas::ShapeRecord shapeRecord(int i)
{
    static const QStringList names = {u"Rectangle"_s, u"Oval"_s, u"HorizontalLine"_s,
                                      u"RoundedRectangle"_s, u"Diamond"_s};
    canvas::ShapeRecord record;
    record.header = headerOf(i);
    record.fillMode = i % 3;
    record.name = names[i % names.size()];
    return record;
}

canvas::TextRecord textRecord(int i)
{
    canvas::TextRecord record;
    record.header = headerOf(i);
    record.header.width = record.header.height = u"1"_s;
    record.fixedWidth = 1.5;
    record.fixedHeight = 0.375;
    record.content = u"Shelf %1, second row"_s.arg(i);
    return record;
}

canvas::BarcodeRecord barcodeRecord(int i)
{
    canvas::BarcodeRecord record;
    record.header = headerOf(i);
    record.content = u"LP-%1"_s.arg(i, 8, 10, QChar(u'0'));
    return record;
}

QByteArray element(const char* tag, const QByteArray& content)
{
    return QByteArray("<") + tag + '>' + content + "</" + tag + '>';
}

QByteArray printable(int i, const QByteArray& text)
{
    return "<printable_control><text>" + text +
           "</text><transparency>true</transparency><negative>false</negative>"
           "<fore_color>-16777216</fore_color><back_color>-1</back_color><bounds><x>" +
           QByteArray::number(200 + placeX(i) * 96) + "</x><y>" +
           QByteArray::number(200 + placeY(i) * 96) +
           "</y><w>144</w><h>36</h></bounds><font><family>Liberation Sans</family>"
           "<size>12</size><style>1</style></font></printable_control>";
}

QByteArray turned()
{
    return "<flip_horizontally>false</flip_horizontally><flip_vertically>false</flip_vertically>"
           "<rotation>0</rotation>";
}

QByteArray control(int i)
{
    const QByteArray text = "Shelf " + number(i) + ", second row";
    switch (i % 10) {
    case 0:
    case 1:
    case 2:
        return element("transparent_label", printable(i, text) + turned() +
                                                "<scaleable>false</scaleable><alignment>" +
                                                number(i % 3) + "</alignment>");
    case 3:
    case 4:
    case 5:
        return element("transparent_shape", printable(i, {}) + turned() + "<shape_index>" +
                                                number(i % 4) +
                                                "</shape_index><line_width>1</line_width>"
                                                "<sides>0</sides>");
    case 6:
        return element("barcode", printable(i, {}) + "<ArrayOfString><string>LP-" + number(i) +
                                      "</string></ArrayOfString><barcode_type>20</barcode_type>");
    case 7:
        return element("combo_box", printable(i, text) + "<ArrayOfAnyType><anyType>" + text +
                                        "</anyType><anyType>Two</anyType></ArrayOfAnyType>");
    case 8:
        return element("numeric_up_down", printable(i, "1") + "<read_only>false</read_only>"
                                                              "<minimum>1</minimum><maximum>99"
                                                              "</maximum><incrememnt>1"
                                                              "</incrememnt>");
    default:
        return element("date_time_picker", printable(i, {}) + "<format>1</format>");
    }
}

QByteArray inches(const char* name, double value)
{
    return QByteArray(" svg:") + name + "=\"" + QByteArray::number(value) + "in\"";
}

QByteArray look(int i)
{
    return " draw:style-name=\"gr" + number(i % 20) +
           "\" draw:text-style-name=\"P1\" draw:layer=\"layout\" draw:z-index=\"" + number(i) + '"';
}

QByteArray box(int i)
{
    return look(i) + inches("width", 1.5) + inches("height", 0.375) + inches("x", placeX(i)) +
           inches("y", placeY(i));
}

QByteArray textIn(int i, Texts texts)
{
    if (texts == Texts::None) {
        return {};
    }
    return "<text:p text:style-name=\"P1\">Shelf <text:span text:style-name=\"T1\">" + number(i) +
           "</text:span></text:p>";
}

QByteArray customShape(int i, Texts texts)
{
    return element("draw:custom-shape", {})
        .replace("></",
                 box(i) + '>' + textIn(i, texts) +
                     "<draw:enhanced-geometry svg:viewBox=\"0 0 21600 21600\" "
                     "draw:type=\"diamond\" draw:enhanced-path=\"M 10800 0 L 21600 10800 10800 "
                     "21600 0 10800 10800 0 Z N\"/></");
}

QByteArray shape(int i, Texts texts)
{
    switch (i % 10) {
    case 0:
    case 1:
    case 2:
        return "<draw:rect" + box(i) + "/>";
    case 3:
    case 4:
        return "<draw:line" + look(i) + inches("x1", placeX(i)) + inches("y1", placeY(i)) +
               inches("x2", placeX(i) + 1) + inches("y2", placeY(i)) + "/>";
    case 5:
        return "<draw:ellipse" + box(i) + "/>";
    case 6:
        return customShape(i, Texts::None);
    case 7:
        return customShape(i, texts);
    default:
        return "<draw:frame" + box(i) + "><draw:text-box fo:min-height=\"0.375in\">" +
               textIn(i, texts) + "</draw:text-box></draw:frame>";
    }
}

QByteArray graphicStyles()
{
    QByteArray styles;
    for (int i = 0; i < 20; ++i) {
        styles += "<style:style style:name=\"gr" + number(i) +
                  "\" style:family=\"graphic\" style:parent-style-name=\"standard\">"
                  "<style:graphic-properties draw:stroke=\"solid\" svg:stroke-width=\"0.02in\" "
                  "svg:stroke-color=\"#123456\" draw:fill=\"" +
                  QByteArray(i % 2 == 0 ? "none" : "solid") +
                  "\" draw:fill-color=\"#ffcc00\"/></style:style>";
    }
    return styles + "<style:style style:name=\"P1\" style:family=\"paragraph\">"
                    "<style:paragraph-properties fo:text-align=\"center\"/></style:style>"
                    "<style:style style:name=\"T1\" style:family=\"text\">"
                    "<style:text-properties fo:font-weight=\"bold\" fo:font-size=\"9pt\"/>"
                    "</style:style>";
}

QByteArray namespaces()
{
    static constexpr const char* Prefixes[] = {"office", "style", "text", "draw"};
    QByteArray declarations;
    for (const char* prefix : Prefixes) {
        const QByteArray name =
            QByteArray(prefix) == "draw" ? QByteArray("drawing") : QByteArray(prefix);
        declarations += QByteArray(" xmlns:") + prefix +
                        "=\"urn:oasis:names:tc:opendocument:xmlns:" + name + ":1.0\"";
    }
    return declarations +
           " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
           " xmlns:fo=\"urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0\""
           " office:version=\"1.2\"";
}

QByteArray drawingContent(int shapes, Texts texts)
{
    QByteArray content = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<office:document-content" +
                         namespaces() + "><office:automatic-styles>" + graphicStyles() +
                         "</office:automatic-styles><office:body><office:drawing>"
                         "<draw:page draw:name=\"1\" draw:master-page-name=\"Default\">";
    for (int i = 0; i < shapes; ++i) {
        content += shape(i, texts);
    }
    return content + "</draw:page></office:drawing></office:body></office:document-content>";
}

QByteArray drawingStyles()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:document-styles" + namespaces() +
           "><office:styles/><office:automatic-styles><style:page-layout style:name=\"PM1\">"
           "<style:page-layout-properties fo:page-width=\"21in\" fo:page-height=\"31in\" "
           "style:print-orientation=\"portrait\"/></style:page-layout></office:automatic-styles>"
           "<office:master-styles><style:master-page style:name=\"Default\" "
           "style:page-layout-name=\"PM1\"/></office:master-styles></office:document-styles>";
}

QByteArray runsFrom(int first, int end)
{
    QByteArray runs;
    for (int i = first; i < end; ++i) {
        const QByteArray words = "run " + number(i) + ' ';
        runs += i % 2 == 0 ? words : "<text:span text:style-name=\"T1\">" + words + "</text:span>";
    }
    return runs;
}

QByteArray textContent(int runs)
{
    constexpr int inParagraph = 6;
    QByteArray content = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<office:document-content" +
                         namespaces() + "><office:automatic-styles>" + graphicStyles() +
                         "</office:automatic-styles><office:body><office:text>";
    for (int i = 0; i < runs; i += inParagraph) {
        content += "<text:p text:style-name=\"P1\">" +
                   runsFrom(i, std::min(i + inParagraph, runs)) + "</text:p>";
    }
    return content + "</office:text></office:body></office:document-content>";
}

QByteArray manifest(const QByteArray& type)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<manifest:manifest xmlns:manifest="
           "\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\" manifest:version=\"1.2\">"
           "<manifest:file-entry manifest:full-path=\"/\" manifest:media-type=\"" +
           type +
           "\"/><manifest:file-entry manifest:full-path=\"content.xml\" "
           "manifest:media-type=\"text/xml\"/><manifest:file-entry "
           "manifest:full-path=\"styles.xml\" manifest:media-type=\"text/xml\"/>"
           "</manifest:manifest>";
}

QByteArray package(const QByteArray& type, const QByteArray& content)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter writer(&buffer);
    // Other programs detect the format by this member, which must be the first and uncompressed.
    writer.setCompressionPolicy(QZipWriter::NeverCompress);
    writer.addFile(u"mimetype"_s, type);
    writer.setCompressionPolicy(QZipWriter::AlwaysCompress);
    writer.addFile(u"META-INF/manifest.xml"_s, manifest(type));
    writer.addFile(u"styles.xml"_s, drawingStyles());
    writer.addFile(u"content.xml"_s, content);
    writer.close();
    return buffer.data();
}

} // namespace

QByteArray canvasFile(int items)
{
    CanvasWriter writer(NewestVersion);
    canvas::CanvasRecord page;
    page.width = 21.0;
    page.height = 31.0;
    writer.start(page);
    for (int i = 0; i < items; ++i) {
        if (i % 10 < 5) {
            writer.add(shapeRecord(i));
        } else if (i % 10 < 8) {
            writer.add(textRecord(i));
        } else {
            writer.add(barcodeRecord(i));
        }
    }
    return writer.bytes();
}

QByteArray xmlLabel(int items)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<qmtx>\n<printable_control>"
                     "<bounds><x>200</x><y>200</y><w>2016</w><h>2976</h></bounds>"
                     "</printable_control><controls>\n";
    for (int i = 0; i < items; ++i) {
        xml += control(i) + '\n';
    }
    return xml + "</controls>\n</qmtx>\n";
}

QByteArray drawing(int shapes, Texts texts)
{
    return package("application/vnd.oasis.opendocument.graphics", drawingContent(shapes, texts));
}

QByteArray textDocument(int runs)
{
    return package("application/vnd.oasis.opendocument.text", textContent(runs));
}

} // namespace bench

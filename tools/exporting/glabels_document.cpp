#include "exporting/glabels_document.h"

#include "exporting/glabels_embedding.h"

namespace exporting {

using namespace Qt::StringLiterals;

namespace {

/// The blank margin that gLabels leaves on the left and the right of a text.
constexpr double TextMargin = 3.0;
/// Points. gLabels gives sizes of fonts in pixels to its layout, and spaces lines in the same unit.
constexpr double PixelSize = 72.0 / 96.0;

QString number(double value)
{
    return QString::number(value, 'g', 9);
}

QString length(double points)
{
    return number(points) + "pt"_L1;
}

QString colorOf(const QColor& color)
{
    const QRgb rgba = color.rgba();
    const quint32 value = (rgba << 8U) | (rgba >> 24U);
    return u"0x%1"_s.arg(value, 8, 16, QLatin1Char('0'));
}

QString booleanOf(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

/// Omits the characters that XML does not allow.
QString xmlText(const QString& text)
{
    QString allowed;
    for (const char32_t character : text.toUcs4()) {
        const bool isControl = character < 0x20 && character != u'\t' && character != u'\n';
        const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
        if (!isControl && !isSurrogate && character != 0xFFFE && character != 0xFFFF) {
            allowed.append(QString::fromUcs4(&character, 1));
        }
    }
    return allowed;
}

/// A text in which gLabels finds no field: "${name}" would be replaced with a record's field.
QString literalText(const QString& text)
{
    return xmlText(text).replace(u"${"_s, u"$\u200B{"_s);
}

QString justification(Qt::Alignment alignment)
{
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return u"Center"_s;
    }
    return alignment.testFlag(Qt::AlignRight) ? u"Right"_s : u"Left"_s;
}

QString verticalAlignment(Qt::Alignment alignment)
{
    if (alignment.testFlag(Qt::AlignVCenter)) {
        return u"Center"_s;
    }
    return alignment.testFlag(Qt::AlignBottom) ? u"Bottom"_s : u"Top"_s;
}

} // namespace

GlabelsDocument::GlabelsDocument(const GlabelsSheet& sheet)
    : m_xml(&m_bytes)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(u"Glabels-document"_s);
    m_xml.writeDefaultNamespace(u"http://glabels.org/xmlns/3.0/"_s);
    writeSheet(sheet);
    m_xml.writeStartElement(u"Objects"_s);
    m_xml.writeAttribute(u"id"_s, u"0"_s);
    m_xml.writeAttribute(u"rotate"_s, booleanOf(sheet.isRotated));
}

void GlabelsDocument::writeSheet(const GlabelsSheet& sheet)
{
    m_xml.writeStartElement(u"Template"_s);
    m_xml.writeAttribute(u"brand"_s, xmlText(sheet.brand));
    m_xml.writeAttribute(u"part"_s, xmlText(sheet.part));
    m_xml.writeAttribute(u"size"_s, u"Other"_s);
    m_xml.writeAttribute(u"width"_s, length(sheet.paper.width()));
    m_xml.writeAttribute(u"height"_s, length(sheet.paper.height()));
    m_xml.writeAttribute(u"description"_s, xmlText(sheet.part));
    m_xml.writeStartElement(u"Label-rectangle"_s);
    m_xml.writeAttribute(u"id"_s, u"0"_s);
    m_xml.writeAttribute(u"width"_s, length(sheet.label.width()));
    m_xml.writeAttribute(u"height"_s, length(sheet.label.height()));
    m_xml.writeAttribute(u"round"_s, length(sheet.cornerRadius));
    m_xml.writeAttribute(u"x_waste"_s, length(0.0));
    m_xml.writeAttribute(u"y_waste"_s, length(0.0));
    m_xml.writeEmptyElement(u"Layout"_s);
    m_xml.writeAttribute(u"nx"_s, QString::number(sheet.columns));
    m_xml.writeAttribute(u"ny"_s, QString::number(sheet.rows));
    m_xml.writeAttribute(u"x0"_s, length(sheet.first.x()));
    m_xml.writeAttribute(u"y0"_s, length(sheet.first.y()));
    m_xml.writeAttribute(u"dx"_s, length(sheet.distances.width()));
    m_xml.writeAttribute(u"dy"_s, length(sheet.distances.height()));
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void GlabelsDocument::startObject(const QString& name, const QRectF& box, const QTransform& toPage)
{
    const QPointF corner = toPage.map(box.topLeft());
    m_xml.writeStartElement(name);
    m_xml.writeAttribute(u"x"_s, length(corner.x()));
    m_xml.writeAttribute(u"y"_s, length(corner.y()));
    m_xml.writeAttribute(u"w"_s, length(box.width()));
    m_xml.writeAttribute(u"h"_s, length(box.height()));
}

/// The object's transform applies about its corner, which the position already maps.
void GlabelsDocument::endObject(const QTransform& toPage)
{
    m_xml.writeAttribute(u"a0"_s, number(toPage.m11()));
    m_xml.writeAttribute(u"a1"_s, number(toPage.m12()));
    m_xml.writeAttribute(u"a2"_s, number(toPage.m21()));
    m_xml.writeAttribute(u"a3"_s, number(toPage.m22()));
    m_xml.writeAttribute(u"a4"_s, u"0"_s);
    m_xml.writeAttribute(u"a5"_s, u"0"_s);
}

void GlabelsDocument::writeOutlined(const QString& name, const QRectF& box,
                                    const QTransform& toPage, const GlabelsPen& pen,
                                    const QColor& fill)
{
    startObject(name, box, toPage);
    m_xml.writeAttribute(u"line_width"_s, length(pen.width));
    m_xml.writeAttribute(u"line_color"_s, colorOf(pen.width > 0.0 ? pen.color : Qt::transparent));
    m_xml.writeAttribute(u"fill_color"_s, colorOf(fill));
    endObject(toPage);
    m_xml.writeEndElement();
}

void GlabelsDocument::addBox(const QRectF& box, const QTransform& toPage, const GlabelsPen& pen,
                             const QColor& fill)
{
    writeOutlined(u"Object-box"_s, box, toPage, pen, fill);
}

void GlabelsDocument::addEllipse(const QRectF& box, const QTransform& toPage, const GlabelsPen& pen,
                                 const QColor& fill)
{
    writeOutlined(u"Object-ellipse"_s, box, toPage, pen, fill);
}

void GlabelsDocument::addLine(const QPointF& from, const QPointF& to, const GlabelsPen& pen)
{
    m_xml.writeStartElement(u"Object-line"_s);
    m_xml.writeAttribute(u"x"_s, length(from.x()));
    m_xml.writeAttribute(u"y"_s, length(from.y()));
    m_xml.writeAttribute(u"dx"_s, length(to.x() - from.x()));
    m_xml.writeAttribute(u"dy"_s, length(to.y() - from.y()));
    m_xml.writeAttribute(u"line_width"_s, length(pen.width));
    m_xml.writeAttribute(u"line_color"_s, colorOf(pen.color));
    endObject({});
    m_xml.writeEndElement();
}

void GlabelsDocument::addText(const QRectF& box, const QTransform& toPage, const GlabelsText& text)
{
    startObject(u"Object-text"_s, box.adjusted(-TextMargin, 0.0, TextMargin, 0.0), toPage);
    m_xml.writeAttribute(u"justify"_s, justification(text.alignment));
    m_xml.writeAttribute(u"valign"_s, verticalAlignment(text.alignment));
    endObject(toPage);
    m_xml.writeStartElement(u"Span"_s);
    m_xml.writeAttribute(u"font_family"_s, xmlText(text.family));
    m_xml.writeAttribute(u"font_size"_s, number(text.size));
    m_xml.writeAttribute(u"font_weight"_s, text.bold ? u"Bold"_s : u"Regular"_s);
    m_xml.writeAttribute(u"font_italic"_s, booleanOf(text.italic));
    m_xml.writeAttribute(u"color"_s, colorOf(text.color));
    m_xml.writeAttribute(u"line_spacing"_s, number(1.0 + text.lineGap / (text.size * PixelSize)));
    // Line breaks between elements would become part of the text.
    m_xml.setAutoFormatting(false);
    if (!text.field.isEmpty()) {
        m_xml.writeEmptyElement(u"Field"_s);
        m_xml.writeAttribute(u"name"_s, text.field);
    }
    for (qsizetype i = 0; i < text.lines.size() && text.field.isEmpty(); ++i) {
        if (i > 0) {
            m_xml.writeEmptyElement(u"NL"_s);
        }
        m_xml.writeCharacters(literalText(text.lines.at(i)));
    }
    m_xml.writeEndElement();
    m_xml.setAutoFormatting(true);
    m_xml.writeEndElement();
}

void GlabelsDocument::addBarcode(const QRectF& box, const QTransform& toPage,
                                 const GlabelsBarcode& barcode)
{
    startObject(u"Object-barcode"_s, box, toPage);
    m_xml.writeAttribute(u"backend"_s, barcode.backend);
    m_xml.writeAttribute(u"style"_s, barcode.style);
    m_xml.writeAttribute(u"text"_s, u"False"_s);
    m_xml.writeAttribute(u"checksum"_s, booleanOf(barcode.checksum));
    m_xml.writeAttribute(u"color"_s, colorOf(barcode.color));
    if (barcode.field.isEmpty()) {
        m_xml.writeAttribute(u"data"_s, xmlText(barcode.content));
    } else {
        m_xml.writeAttribute(u"field"_s, barcode.field);
        // The length of the example that gLabels shows while the label is edited.
        m_xml.writeAttribute(u"format"_s, QString::number(barcode.content.size()));
    }
    endObject(toPage);
    m_xml.writeEndElement();
}

void GlabelsDocument::writeImage(const QRectF& box, const QTransform& toPage, const QString& source)
{
    startObject(u"Object-image"_s, box, toPage);
    m_xml.writeAttribute(u"src"_s, source);
    endObject(toPage);
    m_xml.writeEndElement();
}

bool GlabelsDocument::addDrawing(const QRectF& box, const QTransform& toPage, const QByteArray& svg)
{
    if (svg.size() > MaximumEmbedded) {
        return false;
    }
    const QString name = u"drawing-%1.svg"_s.arg(m_embedded.size() + 1);
    m_embedded.append({name, stretched(svg, box.size()), true});
    writeImage(box, toPage, name);
    return true;
}

bool GlabelsDocument::addPicture(const QRectF& box, const QTransform& toPage, const QImage& picture)
{
    const QImage embedded = embeddable(picture);
    const QString name = u"picture-%1.png"_s.arg(m_embedded.size() + 1);
    m_embedded.append({name, pixdataOf(embedded).toBase64(), false});
    writeImage(box, toPage, name);
    return embedded.size() == picture.size();
}

void GlabelsDocument::writeEmbedded()
{
    m_xml.writeStartElement(u"Data"_s);
    m_xml.setAutoFormatting(false);
    for (const Embedded& each : m_embedded) {
        m_xml.writeStartElement(each.isDrawing ? u"File"_s : u"Pixdata"_s);
        m_xml.writeAttribute(u"name"_s, each.name);
        if (each.isDrawing) {
            m_xml.writeAttribute(u"format"_s, u"SVG"_s);
            m_xml.writeCDATA(QString::fromUtf8(each.bytes));
        } else {
            m_xml.writeAttribute(u"encoding"_s, u"Base64"_s);
            m_xml.writeCharacters(QString::fromLatin1(each.bytes));
        }
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

QByteArray GlabelsDocument::finish(const QString& remark, const QString& records)
{
    m_xml.writeEndElement(); // Objects
    if (!records.isEmpty()) {
        m_xml.writeEmptyElement(u"Merge"_s);
        m_xml.writeAttribute(u"type"_s, u"Text/Comma/Line1Keys"_s);
        m_xml.writeAttribute(u"src"_s, xmlText(records));
    }
    if (!m_embedded.isEmpty()) {
        writeEmbedded();
    }
    m_xml.writeEndDocument();
    constexpr QByteArrayView declarationEnd("?>");
    return m_bytes.insert(m_bytes.indexOf(declarationEnd) + declarationEnd.size(),
                          "\n<!-- " + remark.toUtf8() + " -->");
}

} // namespace exporting

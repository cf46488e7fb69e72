#include "exporting/glabels_document.h"

namespace exporting {

using namespace Qt::StringLiterals;
using workbench::PenValues;

namespace {

constexpr double PointsPerMillimeter = 72.0 / 25.4;
/// The blank margin that gLabels leaves on the left and the right of a text.
constexpr double TextMargin = 3.0;
/// Points. gLabels gives sizes of fonts in pixels to its layout, and spaces lines in the same unit.
constexpr double PixelSize = 72.0 / 96.0;
/// The thinnest line of our output; gLabels would draw nothing.
constexpr double HairlineWidth = 0.25;

QString number(double value)
{
    return QString::number(value, 'g', 9);
}

QString length(double points)
{
    return number(points) + "pt"_L1;
}

QString millimeters(double value)
{
    return length(value * PointsPerMillimeter);
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

QString widthOf(const PenValues& pen)
{
    const double width = pen.width > 0.0 ? pen.width : HairlineWidth;
    return length(pen.style == Qt::NoPen ? 0.0 : width);
}

QString colorOf(const PenValues& pen)
{
    return colorOf(pen.style == Qt::NoPen ? QColor(Qt::transparent) : pen.color);
}

/// Omits the characters that XML does not allow. Incomplete surrogates are replaced in UTF-8.
QString xmlText(QString text)
{
    return text.removeIf([](QChar character) {
        return (character < u' ' && character != u'\t' && character != u'\n') ||
               character == u'\uFFFE' || character == u'\uFFFF';
    });
}

/// A text in which gLabels finds no field: "${name}" would be replaced with a record's field.
QString literalText(const QString& text)
{
    return xmlText(text).replace(u"${"_s, u"$\u200B{"_s);
}

QString justification(Qt::Alignment alignment)
{
    return alignment.testFlag(Qt::AlignHCenter) ? u"Center"_s
           : alignment.testFlag(Qt::AlignRight) ? u"Right"_s
                                                : u"Left"_s;
}

QString verticalAlignment(Qt::Alignment alignment)
{
    return alignment.testFlag(Qt::AlignVCenter)  ? u"Center"_s
           : alignment.testFlag(Qt::AlignBottom) ? u"Bottom"_s
                                                 : u"Top"_s;
}

QString drawingName(qsizetype index)
{
    return u"drawing-%1.svg"_s.arg(index + 1);
}

} // namespace

GlabelsDocument::GlabelsDocument(const printing::Sheet& sheet, bool isRotated)
    : m_xml(&m_bytes)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(u"Glabels-document"_s);
    m_xml.writeDefaultNamespace(u"http://glabels.org/xmlns/3.0/"_s);
    start("Template", {{"brand", u"LabelPort"_s},
                       {"part", sheet.name()},
                       {"size", u"Other"_s},
                       {"width", millimeters(sheet.paperSize.width())},
                       {"height", millimeters(sheet.paperSize.height())},
                       {"description", sheet.name()}});
    start("Label-rectangle", {{"id", u"0"_s},
                              {"width", millimeters(sheet.label.width())},
                              {"height", millimeters(sheet.label.height())},
                              {"round", length(0.0)},
                              {"x_waste", length(0.0)},
                              {"y_waste", length(0.0)}});
    start("Layout", {{"nx", QString::number(sheet.columns)},
                     {"ny", QString::number(sheet.rows)},
                     {"x0", millimeters(sheet.start.x())},
                     {"y0", millimeters(sheet.start.y())},
                     {"dx", millimeters(sheet.pitch.width())},
                     {"dy", millimeters(sheet.pitch.height())}});
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    start("Objects", {{"id", u"0"_s}, {"rotate", booleanOf(isRotated)}});
}

void GlabelsDocument::start(const char* element, const Attributes& attributes)
{
    m_xml.writeStartElement(QLatin1String(element));
    writeAttributes(attributes);
}

void GlabelsDocument::writeAttributes(const Attributes& attributes)
{
    for (const auto& [name, value] : attributes) {
        m_xml.writeAttribute(QLatin1String(name), xmlText(value));
    }
}

/// The object's transform applies about its corner, which the position already maps.
void GlabelsDocument::startObject(const char* element, const QPointF& at, const QTransform& toPage,
                                  const Attributes& attributes)
{
    const QPointF corner = toPage.map(at);
    start(element, {{"x", length(corner.x())}, {"y", length(corner.y())}});
    writeAttributes(attributes);
    writeAttributes({{"a0", number(toPage.m11())},
                     {"a1", number(toPage.m12())},
                     {"a2", number(toPage.m21())},
                     {"a3", number(toPage.m22())},
                     {"a4", u"0"_s},
                     {"a5", u"0"_s}});
}

void GlabelsDocument::startBox(const char* element, const QRectF& box, const QTransform& toPage,
                               const Attributes& attributes)
{
    const Attributes size{{"w", length(box.width())}, {"h", length(box.height())}};
    startObject(element, box.topLeft(), toPage, size + attributes);
}

void GlabelsDocument::addShape(Shape shape, const QRectF& box, const QTransform& toPage,
                               const PenValues& pen, const QColor& fill)
{
    startBox(shape == Shape::Box ? "Object-box" : "Object-ellipse", box, toPage,
             {{"line_width", widthOf(pen)},
              {"line_color", colorOf(pen)},
              {"fill_color", colorOf(fill)}});
    m_xml.writeEndElement();
}

void GlabelsDocument::addLine(const QPointF& from, const QPointF& to, const PenValues& pen)
{
    startObject("Object-line", from, {},
                {{"dx", length(to.x() - from.x())},
                 {"dy", length(to.y() - from.y())},
                 {"line_width", widthOf(pen)},
                 {"line_color", colorOf(pen)}});
    m_xml.writeEndElement();
}

void GlabelsDocument::addText(const QRectF& box, const QTransform& toPage, const GlabelsText& text)
{
    startBox("Object-text", box.adjusted(-TextMargin, 0.0, TextMargin, 0.0), toPage,
             {{"justify", justification(text.alignment)},
              {"valign", verticalAlignment(text.alignment)}});
    start("Span", {{"font_family", text.family},
                   {"font_size", number(text.size)},
                   {"font_weight", text.bold ? u"Bold"_s : u"Regular"_s},
                   {"font_italic", booleanOf(text.italic)},
                   {"color", colorOf(text.color)},
                   {"line_spacing", number(1.0 + text.lineGap / (text.size * PixelSize))}});
    // Line breaks between elements would become part of the text.
    m_xml.setAutoFormatting(false);
    if (!text.field.isEmpty()) {
        start("Field", {{"name", text.field}});
        m_xml.writeEndElement();
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
    Attributes attributes{{"backend", barcode.backend},
                          {"style", barcode.style},
                          {"text", u"False"_s},
                          {"checksum", booleanOf(barcode.checksum)},
                          {"color", colorOf(barcode.color)}};
    if (barcode.field.isEmpty()) {
        attributes.append({"data", barcode.content});
    } else {
        attributes.append({"field", barcode.field});
        // The length of the example that gLabels shows while the label is edited.
        attributes.append({"format", QString::number(barcode.content.size())});
    }
    startBox("Object-barcode", box, toPage, attributes);
    m_xml.writeEndElement();
}

void GlabelsDocument::addDrawing(const QRectF& box, const QTransform& toPage, const QByteArray& svg)
{
    startBox("Object-image", box, toPage, {{"src", drawingName(m_drawings.size())}});
    m_xml.writeEndElement();
    m_drawings.append(svg);
}

QByteArray GlabelsDocument::finish(const QString& remark, const QString& records)
{
    m_xml.writeEndElement(); // Objects
    if (!records.isEmpty()) {
        start("Merge", {{"type", u"Text/Comma/Line1Keys"_s}, {"src", records}});
        m_xml.writeEndElement();
    }
    start("Data", {});
    m_xml.setAutoFormatting(false);
    for (qsizetype index = 0; index < m_drawings.size(); ++index) {
        start("File", {{"name", drawingName(index)}, {"format", u"SVG"_s}});
        m_xml.writeCDATA(xmlText(QString::fromUtf8(m_drawings.at(index))));
        m_xml.writeEndElement();
    }
    m_xml.writeEndDocument();
    constexpr QByteArrayView declarationEnd("?>");
    return m_bytes.insert(m_bytes.indexOf(declarationEnd) + declarationEnd.size(),
                          "\n<!-- " + remark.toUtf8() + " -->");
}

} // namespace exporting

// Lines, rectangles, ellipses, polygons.

#include "opendocument/code_table.h"
#include "opendocument/item_builder.h"
#include "opendocument/open_office_reader.h"

#include "host/items/fillable_item.h"
#include "host/items/line_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/tal_canvas_model.h"

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

constexpr NamedCode<KestTypes::ShapeType> Polygons[] = {
    {"right-triangle"_L1, KestTypes::RightTriangle},
    {"isosceles-triangle"_L1, KestTypes::Triangle},
    {"pentagon"_L1, KestTypes::Pentagon},
    {"diamond"_L1, KestTypes::Diamond},
    {"hexagon"_L1, KestTypes::Hexagon},
    {"octagon"_L1, KestTypes::Octagon},
};

struct LineEnds
{
    QPointF start;
    QPointF end;
};

LineEnds readLineEnds(const xmllimits::Element& element, double unitFactor)
{
    LineEnds ends;
    readLength(element, u"svg:x1"_s, unitFactor, ends.start.rx());
    readLength(element, u"svg:y1"_s, unitFactor, ends.start.ry());
    readLength(element, u"svg:x2"_s, unitFactor, ends.end.rx());
    readLength(element, u"svg:y2"_s, unitFactor, ends.end.ry());
    return ends;
}

void applyMarkers(ILineItem& line, const OOGraphicStyle& style)
{
    if (style.markerStart != MarkerNotGiven) {
        line.setLineStartMarker(style.markerStart);
    }
    if (style.markerEnd != MarkerNotGiven) {
        line.setLineEndMarker(style.markerEnd);
    }
}

bool hasParagraph(const xmllimits::Element& element)
{
    return !element.firstChildElement(u"text:p"_s).isNull();
}

} // namespace

OpenOfficeReader::OOGraphicStyle
OpenOfficeReader::graphicStyleOf(const xmllimits::Element& element) const
{
    const QString name = element.attribute(u"draw:style-name"_s);
    // A style without a name is stored under the empty name; an element without a style name must
    // not find it.
    return name.isEmpty() ? m_defaultGraphicStyle
                          : m_graphicStyles.value(name, m_defaultGraphicStyle);
}

void OpenOfficeReader::readLine(const xmllimits::Element& element)
{
    NewItem<LineItem> line = makeItem<LineItem>(m_classFactory, KestTypes::Line);
    if (!line) {
        return;
    }
    Geometry geometry;
    readStackingOrder(element, geometry);
    if (geometry.hasZ()) {
        line->setZValue(geometry.z);
    }
    if (!handOver(*m_canvasModel, std::move(line.owned))) {
        return;
    }

    const LineEnds ends = readLineEnds(element, m_unitFactor);
    line->setLineStartPoint(ends.start);
    line->setLineEndPoint(ends.end);
    OOGraphicStyle style = graphicStyleOf(element);
    applyPen(*line.item, *line.item, style);
    applyMarkers(*line.item, style);
}

NewShape OpenOfficeReader::makeRectangle(const xmllimits::Element& element, bool rounded)
{
    const QString radiusName = u"draw:corner-radius"_s;
    const bool isRounded = rounded || element.hasAttribute(radiusName);
    NewShape shape =
        makeShape(m_classFactory, isRounded ? KestTypes::RoundedRectangle : KestTypes::Rectangle);
    double radius = 0;
    if (shape.corners != nullptr && readLength(element, radiusName, m_unitFactor, radius)) {
        shape.corners->setCornerRadius(radius);
    }
    return shape;
}

void OpenOfficeReader::readRectangle(const xmllimits::Element& element, bool rounded)
{
    placeShape(element, makeRectangle(element, rounded));
}

void OpenOfficeReader::readEllipse(const xmllimits::Element& element, bool pie)
{
    placeShape(element, makeShape(m_classFactory, pie ? KestTypes::Pie : KestTypes::Ellipse));
}

void OpenOfficeReader::readPolygon(const xmllimits::Element& element, KestTypes::ShapeType type)
{
    placeShape(element, makeShape(m_classFactory, type));
}

void OpenOfficeReader::readCustomShape(const xmllimits::Element& element)
{
    const QString type =
        element.firstChildElement(u"draw:enhanced-geometry"_s).attribute(u"draw:type"_s);
    if (const auto polygon = codeOf(Polygons, type)) {
        readPolygon(element, *polygon);
    } else if (type == "ellipse"_L1 || type == "circle"_L1) {
        readEllipse(element, false);
    } else if (type == "mso-spt100"_L1) {
        readEllipse(element, true);
    } else {
        readRectangle(element, type == "round-rectangle"_L1);
    }
}

void OpenOfficeReader::placeShape(const xmllimits::Element& element, NewShape shape)
{
    if (!shape) {
        return;
    }
    Geometry geometry;
    readGeometry(element, m_unitFactor, geometry);
    OOGraphicStyle style = graphicStyleOf(element);
    applyShapeStyle(*shape.fillable, style, geometry);
    setPosition(*shape.graphics, geometry.position);
    if (geometry.hasZ()) {
        shape.graphics->setZValue(geometry.z);
    }
    if (!handOver(*m_canvasModel, std::move(shape.owned))) {
        return;
    }
    if (!geometry.hasZ()) {
        geometry.z = shape.graphics->zValue();
    }
    if (hasParagraph(element)) {
        buildRichText(element, geometry);
    }
}

#include "repair/object_style.h"

#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Shapes in a text have an outline unless they state none.
void writeShapeStyle(Document& document, Node& shape)
{
    StyleProperties style =
        document.table().resolved(u"graphic"_s, shape.attribute(u"draw:style-name"), true);
    if (!shape.is(u"draw:g") && !style.graphic.contains(u"draw:stroke"_s)) {
        style.graphic.insert(u"draw:stroke"_s, u"solid"_s);
        shape.setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    }
}

// Labels that an assistant made state it in their style.
void writeAnchorType(Document& document, Node& shape)
{
    const QString type = graphicOf(document, shape).value(u"text:anchor-type"_s);
    if (!shape.hasAttribute(u"text:anchor-type") && !type.isEmpty()) {
        shape.setAttribute(u"text:anchor-type"_s, type);
    }
}

// A frame grows with its text: its lines are counted.
void writeHeight(Document& document, Node& frame)
{
    const Node* const box = frame.child(u"draw:text-box");
    if (box == nullptr || frame.hasAttribute(u"svg:height")) {
        return;
    }
    const Properties graphic = graphicOf(document, frame);
    const double padding = 2.0 * toPoints(graphic.value(u"fo:padding"_s)).value_or(0.0);
    const double lines = linesHeight(document, *box) + padding;
    frame.setAttribute(u"svg:height"_s,
                       toInches(std::max(lines, pointsOf(*box, u"fo:min-height"))));
}

// Frames have neither pen nor fill by default, but borders and a background.
void writeFrameStyle(Document& document, Node& frame)
{
    StyleProperties style =
        document.table().resolved(u"graphic"_s, frame.attribute(u"draw:style-name"), false);
    Properties& graphic = style.graphic;
    const QString fill = graphic.value(u"draw:fill"_s);
    if (fill.isEmpty()) {
        const QString color = graphic.value(u"fo:background-color"_s);
        graphic.insert(u"draw:fill"_s, color.startsWith(u'#') ? u"solid"_s : u"none"_s);
        graphic.insert(u"draw:fill-color"_s, color);
    }
    writeOnePen(edgesOf(graphic), graphic);
    graphic.insert(u"fo:wrap-option"_s, u"wrap"_s);
    if (!graphic.contains(u"draw:stroke"_s)) {
        graphic.insert(u"draw:stroke"_s, u"none"_s);
    }
    for (const QString& side : {u"left"_s, u"right"_s, u"top"_s, u"bottom"_s}) {
        const QString name = u"fo:padding-"_s + side;
        if (!graphic.contains(u"fo:padding"_s) && !graphic.contains(name)) {
            graphic.insert(name, u"0in"_s);
        }
    }
    style.text.clear();
    style.paragraph.clear();
    frame.setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    writeHeight(document, frame);
}

} // namespace

void writeObjectStyle(Document& document, Node& object)
{
    writeAnchorType(document, object);
    if (object.is(u"draw:frame")) {
        writeFrameStyle(document, object);
    } else {
        writeShapeStyle(document, object);
    }
}

} // namespace repair

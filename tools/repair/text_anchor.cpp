#include "repair/text_anchor.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/shape_place.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Points beside an object without which lines do not run there.
constexpr double NarrowestLine = 36.0;

double marginOf(const Properties& graphic, const QString& side)
{
    const QString own = graphic.value(u"fo:margin-"_s + side);
    return toPoints(own.isEmpty() ? graphic.value(u"fo:margin"_s) : own).value_or(0.0);
}

// Of a page-anchored object: what its place is counted from, along one axis.
struct Range
{
    double start = 0.0;
    double length = 0.0;
};

double placed(const QString& position, double own, double length, const Range& range)
{
    const double room = range.length - length;
    if (position == "center"_L1 || position == "middle"_L1) {
        return range.start + room / 2.0;
    }
    if (position == "right"_L1 || position == "bottom"_L1) {
        return range.start + room;
    }
    const bool isGiven = position.isEmpty() || position.startsWith("from-"_L1);
    return range.start + (isGiven ? own : 0.0);
}

// The text of the page, or the whole page.
Range rangeOf(const QString& relation, const Range& text, double page)
{
    return relation.endsWith("-content"_L1) ? text : Range{0.0, page};
}

QPointF placeOnPage(const Properties& graphic, const QRectF& own, const PageArea& page,
                    bool isInParagraph)
{
    const QString relation = graphic.value(u"style:horizontal-rel"_s);
    const bool isInColumn = isInParagraph && relation != "page"_L1;
    const Range across = rangeOf(isInColumn ? u"paragraph-content"_s : relation,
                                 {page.box.left(), page.box.width()}, page.size.width());
    const Range down = rangeOf(graphic.value(u"style:vertical-rel"_s),
                               {page.box.top(), page.box.height()}, page.size.height());
    return {placed(graphic.value(u"style:horizontal-pos"_s), own.left(), own.width(), across),
            placed(graphic.value(u"style:vertical-pos"_s), own.top(), own.height(), down)};
}

bool isOnPage(const Node& shape, const Properties& graphic)
{
    const QString vertical = graphic.value(u"style:vertical-rel"_s);
    return shape.attribute(u"text:anchor-type") == "page"_L1 ||
           (vertical == "page"_L1 && shape.attribute(u"text:anchor-type") != "as-char"_L1);
}

// The left side of an object across the page.
double leftOf(const Properties& graphic, const QRectF& own, const TextPlace& place)
{
    const bool isFromPage = graphic.value(u"style:horizontal-rel"_s) == "page"_L1;
    const Range range = isFromPage ? Range{0.0, place.page.size.width()}
                                   : Range{place.column.left(), place.column.width()};
    return placed(graphic.value(u"style:horizontal-pos"_s), own.left(), own.width(), range);
}

Flow flowBeside(const QString& wrap, const QRectF& box, const QRectF& column)
{
    const double left = box.left() - column.left();
    const double right = column.right() - box.right();
    const bool isLeft = wrap == "left"_L1 || (wrap != "right"_L1 && left > right);
    if ((isLeft ? left : right) < NarrowestLine) {
        return Flow::Rows;
    }
    // Where the lines run, not the object.
    return isLeft ? Flow::BesideRight : Flow::BesideLeft;
}

} // namespace

Anchor anchorOf(Document& document, const Node& shape, const TextPlace& place)
{
    const Properties graphic = graphicOf(document, shape);
    const QRectF& column = place.column;
    Anchor anchor;
    anchor.box = boundsOf(shape);
    if (isOnPage(shape, graphic)) {
        anchor.flow = Flow::Page;
        anchor.box.moveTopLeft(placeOnPage(graphic, anchor.box, place.page,
                                           shape.attribute(u"text:anchor-type") != "page"_L1));
        return anchor;
    }
    if (shape.attribute(u"text:anchor-type") == "as-char"_L1) {
        anchor.flow = Flow::InLine;
        anchor.room = anchor.box.size();
        return anchor;
    }
    anchor.box.moveLeft(leftOf(graphic, anchor.box, place));
    if (graphic.value(u"style:vertical-pos"_s) == "top"_L1) {
        anchor.box.moveTop(0.0);
    }
    const QString wrap = graphic.value(u"style:wrap"_s);
    if (wrap == "run-through"_L1) {
        anchor.flow = Flow::Over;
    } else if (wrap != "none"_L1) {
        anchor.flow = flowBeside(wrap, anchor.box, column);
    }
    const double width = anchor.flow == Flow::BesideLeft
                             ? anchor.box.right() - column.left() + marginOf(graphic, u"right"_s)
                             : column.right() - anchor.box.left() + marginOf(graphic, u"left"_s);
    if (anchor.flow == Flow::BesideLeft || anchor.flow == Flow::BesideRight) {
        anchor.room = {width, std::max(0.0, anchor.box.bottom()) + marginOf(graphic, u"bottom"_s)};
    }
    return anchor;
}

} // namespace repair

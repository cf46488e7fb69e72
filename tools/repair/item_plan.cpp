#include "repair/item_plan.h"

#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/drawing.h"
#include "repair/flow_step.h"
#include "repair/html.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/page_end.h"
#include "repair/page_notes.h"
#include "repair/paragraph_edges.h"
#include "repair/shape_parts.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Points: 0.25 cm beside a text and 0.125 cm above it.
constexpr double DefaultSidePadding = 7.087;
constexpr double DefaultTopPadding = 3.543;
QColor shapeGround(const Properties& graphic)
{
    const bool isFilled = graphic.value(u"draw:fill"_s) == "solid"_L1;
    return QColor(graphic.value(isFilled ? u"draw:fill-color"_s : GroundProperty));
}

double padding(const Properties& graphic, const QString& side, double otherwise)
{
    const QString own = graphic.value(u"fo:padding-"_s + side);
    const QString all = graphic.value(u"fo:padding"_s);
    return toPoints(own.isEmpty() ? all : own).value_or(otherwise);
}

RotatedBox boxOf(const Node& shape)
{
    const double rotation = toRotatedBox(placementOf(shape)).value_or(RotatedBox()).rotation;
    // The position is already the one before the rotation.
    QPointF corner(pointsOf(shape, u"svg:x"), pointsOf(shape, u"svg:y"));
    if (shape.hasAttribute(u"draw:transform")) {
        const QTransform map = parseTransform(shape.attribute(u"draw:transform"));
        corner = {map.dx(), map.dy()};
    }
    const QSizeF size(pointsOf(shape, u"svg:width"), pointsOf(shape, u"svg:height"));
    return {QRectF(corner, size), rotation};
}

// Where the text may be, without padding.
QRectF textArea(const Node& shape, const QRectF& box)
{
    const QStringList parts = shape.attribute(TextAreaAttribute).split(u' ');
    if (parts.size() != 4) {
        return box;
    }
    return QRectF(parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(),
                  parts[3].toDouble())
        .translated(box.topLeft());
}

Qt::Alignment alignmentOf(const Properties& graphic)
{
    const QString vertical = graphic.value(u"draw:textarea-vertical-align"_s);
    const QString horizontal = graphic.value(u"draw:textarea-horizontal-align"_s);
    Qt::Alignment alignment = Qt::AlignTop;
    if (vertical == "middle"_L1 || vertical == "justify"_L1) {
        alignment = Qt::AlignVCenter;
    } else if (vertical == "bottom"_L1) {
        alignment = Qt::AlignBottom;
    }
    if (horizontal == "left"_L1) {
        return alignment | Qt::AlignLeft;
    }
    return alignment | (horizontal == "right"_L1 ? Qt::AlignRight : Qt::AlignHCenter);
}

// The space above the first paragraph, or below the last.
double outerSpace(Document& document, const Node& container, bool isAbove)
{
    const QString name = isAbove ? u"fo:margin-top"_s : u"fo:margin-bottom"_s;
    double space = 0.0;
    for (const auto& child : container.children) {
        const QString style = child->attribute(u"text:style-name");
        if (child->is(u"text:p")) {
            const Properties paragraph =
                document.table().resolved(u"paragraph"_s, style, false).paragraph;
            space = toPoints(paragraph.value(name)).value_or(0.0);
            if (isAbove) {
                break;
            }
        }
    }
    return space;
}

// Lines of such a text run down its box.
bool isVertical(Document& document, const Node& shape)
{
    if (shape.hasAttribute(RowAttribute)) {
        return false;
    }
    const Properties paragraph =
        document.table()
            .resolved(u"graphic"_s, shape.attribute(u"draw:style-name"), true)
            .paragraph;
    return paragraph.value(u"style:writing-mode"_s).startsWith("tb"_L1);
}

TextPlan::Fit fitOf(const Node& shape, const Properties& graphic)
{
    const QString fit = graphic.value(u"draw:fit-to-size"_s);
    const bool isBox = shape.is(u"draw:frame") || shape.is(u"draw:custom-shape");
    if (!isBox || shape.hasAttribute(RowAttribute)) {
        return TextPlan::Fit::None;
    }
    if (fit == "shrink-to-fit"_L1 || graphic.value(u"style:shrink-to-fit"_s) == "true"_L1) {
        return TextPlan::Fit::Shrink;
    }
    return fit == "true"_L1 || fit == "all"_L1 || fit == "proportional"_L1 ? TextPlan::Fit::Fill
                                                                           : TextPlan::Fit::None;
}

// The area is where the text is before it turns about the center of its shape.
void turnText(double degrees, TextPlan& plan)
{
    const double straight = std::round(degrees / 90.0) * 90.0;
    const QTransform back = QTransform::fromTranslate(-plan.center.x(), -plan.center.y()) *
                            QTransform().rotate(-straight) *
                            QTransform::fromTranslate(plan.center.x(), plan.center.y());
    plan.area = back.mapRect(plan.area);
    plan.rotation += degrees;
}

// The first line is at the right side, and begins at the top.
void turnVertical(const Properties& graphic, TextPlan& plan)
{
    const QString across = graphic.value(u"draw:textarea-horizontal-align"_s);
    plan.fillsWidth = true;
    plan.alignment = Qt::AlignHCenter | (across == "right"_L1  ? Qt::AlignTop
                                         : across == "left"_L1 ? Qt::AlignBottom
                                                               : Qt::AlignVCenter);
    turnText(90.0, plan);
}

TextPlan planText(Document& document, const Node& shape, const Node& container,
                  const Properties& graphic)
{
    const RotatedBox placed = boxOf(shape);
    const double left = padding(graphic, u"left"_s, DefaultSidePadding);
    const double right = padding(graphic, u"right"_s, DefaultSidePadding);
    const double top = padding(graphic, u"top"_s, DefaultTopPadding);
    const double bottom = padding(graphic, u"bottom"_s, DefaultTopPadding);
    TextPlan plan;
    plan.html = toHtml(document, container, shapeGround(graphic));
    plan.area = textArea(shape, placed.box).adjusted(left, top, -right, -bottom);
    // Qt drops the space above the first paragraph; that below the last is not in the HTML.
    plan.area.adjust(0.0, outerSpace(document, container, true), 0.0,
                     -outerSpace(document, container, false));
    plan.rotation = placed.rotation;
    plan.center = placed.box.center();
    plan.alignment = alignmentOf(graphic);
    const bool isFrame = shape.is(u"draw:frame");
    const bool grows = isFrame && graphic.value(u"draw:auto-grow-width"_s) == "true"_L1;
    // Text boxes break their text unless they grow with it, custom shapes if they say so, and other
    // shapes do not.
    const bool isBroken = graphic.value(u"fo:wrap-option"_s) != "no-wrap"_L1;
    plan.wraps = isFrame ? !grows : isBroken && shape.is(u"draw:custom-shape");
    const QString horizontal = graphic.value(u"draw:textarea-horizontal-align"_s);
    plan.fillsWidth = horizontal.isEmpty() || horizontal == "justify"_L1;
    if (const QString side = shape.attribute(LineTextAttribute); !side.isEmpty()) {
        plan.area = placed.box;
        plan.fillsWidth = false;
        plan.alignment = (side == "above"_L1 ? Qt::AlignBottom : Qt::AlignTop) | Qt::AlignHCenter;
    }
    plan.fit = fitOf(shape, graphic);
    if (isVertical(document, shape)) {
        turnVertical(graphic, plan);
    } else if (const double turn = textTurn(shape); turn != 0.0) {
        turnText(turn, plan);
    }
    return plan;
}

void planRow(Document& document, const Node& shape, const Node& container,
             const Properties& graphic, ItemPlan& plan)
{
    plan.row = shape.attribute(RowAttribute).toInt();
    plan.mark = shape.attribute(AnchorAttribute).toInt();
    plan.isInLine = shape.attribute(InLineAttribute) == "true"_L1;
    plan.isNote = shape.hasAttribute(NoteAttribute);
    plan.fillsRow = shape.hasAttribute(FillsRowAttribute);
    plan.isAtBottom = shape.attribute(EdgeAttribute) == "bottom"_L1;
    plan.rows = repeats(shape, FillsRowAttribute, MaximumRows);
    plan.flows = shape.hasAttribute(FlowsAttribute);
    plan.isInsideFrame = shape.hasAttribute(InsideFrameAttribute);
    plan.least =
        plan.row > 0 && !plan.flows && !plan.isInsideFrame ? boundsOf(shape).bottom() : 0.0;
    if (plan.fillsRow && plan.text) {
        // The height of the row is not known before its texts are laid out.
        const bool isAtBottom = plan.text->alignment.testFlag(Qt::AlignBottom);
        const bool isCentered = plan.text->alignment.testFlag(Qt::AlignVCenter);
        plan.shareAbove = isAtBottom ? 1.0 : isCentered ? 0.5 : 0.0;
        plan.text->alignment &= ~(Qt::AlignBottom | Qt::AlignVCenter);
        plan.text->alignment |= Qt::AlignTop;
    }
    if (plan.text) {
        plan.space = padding(graphic, u"bottom"_s, DefaultTopPadding) +
                     outerSpace(document, container, false);
    } else if (shape.child(u"draw:text-box") != nullptr) {
        plan.space = linesHeight(document, container) + outerSpace(document, container, true) +
                     outerSpace(document, container, false) +
                     padding(graphic, u"top"_s, DefaultTopPadding) +
                     padding(graphic, u"bottom"_s, DefaultTopPadding);
    }
}

} // namespace

PagePlan planItems(Document& document)
{
    PagePlan plans;
    const Node* const page = document.page();
    if (page == nullptr) {
        return plans;
    }
    plans.top = pointsOf(*page, TopAttribute);
    plans.bottom = pointsOf(*page, BottomAttribute);
    plans.lowest = pointsOf(*page, LowestAttribute);
    const MarkedParagraphs paragraphs(document, *page);
    for (const auto& shape : page->children) {
        const Properties graphic = graphicOf(document, *shape);
        ItemPlan plan;
        plan.order = shape->attribute(u"draw:z-index").toInt();
        const Node* const box = shape->child(u"draw:text-box");
        const Node& container = box != nullptr ? *box : *shape;
        if (hasVisibleText(container)) {
            plan.text = planText(document, *shape, container, graphic);
        }
        if (graphic.value(u"draw:stroke"_s) != "none"_L1) {
            plan.penWidth = toPoints(graphic.value(u"svg:stroke-width"_s)).value_or(0.0);
        }
        plan.penOpacity = shareOf(graphic.value(u"svg:stroke-opacity"_s));
        plan.fillOpacity = shareOf(graphic.value(u"draw:opacity"_s));
        planRow(document, *shape, container, graphic, plan);
        plan.edge = paragraphs.edgeOf(*shape);
        plans.items.append(std::move(plan));
    }
    return plans;
}

} // namespace repair

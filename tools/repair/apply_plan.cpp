#include "repair/apply_plan.h"

#include "repair/lengths.h"
#include "repair/object_places.h"

#include "host/items/rich_text_item.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/canvas_item.h"

#include <QMap>
#include <QRegularExpression>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// The item's z value for one step of an object's order.
constexpr double ZPerOrder = 1000.0;
// A text is less than this above its shape.
constexpr double TextOffset = 0.0005;
// Points: lines that fit must not break for rounding.
constexpr double WidthTolerance = 0.3;
// Points by which a text may exceed the area that it fits.
constexpr double FitTolerance = 1.0;
// Shares of the font sizes that the document states, and how often they are tried.
constexpr double SmallestFontShare = 0.1;
constexpr double LargestFontShare = 20.0;
constexpr int FitSteps = 9;

double widthOf(const QSizeF& natural, const TextPlan& plan)
{
    const double own = natural.width() + WidthTolerance;
    const double room = std::max(plan.area.width(), 1.0) + WidthTolerance;
    if (plan.wraps) {
        return plan.fillsWidth ? room : std::min(own, room);
    }
    return plan.fillsWidth ? std::max(own, room) : own;
}

QPointF cornerOf(const QSizeF& size, const TextPlan& plan)
{
    const QRectF& area = plan.area;
    QPointF corner(area.center().x() - size.width() / 2.0, area.top());
    if (plan.alignment.testFlag(Qt::AlignLeft) || plan.fillsWidth) {
        corner.setX(area.left());
    } else if (plan.alignment.testFlag(Qt::AlignRight)) {
        corner.setX(area.right() - size.width());
    }
    if (plan.alignment.testFlag(Qt::AlignVCenter)) {
        corner.setY(area.center().y() - size.height() / 2.0);
    } else if (plan.alignment.testFlag(Qt::AlignBottom)) {
        corner.setY(area.bottom() - size.height());
    }
    return corner;
}

QString scaledFonts(const QString& html, double factor)
{
    static const QRegularExpression size(u"font-size:([0-9.]+)pt"_s);
    QString result;
    qsizetype end = 0;
    for (auto found = size.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        result += html.mid(end, match.capturedStart() - end);
        result += u"font-size:%1pt"_s.arg(match.capturedView(1).toDouble() * factor, 0, 'f', 3);
        end = match.capturedEnd();
    }
    return result + html.mid(end);
}

bool fits(::RichTextItem& text, const TextPlan& plan, double factor)
{
    text.setHtml(scaledFonts(plan.html, factor));
    text.adjustBoxSizeToContent(0.0);
    const double width = widthOf(text.getItemSize(), plan);
    if (width > plan.area.width() + FitTolerance) {
        return false;
    }
    text.adjustBoxSizeToContent(width);
    return text.getItemHeight() <= plan.area.height() + FitTolerance;
}

// The text is left with the largest fonts that fit.
void fitText(::RichTextItem& text, const TextPlan& plan)
{
    const bool canGrow = plan.fit == TextPlan::Fit::Fill;
    if (plan.fit == TextPlan::Fit::None || (!canGrow && fits(text, plan, 1.0))) {
        return;
    }
    double least = SmallestFontShare;
    double most = canGrow ? LargestFontShare : 1.0;
    for (int i = 0; i < FitSteps; ++i) {
        const double middle = std::sqrt(least * most);
        (fits(text, plan, middle) ? least : most) = middle;
    }
    (void)fits(text, plan, least);
}

void applyText(workbench::CanvasItem& item, const TextPlan& plan)
{
    auto* const text = dynamic_cast<::RichTextItem*>(item.contractItem());
    if (text == nullptr) {
        return;
    }
    text->setHtml(plan.html);
    fitText(*text, plan);
    const bool isAsWideAsArea = plan.fillsWidth && plan.wraps;
    if (!isAsWideAsArea) {
        text->adjustBoxSizeToContent(0.0);
    }
    const double width = widthOf(text->getItemSize(), plan);
    text->adjustBoxSizeToContent(width);
    const QSizeF size(width, text->getItemHeight());
    text->setItemSize(size);
    // The shape turns about its center, and its text with it; the item about its own.
    QRectF box(cornerOf(size, plan), size);
    const QTransform turn = QTransform::fromTranslate(plan.center.x(), plan.center.y())
                                .rotate(plan.rotation)
                                .translate(-plan.center.x(), -plan.center.y());
    box.moveCenter(turn.map(box.center()));
    item.graphicsItem()->setPos(box.topLeft());
    if (plan.rotation != 0.0) {
        text->setItemRotation(plan.rotation);
    }
}

void applyOpacity(QColor& color, double opacity)
{
    if (opacity < 1.0) {
        color.setAlphaF(static_cast<float>(color.alphaF() * std::clamp(opacity, 0.0, 1.0)));
    }
}

void applyShape(workbench::CanvasItem& item, const ItemPlan& plan)
{
    const KestTypes::ShapeType type = item.shapeType();
    // Drawings and pictures have neither; their values take long to set.
    if (type == KestTypes::Symbol || type == KestTypes::Picture) {
        return;
    }
    workbench::ItemValues values = item.values();
    if (values.pen && plan.penWidth) {
        values.pen->width = std::max(*plan.penWidth, Hairline);
        applyOpacity(values.pen->color, plan.penOpacity);
    }
    if (values.fill) {
        applyOpacity(values.fill->color, plan.fillOpacity);
    }
    item.setValues(values);
}

// By their order.
QMap<int, ObjectItems> objectsOf(const workbench::Canvas& canvas, const PagePlan& plan)
{
    QMap<int, ObjectItems> objects;
    for (const ItemPlan& item : plan.items) {
        objects[item.order].plan = &item;
    }
    for (workbench::CanvasItem* const item : canvas.items()) {
        const double z = item->graphicsItem()->zValue();
        const int order = static_cast<int>(std::floor((z + TextOffset) / ZPerOrder));
        const auto found = objects.find(order);
        if (found != objects.end()) {
            const bool isText = z - order * ZPerOrder > TextOffset;
            (isText ? found->text : found->shape) = item;
        }
    }
    return objects;
}

} // namespace

std::optional<PageEnd> applyPlan(workbench::Canvas& canvas, const PagePlan& plan)
{
    const QMap<int, ObjectItems> objects = objectsOf(canvas, plan);
    for (const ObjectItems& items : objects) {
        if (items.text != nullptr && items.plan->text) {
            applyText(*items.text, *items.plan->text);
        }
        if (items.shape != nullptr) {
            applyShape(*items.shape, *items.plan);
        }
    }
    return placeObjects(objects, plan);
}

} // namespace repair

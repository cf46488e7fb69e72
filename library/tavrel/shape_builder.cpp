#include "tavrel/shape_builder.h"

#include "host/items/fillable_item.h"
#include "host/items/line_item.h"

namespace tavrel {
namespace {

constexpr qint32 FilledWithBackground = 1;
constexpr qint32 FilledWithPenColor = 2;

void applyPen(PenItem& item, const HostCanvas& host, const ShapeRecord& record)
{
    item.setPenWidth(record.penWidth);
    item.setPenStyle(record.penStyle);
    item.setPenColor(host.model->canvasDefaultPenColor());
}

void applyFill(FillableItem& item, const HostCanvas& host, qint32 fillMode)
{
    item.setFilled(fillMode == FilledWithBackground || fillMode == FilledWithPenColor);
    item.setFillColor(fillMode == FilledWithPenColor ? host.model->canvasDefaultPenColor()
                                                     : host.model->canvasBackgroundColor());
}

// Every label that this reader knows may hold a line, and a host without lines is no host:
// it is stopped at once instead of losing its users' lines one by one.
std::unique_ptr<LineItem> createLine(const HostCanvas& host)
{
    if (host.factory == nullptr) {
        return nullptr;
    }
    std::unique_ptr<Item> item(host.factory->create(KestTypes::Line));
    if (!item) {
        qFatal("The host's item factory makes no lines.");
    }
    return itemAs<LineItem>(std::move(item));
}

BuildResult buildLine(const HostCanvas& host, const ShapeRecord& record, const ItemHeader& header)
{
    std::unique_ptr<LineItem> line = createLine(host);
    if (!line) {
        return BuildResult::NoItem;
    }
    line->setLineLength(header.width);
    line->setItemRotation(header.rotation);
    setLayerAndLock(*line, header);
    applyPen(*line, host, record);
    line->setPos(header.position());
    host.model->importItem(line.release());
    return BuildResult::Built;
}

BuildResult buildFilledShape(const HostCanvas& host, const ShapeRecord& record,
                             KestTypes::ShapeType type)
{
    std::unique_ptr<FillableItem> item = createItem<FillableItem>(host, type);
    auto* const graphicsItem = dynamic_cast<QGraphicsItem*>(item.get());
    if (graphicsItem == nullptr) {
        return BuildResult::NoItem;
    }
    item->setItemSize(record.header.size());
    item->setItemRotation(record.header.rotation);
    placeItem(*graphicsItem, record.header);
    applyPen(*item, host, record);
    applyFill(*item, host, record.fillMode);
    host.model->importItem(item.release());
    return BuildResult::Built;
}

} // namespace

BuildResult buildShape(const HostCanvas& host, const ShapeRecord& record)
{
    const ShapeKind kind = shapeKindOf(record.name);
    switch (kind.rule) {
    case ShapeRule::HorizontalLine:
        return buildLine(host, record, record.header);
    case ShapeRule::VerticalLine:
        return buildLine(host, record, uprightLineHeader(record.header));
    case ShapeRule::Filled:
        break;
    }
    return buildFilledShape(host, record, kind.type);
}

} // namespace tavrel

#include "tavrel/shapes.h"

#include "host/items/fillable_item.h"
#include "host/items/line_item.h"
#include "tavrel/label_stream.h"
#include "tavrel/printer_dots.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tavrel {
namespace {

struct NamedShape
{
    QLatin1String name;
    ShapeKind kind;
};

constexpr std::array NamedShapes{
    NamedShape{"HorizontalLine"_L1, {KestTypes::Line, ShapeRule::HorizontalLine}},
    NamedShape{"VerticalLine"_L1, {KestTypes::Line, ShapeRule::VerticalLine}},
    NamedShape{"RoundedRectangle"_L1, {KestTypes::RoundedRectangle, ShapeRule::Filled}},
    NamedShape{"Triangle"_L1, {KestTypes::Triangle, ShapeRule::Filled}},
    NamedShape{"Octagon"_L1, {KestTypes::Octagon, ShapeRule::Filled}},
    NamedShape{"Diamond"_L1, {KestTypes::Diamond, ShapeRule::Filled}},
    NamedShape{"Hexagon"_L1, {KestTypes::Hexagon, ShapeRule::Filled}},
    NamedShape{"Oval"_L1, {KestTypes::Ellipse, ShapeRule::Filled}},
};

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

// The contract requires lines, and most labels contain one. Terminate instead of silently losing
// them.
std::unique_ptr<LineItem> createLine(const HostCanvas& host)
{
    if (host.factory == nullptr) {
        return nullptr;
    }
    std::unique_ptr<Item> item(host.factory->create(KestTypes::Line));
    if (!item) {
        qFatal("The host's item factory makes no lines.");
    }
    return building::itemAs<LineItem>(std::move(item));
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
    auto item = building::createItem<FillableItem>(host.factory, type);
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

ShapeRecord readShapeRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    ShapeRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    const auto [dots, style, fillMode] = readFields<qint32, qint32, qint32>(stream);
    record.penWidth = penWidth(dots, file.resolution.x);
    record.penStyle = style;
    record.fillMode = fillMode;
    record.name = readText(stream);
    return record;
}

ShapeKind shapeKindOf(const QString& name)
{
    const auto* found =
        std::find_if(NamedShapes.begin(), NamedShapes.end(),
                     [&name](const NamedShape& shape) { return name == shape.name; });
    return found != NamedShapes.end() ? found->kind : ShapeKind{};
}

ItemHeader uprightLineHeader(ItemHeader header)
{
    header.rotation += 90.0;
    header.width = header.height;
    header.x -= header.height * 0.5;
    header.y += header.height * 0.5;
    return header;
}

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

#include "tavrel/shape_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/field_run.h"
#include "tavrel/whole_numbers.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace tavrel {
namespace {

struct NamedShape
{
    QLatin1String name;
    ShapeKind kind;
};

constexpr std::array NamedShapes{
    NamedShape{QLatin1String("HorizontalLine"), {KestTypes::Line, ShapeRule::HorizontalLine}},
    NamedShape{QLatin1String("VerticalLine"), {KestTypes::Line, ShapeRule::VerticalLine}},
    NamedShape{QLatin1String("RoundedRectangle"), {KestTypes::RoundedRectangle, ShapeRule::Filled}},
    NamedShape{QLatin1String("Triangle"), {KestTypes::Triangle, ShapeRule::Filled}},
    NamedShape{QLatin1String("Octagon"), {KestTypes::Octagon, ShapeRule::Filled}},
    NamedShape{QLatin1String("Diamond"), {KestTypes::Diamond, ShapeRule::Filled}},
    NamedShape{QLatin1String("Hexagon"), {KestTypes::Hexagon, ShapeRule::Filled}},
    NamedShape{QLatin1String("Oval"), {KestTypes::Ellipse, ShapeRule::Filled}},
};

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

} // namespace tavrel

#pragma once

#include "host/kest_types.h"

#include <algorithm>
#include <iterator>

namespace orvanta {

/// The host's shape for one of the source's.
struct ShapeChoice
{
    KestTypes::ShapeType type;
    double turn; ///< degrees to add to the object's rotation
};

/// A row of a table from a number of the source to a shape.
struct ShapeRow
{
    int number;
    ShapeChoice choice;
};

/// Shapes by their number of sides. The turns give the host's polygons the orientation of the
/// source's; old labels depend on them.
inline constexpr ShapeRow ShapesBySides[] = {
    {3, {KestTypes::Triangle, 0.0}}, {4, {KestTypes::Diamond, 0.0}},
    {5, {KestTypes::Pentagon, 0.0}}, {6, {KestTypes::Hexagon, 90.0}},
    {8, {KestTypes::Octagon, 22.5}},
};

/// Shapes by their index, if the number of sides is 0.
inline constexpr ShapeRow ShapesByIndex[] = {
    {0, {KestTypes::Rectangle, 0.0}},
    {1, {KestTypes::Rectangle, 0.0}},
    {4, {KestTypes::Triangle, 0.0}},
    {5, {KestTypes::Triangle, 0.0}},
};

/// For numbers in neither table.
inline constexpr ShapeChoice OtherShape = {KestTypes::Ellipse, 0.0};

/// Chooses a shape by the number of sides, or by the index if that number is 0.
[[nodiscard]] constexpr ShapeChoice chooseShape(int sides, int shapeIndex)
{
    const auto lookUp = [](const auto& rows, int number) {
        const auto* row =
            std::find_if(std::begin(rows), std::end(rows),
                         [number](const ShapeRow& known) { return known.number == number; });
        return row == std::end(rows) ? OtherShape : row->choice;
    };
    return sides == 0 ? lookUp(ShapesByIndex, shapeIndex) : lookUp(ShapesBySides, sides);
}

/// Even indices are outlines, odd indices are filled shapes.
[[nodiscard]] constexpr bool isOutline(int shapeIndex)
{
    return shapeIndex % 2 == 0;
}

} // namespace orvanta

#include "workbench/items/polygon_corners.h"

#include <array>
#include <span>

namespace workbench {

namespace {

// Corners in a 1 by 1 box, y downwards.
struct Corner
{
    double x;
    double y;
};

// The part of an octagon's side that is cut off at each corner.
constexpr double Cut = 0.29289321881345254;

constexpr std::array RightTriangleCorners{Corner{0, 0}, Corner{1, 1}, Corner{0, 1}};
constexpr std::array TriangleCorners{Corner{0.5, 0}, Corner{1, 1}, Corner{0, 1}};
constexpr std::array DiamondCorners{Corner{0.5, 0}, Corner{1, 0.5}, Corner{0.5, 1}, Corner{0, 0.5}};
constexpr std::array PentagonCorners{Corner{0.5, 0}, Corner{1, 0.38196601125010515},
                                     Corner{0.8090169943749475, 1}, Corner{0.19098300562505255, 1},
                                     Corner{0, 0.38196601125010515}};
// Points to the left and right: importers rotate it if the format has it upright.
constexpr std::array HexagonCorners{Corner{0.25, 0}, Corner{0.75, 0}, Corner{1, 0.5},
                                    Corner{0.75, 1}, Corner{0.25, 1}, Corner{0, 0.5}};
constexpr std::array OctagonCorners{Corner{Cut, 0},     Corner{1 - Cut, 0}, Corner{1, Cut},
                                    Corner{1, 1 - Cut}, Corner{1 - Cut, 1}, Corner{Cut, 1},
                                    Corner{0, 1 - Cut}, Corner{0, Cut}};

struct Kind
{
    KestTypes::ShapeType type;
    std::span<const Corner> corners;
};

constexpr std::array Polygons{
    Kind{KestTypes::RightTriangle, RightTriangleCorners},
    Kind{KestTypes::Triangle, TriangleCorners},
    Kind{KestTypes::Diamond, DiamondCorners},
    Kind{KestTypes::Pentagon, PentagonCorners},
    Kind{KestTypes::Hexagon, HexagonCorners},
    Kind{KestTypes::Octagon, OctagonCorners},
};

} // namespace

QPolygonF polygonCorners(KestTypes::ShapeType type, const QRectF& box)
{
    QPolygonF polygon;
    for (const Kind& kind : Polygons) {
        if (kind.type != type) {
            continue;
        }
        for (const Corner& corner : kind.corners) {
            polygon.append({box.x() + corner.x * box.width(), box.y() + corner.y * box.height()});
        }
    }
    return polygon;
}

} // namespace workbench

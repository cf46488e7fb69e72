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
constexpr double kCut = 0.29289321881345254;

constexpr std::array kRightTriangle{Corner{0, 0}, Corner{1, 1}, Corner{0, 1}};
constexpr std::array kTriangle{Corner{0.5, 0}, Corner{1, 1}, Corner{0, 1}};
constexpr std::array kDiamond{Corner{0.5, 0}, Corner{1, 0.5}, Corner{0.5, 1}, Corner{0, 0.5}};
constexpr std::array kPentagon{Corner{0.5, 0}, Corner{1, 0.38196601125010515},
                               Corner{0.8090169943749475, 1}, Corner{0.19098300562505255, 1},
                               Corner{0, 0.38196601125010515}};
// Points to the left and right: importers rotate it if the format has it upright.
constexpr std::array kHexagon{Corner{0.25, 0}, Corner{0.75, 0}, Corner{1, 0.5},
                              Corner{0.75, 1}, Corner{0.25, 1}, Corner{0, 0.5}};
constexpr std::array kOctagon{Corner{kCut, 0},     Corner{1 - kCut, 0}, Corner{1, kCut},
                              Corner{1, 1 - kCut}, Corner{1 - kCut, 1}, Corner{kCut, 1},
                              Corner{0, 1 - kCut}, Corner{0, kCut}};

struct Kind
{
    KestTypes::ShapeType type;
    std::span<const Corner> corners;
};

constexpr std::array kKinds{
    Kind{KestTypes::RightTriangle, kRightTriangle},
    Kind{KestTypes::Triangle, kTriangle},
    Kind{KestTypes::Diamond, kDiamond},
    Kind{KestTypes::Pentagon, kPentagon},
    Kind{KestTypes::Hexagon, kHexagon},
    Kind{KestTypes::Octagon, kOctagon},
};

} // namespace

QPolygonF polygonCorners(KestTypes::ShapeType type, const QRectF& box)
{
    QPolygonF polygon;
    for (const Kind& kind : kKinds) {
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

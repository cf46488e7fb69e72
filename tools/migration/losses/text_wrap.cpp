#include "migration/losses/text_wrap.h"

#include "workbench/items/units.h"

#include <algorithm>
#include <cmath>

namespace migration {

namespace {

// Points: sizes that differ less are the same.
constexpr double SameSize = workbench::PointsPerMillimeter;
// Points: lines that end so far before an object may be short ones.
constexpr double NarrowColumn = 20.0 * workbench::PointsPerMillimeter;
// Points: narrower columns beside an object stay empty.
constexpr double NarrowestColumn = 8.0 * workbench::PointsPerMillimeter;
// Points: text may reach so far into an object.
constexpr double Touching = 2.0;

bool hasSize(const QSizeF& size, const AnchoredObject& object)
{
    return std::abs(size.width() - object.size.width()) < SameSize &&
           (object.size.height() == 0.0 ||
            std::abs(size.height() - object.size.height()) < SameSize);
}

bool isCandidate(const ItemFacts& item, const Census& document)
{
    const QSizeF size = item.outline.boundingRect().size();
    return item.objectClass != ObjectClass::Text && item.objectClass != ObjectClass::Line &&
           item.hasContent &&
           std::any_of(document.anchoredObjects.begin(), document.anchoredObjects.end(),
                       [&size](const AnchoredObject& object) { return hasSize(size, object); });
}

/// The text beside one object.
struct Sides
{
    bool hasLeft = false;
    bool hasRight = false;
    double end = 0.0; ///< of the longest line on the left
};

// A line of the running text, which is wider than the object.
void addLine(const QRectF& line, const QRectF& column, const QRectF& box, Sides& sides)
{
    const bool isBeside = line.center().y() > box.top() && line.center().y() < box.bottom();
    const bool isWide = box.left() - column.left() >= NarrowestColumn &&
                        column.right() - box.right() >= NarrowestColumn;
    if (!isBeside || !isWide) {
        return;
    }
    if (line.right() <= box.left() + Touching) {
        sides.hasLeft = true;
        sides.end = std::max(sides.end, line.right());
    } else if (line.left() >= box.right() - Touching) {
        sides.hasRight = true;
    }
}

} // namespace

QList<AnchoredItem> anchoredItems(const Census& document, const QList<DrawnText>& texts,
                                  const LabelFacts& label)
{
    QList<AnchoredItem> found;
    for (const ItemFacts& item : label.items) {
        if (found.size() == MaximumAnchoredItems || !isCandidate(item, document)) {
            continue;
        }
        const QRectF box = item.outline.boundingRect();
        Sides sides;
        for (const DrawnText& text : texts) {
            addLine(text.ink.boundingRect(), label.items.at(text.item).outline.boundingRect(), box,
                    sides);
        }
        // Short lines on the left end before the object also in the document.
        const bool isFull = sides.end > box.left() - NarrowColumn;
        const bool isOneSided = sides.hasLeft != sides.hasRight && (sides.hasRight || isFull);
        found.append({box, isOneSided});
    }
    std::stable_sort(found.begin(), found.end(), [](const AnchoredItem& a, const AnchoredItem& b) {
        return a.box.top() < b.box.top();
    });
    return found;
}

// Objects and items have the same order.
qint64 textsOnOneSide(const Census& document, const QList<AnchoredItem>& items)
{
    QList<AnchoredItem> left = items;
    qint64 count = 0;
    for (const AnchoredObject& object : document.anchoredObjects) {
        const auto item =
            std::find_if(left.begin(), left.end(), [&object](const AnchoredItem& each) {
                return hasSize(each.box.size(), object);
            });
        if (item != left.end()) {
            count += object.isBetweenText && item->isOneSided ? 1 : 0;
            left.erase(item);
        }
    }
    return count;
}

} // namespace migration

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
// Points: lines so far above an object belong to its paragraph.
constexpr double LinesAbove = 10.0 * workbench::PointsPerMillimeter;

bool isCandidate(const ItemFacts& item, const Census& document)
{
    const QSizeF size = item.outline.boundingRect().size();
    return item.objectClass != ObjectClass::Text && item.objectClass != ObjectClass::Line &&
           item.hasContent &&
           std::any_of(document.sizesBetweenText.begin(), document.sizesBetweenText.end(),
                       [&size](const QSizeF& stated) {
                           return std::abs(size.width() - stated.width()) < SameSize &&
                                  (stated.height() == 0.0 ||
                                   std::abs(size.height() - stated.height()) < SameSize);
                       });
}

// A line of the running text, which is wider than the object.
bool isOnOneSide(const QRectF& line, const QRectF& column, const QRectF& box)
{
    // On a page that makes no room for the object.
    if (column.width() > box.width() + NarrowestColumn &&
        line.intersects(box.adjusted(Touching, Touching, -Touching, -Touching))) {
        return true;
    }
    if (box.left() - column.left() < NarrowestColumn ||
        column.right() - box.right() < NarrowestColumn) {
        return false;
    }
    const double middle = line.center().y();
    if (middle > box.top() && middle < box.bottom()) {
        // Lines that end long before the object do so in the document, too.
        const double end = line.right() - box.left();
        return line.left() >= box.right() - Touching || (end <= Touching && end > -NarrowColumn);
    }
    // Lines above an object that begins below its paragraph make room for it, too.
    return middle > box.top() - LinesAbove && middle < box.top() &&
           std::abs(line.left() - box.right()) < Touching;
}

} // namespace

qint64 textsOnOneSide(const Census& document, const QList<DrawnText>& texts,
                      const LabelFacts& label)
{
    qsizetype searched = 0;
    return std::count_if(label.items.begin(), label.items.end(), [&](const ItemFacts& item) {
        if (!isCandidate(item, document) || ++searched > MaximumItemsBetweenText) {
            return false;
        }
        const QRectF box = item.outline.boundingRect();
        return std::any_of(texts.begin(), texts.end(), [&](const DrawnText& text) {
            return isOnOneSide(text.ink.boundingRect(),
                               label.items.at(text.item).outline.boundingRect(), box);
        });
    });
}

} // namespace migration

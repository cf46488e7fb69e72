#include "migration/losses/check_covering.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <vector>

namespace migration {

namespace {

constexpr double CoveredShare = 0.5;
// Of the smaller of two texts: a slanted letter may reach into the next run.
constexpr double OverlapShare = 0.2;
// Texts of a paragraph that are compared with each other.
constexpr qsizetype Neighbors = 8;
// Comparisons of items; more than a label of a hundred thousand items needs.
constexpr qint64 MaximumComparisons = 20'000'000;

double areaOf(const QPolygonF& polygon)
{
    double doubled = 0.0;
    for (qsizetype index = 0; index < polygon.size(); ++index) {
        const QPointF& a = polygon.at(index);
        const QPointF& b = polygon.at((index + 1) % polygon.size());
        doubled += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(doubled) / 2.0;
}

// A line, or a box without height, has an area too.
QPolygonF thickened(const QPolygonF& outline)
{
    if (outline.size() > 2 && areaOf(outline) > 1.0) {
        return outline;
    }
    const QRectF box = outline.boundingRect().adjusted(-0.5, -0.5, 0.5, 0.5);
    return QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
}

double side(const QPointF& from, const QPointF& to, const QPointF& point)
{
    return (to.x() - from.x()) * (point.y() - from.y()) -
           (to.y() - from.y()) * (point.x() - from.x());
}

// The part of a polygon inside a convex one.
QPolygonF clipped(QPolygonF polygon, const QPolygonF& window)
{
    const QPointF center = window.boundingRect().center();
    for (qsizetype edge = 0; edge < window.size(); ++edge) {
        const QPointF& from = window.at(edge);
        const QPointF& to = window.at((edge + 1) % window.size());
        const double inside = side(from, to, center) < 0.0 ? -1.0 : 1.0;
        QPolygonF rest;
        for (qsizetype index = 0; index < polygon.size(); ++index) {
            const QPointF& a = polygon.at(index);
            const QPointF& b = polygon.at((index + 1) % polygon.size());
            const double sideOfA = inside * side(from, to, a);
            const double sideOfB = inside * side(from, to, b);
            if (sideOfA >= 0.0) {
                rest.append(a);
            }
            if ((sideOfA > 0.0 && sideOfB < 0.0) || (sideOfA < 0.0 && sideOfB > 0.0)) {
                rest.append(a + (b - a) * (sideOfA / (sideOfA - sideOfB)));
            }
        }
        polygon = rest;
    }
    return polygon;
}

double coveredShare(const QPolygonF& below, const QPolygonF& above)
{
    const QPolygonF item = thickened(below);
    const double area = areaOf(item);
    return area > 0.0 ? areaOf(clipped(item, above)) / area : 0.0;
}

/// The search for covered items.
class Covering
{
public:
    Covering(const Matching& matching, LabelFacts& label)
        : m_label(label)
    {
        for (const QList<Pair>* pairs : {&matching.shapes, &matching.texts}) {
            for (const Pair& pair : *pairs) {
                m_appearances.insert(pair.item, pair.appearance);
            }
        }
    }

    // An upright box that covers half of another contains its center.
    bool run()
    {
        struct Center
        {
            QPointF point;
            qsizetype item;
        };
        std::vector<Center> centers;
        for (qsizetype item = 0; item < m_label.items.size(); ++item) {
            if (m_label.items.at(item).hasContent) {
                centers.push_back({m_label.items.at(item).outline.boundingRect().center(), item});
            }
        }
        std::sort(centers.begin(), centers.end(),
                  [](const Center& a, const Center& b) { return a.point.x() < b.point.x(); });
        for (qsizetype above = 0; above < m_label.items.size(); ++above) {
            if (!m_label.items.at(above).isOpaque) {
                continue;
            }
            const QRectF box = m_label.items.at(above).outline.boundingRect();
            auto center = std::lower_bound(
                centers.begin(), centers.end(), box.left(),
                [](const Center& each, double left) { return each.point.x() < left; });
            for (; center != centers.end() && center->point.x() <= box.right(); ++center) {
                if (++m_comparisons > MaximumComparisons) {
                    return false;
                }
                if (box.contains(center->point)) {
                    compare(center->item, above);
                }
            }
        }
        return true;
    }

private:
    void compare(qsizetype below, qsizetype above)
    {
        ItemFacts& item = m_label.items[below];
        const ItemFacts& cover = m_label.items.at(above);
        if (cover.level <= item.level || item.changes.has(LossKind::Covered) ||
            coveredShare(item.outline, cover.outline) < CoveredShare ||
            isInDocument(below, above)) {
            return;
        }
        item.changes.add(LossKind::Covered);
        m_label.tallies[LossKind::Covered].addDetail(item.text.simplified());
    }

    // Whether the document covers the object as well, or does not show where it is.
    [[nodiscard]] bool isInDocument(qsizetype below, qsizetype above) const
    {
        const Appearance* const item = m_appearances.value(below);
        const Appearance* const cover = m_appearances.value(above);
        if (item == nullptr || cover == nullptr) {
            return true;
        }
        if (item->outline.isEmpty() || cover->outline.isEmpty()) {
            // The text flow puts nothing on top of another unless it is asked to.
            return item->mayOverlap && cover->mayOverlap;
        }
        const bool isAbove =
            cover->order > item->order || (cover->order == item->order && item->text.isEmpty());
        const bool isOpaque = cover->isFilled.value_or(true);
        return isAbove && isOpaque &&
               (coveredShare(item->outline, cover->outline) >= CoveredShare ||
                coversText(*item, m_label.items.at(below), *cover));
    }

    // The document shows the place of the shape, which may be covered less than its text.
    static bool coversText(const Appearance& text, const ItemFacts& item, const Appearance& cover)
    {
        return !text.text.isEmpty() &&
               text.outline.boundingRect().contains(item.outline.boundingRect().center()) &&
               coveredShare(item.outline, cover.outline) >= CoveredShare;
    }

    LabelFacts& m_label;
    QHash<qsizetype, const Appearance*> m_appearances;
    qint64 m_comparisons = 0;
};

void findOverlappingTexts(const Matching& matching, LabelFacts& label)
{
    for (qsizetype index = 0; index < matching.texts.size(); ++index) {
        const Pair& text = matching.texts.at(index);
        const QRectF box = label.items.at(text.item).outline.boundingRect();
        for (qsizetype other = std::max<qsizetype>(0, index - Neighbors); other < index; ++other) {
            const Pair& before = matching.texts.at(other);
            if (text.appearance->paragraph == 0 || before.appearance->paragraph == 0 ||
                text.item == before.item) {
                continue;
            }
            const QRectF neighbor = label.items.at(before.item).outline.boundingRect();
            const QRectF common = box.intersected(neighbor);
            const double smaller =
                std::min(box.width() * box.height(), neighbor.width() * neighbor.height());
            if (smaller > 0.0 && common.width() * common.height() > OverlapShare * smaller) {
                label.items[text.item].changes.add(LossKind::TextsOverlap);
                label.tallies[LossKind::TextsOverlap].addDetail(
                    label.items.at(text.item).text.simplified());
            }
        }
    }
}

} // namespace

bool checkCovering(const Matching& matching, LabelFacts& label)
{
    findOverlappingTexts(matching, label);
    return Covering(matching, label).run();
}

} // namespace migration

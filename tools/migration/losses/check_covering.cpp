#include "migration/losses/check_covering.h"

#include "migration/losses/polygons.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <vector>

namespace migration {

namespace {

constexpr double CoveredShare = 0.5;
// Comparisons of items; more than a label of a hundred thousand items needs.
constexpr qint64 MaximumComparisons = 20'000'000;

// A line, or a box without height, has an area too.
QPolygonF thickened(const QPolygonF& outline)
{
    if (outline.size() > 2 && areaOf(outline) > 1.0) {
        return outline;
    }
    return cornersOf(outline.boundingRect().adjusted(-0.5, -0.5, 0.5, 0.5));
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

} // namespace

bool checkCovering(const Matching& matching, LabelFacts& label)
{
    return Covering(matching, label).run();
}

} // namespace migration

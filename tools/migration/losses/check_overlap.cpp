#include "migration/losses/check_overlap.h"

#include "migration/losses/polygons.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace migration {

namespace {

// Of the height of the smaller letters: lines may be set closely, and a slanted letter may reach
// into the next run.
constexpr double LeastDepth = 0.12;
// Of the square of that height: about half a letter.
constexpr double LeastArea = 0.4;
// Of the smaller text: it may be one letter.
constexpr double LeastShare = 0.5;
// Of the smaller of an item and the shape that it belongs to.
constexpr double SamePlaceShare = 0.8;
// Of the smaller of the boxes of two runs of a paragraph, and runs that are compared with each
// other.
constexpr double RunShare = 0.2;
constexpr qsizetype Neighbors = 8;
// Points of a cell of the index, and cells along a side of a large page.
constexpr double CellWidth = 72.0;
constexpr double CellHeight = 18.0;
constexpr double CellsPerSide = 256.0;
// Comparisons of texts, and cells of the index; more than a page of a hundred thousand texts needs.
constexpr qint64 MaximumOverlapSteps = 20'000'000;

double length(const QPointF& from, const QPointF& to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

double heightOf(const DrawnText& text)
{
    return length(text.ink.at(0), text.ink.at(3));
}

// How far a part of a text reaches from its top to its bottom.
double depthOf(const QPolygonF& part, const DrawnText& text)
{
    const QPointF down = (text.ink.at(3) - text.ink.at(0)) / heightOf(text);
    double least = 0.0;
    double most = 0.0;
    for (qsizetype index = 0; index < part.size(); ++index) {
        const double at = QPointF::dotProduct(part.at(index) - text.ink.at(0), down);
        least = index == 0 ? at : std::min(least, at);
        most = index == 0 ? at : std::max(most, at);
    }
    return most - least;
}

// The common part of two texts that are visibly drawn over each other; otherwise empty.
QPolygonF visibleOverlap(const DrawnText& a, const DrawnText& b)
{
    if (!a.ink.boundingRect().intersects(b.ink.boundingRect())) {
        return {};
    }
    const QPolygonF common = clipped(a.ink, b.ink);
    const double height = std::min(heightOf(a), heightOf(b));
    const double smaller = std::min(areaOf(a.ink), areaOf(b.ink));
    const double leastArea = std::min(LeastArea * height * height, LeastShare * smaller);
    const bool isVisible = smaller > 0.0 && areaOf(common) > leastArea &&
                           depthOf(common, a) > LeastDepth * height &&
                           depthOf(common, b) > LeastDepth * height;
    return isVisible ? common : QPolygonF();
}

void mark(qsizetype item, LabelFacts& label)
{
    label.items[item].changes.add(LossKind::TextsOverlap);
    label.tallies[LossKind::TextsOverlap].addDetail(label.items.at(item).text.simplified());
}

/// The search for texts over each other.
class Overlap
{
public:
    Overlap(const Matching& matching, double scale, LabelFacts& label)
        : m_label(label)
        , m_scale(scale)
        , m_cell(std::max(CellWidth, label.pageSize.width() / CellsPerSide),
                 std::max(CellHeight, label.pageSize.height() / CellsPerSide))
    {
        for (const Pair& pair : matching.texts) {
            m_appearances.insert(pair.item, pair.appearance);
        }
    }

    bool run(const QList<DrawnText>& texts)
    {
        for (auto begin = texts.begin(); begin != texts.end() && isWithinLimit();) {
            const auto end = std::find_if(begin, texts.end(), [begin](const DrawnText& text) {
                return text.item != begin->item;
            });
            checkItem(begin, end);
            begin = end;
        }
        return isWithinLimit();
    }

private:
    using Cell = std::pair<int, int>;
    using Position = QList<DrawnText>::const_iterator;

    [[nodiscard]] bool isWithinLimit() const { return m_steps <= MaximumOverlapSteps; }

    void checkItem(Position begin, Position end)
    {
        if (std::any_of(begin, end, [this](const DrawnText& text) { return isOverText(text); })) {
            mark(begin->item, m_label);
        }
        for (auto text = begin; text != end; ++text) {
            for (const Cell& cell : cellsOf(*text)) {
                m_cells[cell].append(&*text);
            }
        }
    }

    // What is off the page is not printed.
    [[nodiscard]] QList<Cell> cellsOf(const DrawnText& text)
    {
        const QRectF box =
            text.ink.boundingRect().intersected(QRectF(QPointF(0.0, 0.0), m_label.pageSize));
        QList<Cell> cells;
        if (box.isEmpty()) {
            return cells;
        }
        const auto index = [](double at, double size) {
            return static_cast<int>(std::floor(at / size));
        };
        for (int x = index(box.left(), m_cell.width()); x <= index(box.right(), m_cell.width());
             ++x) {
            for (int y = index(box.top(), m_cell.height());
                 y <= index(box.bottom(), m_cell.height()); ++y) {
                cells.append({x, y});
            }
        }
        m_steps += cells.size();
        return cells;
    }

    [[nodiscard]] bool isOverText(const DrawnText& text)
    {
        for (const Cell& cell : cellsOf(text)) {
            for (const DrawnText* const other : m_cells.value(cell)) {
                ++m_steps;
                if (!isWithinLimit()) {
                    return false;
                }
                const QPolygonF common = visibleOverlap(text, *other);
                if (!common.isEmpty() && !isInDocument(text.item, other->item, common)) {
                    return true;
                }
            }
        }
        return false;
    }

    // Whether the document draws the texts over each other as well, or may do so.
    [[nodiscard]] bool isInDocument(qsizetype a, qsizetype b, const QPolygonF& common) const
    {
        const Appearance* const first = m_appearances.value(a);
        const Appearance* const second = m_appearances.value(b);
        if (first == nullptr || second == nullptr) {
            return false;
        }
        if (isAtItsPlace(a, *first) && isAtItsPlace(b, *second)) {
            return true;
        }
        if (!first->outline.isEmpty() && !second->outline.isEmpty()) {
            QPolygonF place = common;
            for (QPointF& corner : place) {
                corner /= m_scale;
            }
            const double area = areaOf(place) * LeastShare;
            return areaOf(clipped(place, first->outline)) > area &&
                   areaOf(clipped(place, second->outline)) > area;
        }
        // Running text has no place, but the document may let it run through a box.
        return (first->isInShape && first->mayOverlap) || (second->isInShape && second->mayOverlap);
    }

    // Text that is too large for its shape is drawn beyond it in the document as well. In another
    // font, it may be larger than in the document.
    [[nodiscard]] bool isAtItsPlace(qsizetype item, const Appearance& appearance) const
    {
        const ItemFacts& facts = m_label.items.at(item);
        const QRectF box = facts.outline.boundingRect();
        const QRectF seen(box.topLeft() / m_scale, box.size() / m_scale);
        const QRectF place = appearance.outline.boundingRect();
        const QRectF common = seen.intersected(place);
        return !appearance.outline.isEmpty() && !facts.changes.has(LossKind::FontReplaced) &&
               areaOf(common) >= SamePlaceShare * std::min(areaOf(seen), areaOf(place));
    }

    LabelFacts& m_label;
    double m_scale;
    QSizeF m_cell;
    QHash<qsizetype, const Appearance*> m_appearances;
    QHash<Cell, QList<const DrawnText*>> m_cells;
    qint64 m_steps = 0;
};

// Centered or on the right, each run of a paragraph gets a line of its own: words change places
// with those that precede it, even if no letters meet.
void findRunsInOnePlace(const Matching& matching, LabelFacts& label)
{
    for (qsizetype index = 1; index < matching.texts.size(); ++index) {
        const Pair& text = matching.texts.at(index);
        const int paragraph = text.appearance->paragraph;
        const QRectF box = label.items.at(text.item).outline.boundingRect();
        for (qsizetype other = std::max<qsizetype>(0, index - Neighbors); other < index; ++other) {
            const Pair& before = matching.texts.at(other);
            if (paragraph == 0 || before.appearance->paragraph != paragraph ||
                text.item == before.item) {
                continue;
            }
            const QRectF neighbor = label.items.at(before.item).outline.boundingRect();
            const QRectF common = box.intersected(neighbor);
            const double smaller =
                std::min(box.width() * box.height(), neighbor.width() * neighbor.height());
            if (smaller > 0.0 && common.width() * common.height() > RunShare * smaller) {
                mark(text.item, label);
            }
        }
    }
}

} // namespace

bool checkOverlap(const QList<DrawnText>& texts, const Matching& matching, double scale,
                  LabelFacts& label)
{
    findRunsInOnePlace(matching, label);
    return Overlap(matching, scale, label).run(texts);
}

} // namespace migration

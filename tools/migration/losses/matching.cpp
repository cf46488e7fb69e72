#include "migration/losses/matching.h"

#include "workbench/items/units.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace migration {

namespace {

using workbench::PointsPerMillimeter;
// Cells of the index of places, in points of the document.
constexpr double CellSize = 2.0 * PointsPerMillimeter;
// Points: places that differ less are the same.
constexpr double SamePlace = 0.05;
// Items of one cell that are compared with an object: more are at the same place.
constexpr qsizetype MaximumNeighbors = 256;
// Characters that are searched for texts without an item of their own.
constexpr qint64 MaximumSearch = 500'000'000;

using Cell = std::pair<int, int>;
using Cells = QHash<Cell, QList<qsizetype>>;

// Beyond this, in points, places share a cell.
constexpr double FarthestPlace = 1e8;

int cellIndex(double value)
{
    return static_cast<int>(
        std::floor(std::clamp(value, -FarthestPlace, FarthestPlace) / CellSize));
}

Cell cellOf(const QPointF& point)
{
    return {cellIndex(point.x()), cellIndex(point.y())};
}

double distance(const QRectF& a, const QRectF& b)
{
    return std::max({std::abs(a.left() - b.left()), std::abs(a.right() - b.right()),
                     std::abs(a.top() - b.top()), std::abs(a.bottom() - b.bottom())});
}

/// One search for the items of objects.
class Matcher
{
public:
    Matcher(const Census& census, const LabelFacts& label, int page, double scale, bool expectsAll)
        : m_census(census)
        , m_label(label)
        , m_page(page)
        , m_scale(scale)
        , m_expectsAll(expectsAll)
        , m_used(label.items.size(), false)
    {}

    Matching run()
    {
        for (int index = 0; index < ObjectClasses; ++index) {
            const auto objectClass = static_cast<ObjectClass>(index);
            if (objectClass != ObjectClass::Text) {
                matchPlaces(objectClass);
            }
        }
        matchTexts();
        return m_matching;
    }

private:
    [[nodiscard]] bool isExpected(const CountedObject& object) const
    {
        if (object.appearance < 0 || (object.lost && !m_expectsAll)) {
            return false;
        }
        const int page = m_census.appearances.at(object.appearance).page;
        return page == 0 || m_page == 0 || page == m_page;
    }

    [[nodiscard]] QRectF placeOf(qsizetype item) const
    {
        const QRectF box = m_label.items.at(item).outline.boundingRect();
        return {box.topLeft() / m_scale, box.size() / m_scale};
    }

    // Also if the document does not show the size.
    [[nodiscard]] bool hasSizeOf(qsizetype item, const Appearance& appearance) const
    {
        const QSizeF size = appearance.outline.isEmpty() ? appearance.size
                                                         : appearance.outline.boundingRect().size();
        const QSizeF away = size - placeOf(item).size();
        return (appearance.outline.isEmpty() && size.isEmpty()) ||
               (std::abs(away.width()) <= PointsPerMillimeter &&
                (appearance.grows || std::abs(away.height()) <= PointsPerMillimeter));
    }

    [[nodiscard]] qsizetype takeNearest(Cells& cells, const QRectF& place);
    void matchPlaces(ObjectClass objectClass);
    void matchTexts();
    [[nodiscard]] QList<Pair> expectedTexts() const;
    bool matchText(Pair& text);

    const Census& m_census;
    const LabelFacts& m_label;
    int m_page;
    double m_scale;
    bool m_expectsAll;
    QList<bool> m_used;
    QMultiHash<QString, qsizetype> m_itemsByText;
    Matching m_matching;
};

qsizetype Matcher::takeNearest(Cells& cells, const QRectF& place)
{
    const Cell cell = cellOf(place.center());
    qsizetype best = -1;
    double nearest = PointsPerMillimeter;
    for (int x = -1; x <= 1; ++x) {
        for (int y = -1; y <= 1; ++y) {
            const auto found = cells.find({cell.first + x, cell.second + y});
            if (found == cells.end()) {
                continue;
            }
            while (!found->isEmpty() && m_used.at(found->constFirst())) {
                found->removeFirst();
            }
            // Of equal places, the first item belongs to the first object.
            for (const qsizetype item : found->first(std::min(found->size(), MaximumNeighbors))) {
                const double away = distance(place, placeOf(item));
                const bool isNearer = away < nearest - SamePlace ||
                                      (away < nearest + SamePlace && best >= 0 && item < best);
                if (!m_used.at(item) && isNearer) {
                    nearest = away;
                    best = item;
                }
            }
        }
    }
    return best;
}

void Matcher::matchPlaces(ObjectClass objectClass)
{
    const auto isOfClass = [objectClass](const ItemFacts& item) {
        const bool isPicture =
            objectClass == ObjectClass::Picture && item.objectClass == ObjectClass::Symbol;
        return item.hasContent && (item.objectClass == objectClass || isPicture);
    };
    Cells cells;
    QList<qsizetype> items;
    for (qsizetype item = 0; item < m_label.items.size(); ++item) {
        if (isOfClass(m_label.items.at(item))) {
            cells[cellOf(placeOf(item).center())].append(item);
            items.append(item);
        }
    }
    QList<const Appearance*> unmatched;
    for (const CountedObject& object : m_census.objects) {
        if (object.objectClass != objectClass || !isExpected(object)) {
            continue;
        }
        const Appearance& appearance = m_census.appearances.at(object.appearance);
        const qsizetype item = appearance.outline.isEmpty()
                                   ? -1
                                   : takeNearest(cells, appearance.outline.boundingRect());
        if (item < 0) {
            unmatched.append(&appearance);
            continue;
        }
        m_used[item] = true;
        m_matching.shapes.append({item, &appearance});
    }
    items.removeIf([this](qsizetype item) { return m_used.at(item); });
    // Readers keep the order. If numbers differ, it is unknown which item an object became.
    for (qsizetype index = 0; items.size() == unmatched.size() && index < items.size(); ++index) {
        if (m_expectsAll && !hasSizeOf(items.at(index), *unmatched.at(index))) {
            continue; // repair also adds items, and makes drawings of objects
        }
        m_used[items.at(index)] = true;
        m_matching.shapes.append({items.at(index), unmatched.at(index)});
    }
}

QList<Pair> Matcher::expectedTexts() const
{
    QList<Pair> texts;
    for (const CountedObject& object : m_census.objects) {
        if (object.objectClass == ObjectClass::Text && isExpected(object)) {
            const Appearance& appearance = m_census.appearances.at(object.appearance);
            texts.append({-1, &appearance, appearance.text});
        }
    }
    return texts;
}

bool Matcher::matchText(Pair& text)
{
    const QString key = squeezed(text.text);
    for (auto found = m_itemsByText.find(key); found != m_itemsByText.end() && found.key() == key;
         ++found) {
        text.item = *found;
        m_used[*found] = true;
        m_itemsByText.erase(found);
        m_matching.texts.append(text);
        return true;
    }
    return false;
}

void Matcher::matchTexts()
{
    // The first of equal texts is found first.
    for (qsizetype item = m_label.items.size() - 1; item >= 0; --item) {
        const ItemFacts& facts = m_label.items.at(item);
        if (facts.objectClass == ObjectClass::Text && !facts.text.trimmed().isEmpty()) {
            m_itemsByText.insert(squeezed(facts.text), item);
        }
    }
    QList<Pair> unmatched;
    QSet<int> paragraphs;
    for (Pair text : expectedTexts()) {
        const int paragraph = text.appearance->paragraph;
        if (paragraphs.contains(paragraph)) {
            m_matching.parts.append(text.appearance);
            continue;
        }
        if (matchText(text)) {
            continue;
        }
        if (paragraph > 0) {
            Pair complete = text;
            complete.text = m_census.paragraphs.at(paragraph - 1);
            if (matchText(complete)) {
                paragraphs.insert(paragraph);
                continue;
            }
        }
        unmatched.append(text);
    }
    QList<qsizetype> items(m_itemsByText.begin(), m_itemsByText.end());
    std::sort(items.begin(), items.end());
    QString others;
    for (const qsizetype item : items) {
        others += squeezed(m_label.items.at(item).text) + QChar::LineFeed;
    }
    // Bullets, numbers and notes may be added to a text.
    qsizetype from = 0;
    qint64 searched = 0;
    unmatched.removeIf([&](const Pair& text) {
        searched += others.size();
        if (searched > MaximumSearch) {
            m_matching.isCut = true;
            return true;
        }
        const QString key = squeezed(text.text);
        qsizetype at = others.indexOf(key, from);
        at = at < 0 ? others.indexOf(key) : at;
        if (key.contains(VariableText)) {
            return isIn(key, others);
        }
        from = at < 0 ? from : at + key.size();
        const bool isFound = at >= 0 || isInOneItem(text.text, others);
        if (isFound) {
            m_matching.parts.append(text.appearance);
        }
        return isFound;
    });
    if (!m_expectsAll && items.size() == unmatched.size()) {
        for (qsizetype index = 0; index < items.size(); ++index) {
            unmatched[index].item = items.at(index);
            unmatched[index].isExact = false;
            m_matching.texts.append(unmatched.at(index));
        }
        return;
    }
    for (const Pair& text : unmatched) {
        m_matching.missingTexts.append(text.text.simplified());
    }
}

} // namespace

Matching matchItems(const Census& census, const LabelFacts& label, int page, double scale,
                    bool expectsAll)
{
    return Matcher(census, label, page, scale, expectsAll).run();
}

} // namespace migration

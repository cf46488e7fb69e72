#include "repair/object_places.h"

#include "repair/page_notes.h"
#include "repair/paragraph_edges.h"
#include "repair/text_marks.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

#include <QAbstractTextDocumentLayout>
#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace repair {

namespace {

// Points: heights of fonts are rounded.
constexpr double HeightTolerance = 1.0;

/// Places the objects of a page.
class Placer
{
public:
    explicit Placer(const QMap<int, ObjectItems>& objects);

    void lowerObjects();
    void placeRows(double top);
    void placeAtMarks();
    [[nodiscard]] std::optional<PageEnd> pageEnd(double bottom) const;
    [[nodiscard]] const QMap<int, double>& rowTops() const { return m_tops; }
    /// Of the last row.
    [[nodiscard]] double rowsBottom() const
    {
        return m_rows.isEmpty() ? 0.0 : m_rows.constLast().bottom;
    }

private:
    /// A row that is placed.
    struct Row
    {
        QList<ObjectItems> objects;
        double bottom = 0.0;
    };

    [[nodiscard]] std::optional<PageEnd> endInText(const ObjectItems& items, double bottom) const;
    [[nodiscard]] bool hasObjectBelow(const QList<Mark>& marks, int paragraph, double bottom) const;
    void placeRow(const QList<ObjectItems>& row, double& y) const;
    void placeAtMarks(const ObjectItems& items);
    [[nodiscard]] double contentHeight(const ObjectItems& items) const;
    [[nodiscard]] double textBottom(const ObjectItems& items) const;

    const QMap<int, ObjectItems>& m_objects;
    QMultiHash<int, ObjectItems> m_marked; // by mark; an object may have several parts
    QMap<int, double> m_tops;              // of rows
    QList<Row> m_rows;
};

Placer::Placer(const QMap<int, ObjectItems>& objects)
    : m_objects(objects)
{
    for (const ObjectItems& items : objects) {
        if (items.plan->mark > 0) {
            m_marked.insert(items.plan->mark, items);
        }
    }
}

// Objects beside a text may be higher than it.
double Placer::textBottom(const ObjectItems& items) const
{
    double bottom = bottomOf(*items.text);
    for (const Mark& mark : m_marked.isEmpty() ? QList<Mark>() : marksOf(*items.text)) {
        for (const ObjectItems& marked : m_marked.values(mark.number)) {
            auto* const item = marked.shape != nullptr ? marked.shape : marked.text;
            if (item != nullptr && !marked.plan->isInLine) {
                bottom = std::max(bottom, items.text->graphicsItem()->pos().y() + mark.top +
                                              bottomOf(*item));
            }
        }
    }
    return bottom;
}

// The height that an object needs below the top of its row.
double Placer::contentHeight(const ObjectItems& items) const
{
    if (items.plan->isInsideFrame) {
        return 0.0;
    }
    if (items.text != nullptr) {
        const double bottom = textBottom(items) + items.plan->space;
        const bool isText = items.plan->fillsRow || items.shape == nullptr;
        return isText ? bottom : std::max(bottom, bottomOf(*items.shape));
    }
    if (items.plan->space > 0.0) {
        return items.plan->space;
    }
    return items.shape != nullptr ? bottomOf(*items.shape) : 0.0;
}

// A cell of several rows is in the last one.
void Placer::placeRow(const QList<ObjectItems>& row, double& y) const
{
    double height = 0.0;
    for (const ObjectItems& items : row) {
        const double own = std::max(contentHeight(items), items.plan->least);
        height = std::max(height, own + m_tops.value(items.plan->row, y) - y);
    }
    for (const ObjectItems& items : row) {
        const double top = m_tops.value(items.plan->row, y);
        const double full = y + height - top;
        const double gap = items.shape != nullptr ? items.shape->graphicsItem()->pos().y() : 0.0;
        if (items.text != nullptr && items.plan->shareAbove > 0.0) {
            const double room = full - contentHeight(items);
            items.text->graphicsItem()->moveBy(0.0, room * items.plan->shareAbove);
        }
        moveItems(items, {0.0, items.plan->isAtBottom ? y + height : top});
        if (items.plan->isAtBottom) {
            continue;
        }
        if (items.shape != nullptr && items.plan->fillsRow) {
            Item* const box = items.shape->contractItem();
            box->setItemSize({box->getItemWidth(), full - gap});
        } else {
            growWithText(items);
        }
    }
    y += height;
}

// An object that begins below the first line of its paragraph leaves the lines above it alone.
void Placer::lowerObjects()
{
    const auto topOf = [this](int number) {
        const ObjectItems marked = m_marked.value(number);
        auto* const item = marked.shape != nullptr ? marked.shape : marked.text;
        return item != nullptr ? item->graphicsItem()->pos().y() : 0.0;
    };
    for (const ObjectItems& items : m_objects) {
        if (m_marked.isEmpty() || items.text == nullptr) {
            continue;
        }
        const QHash<int, double> lowered = lowerMarks(*items.text, topOf);
        for (auto it = lowered.begin(); it != lowered.end(); ++it) {
            for (const ObjectItems& marked : m_marked.values(it.key())) {
                moveItems(marked, {0.0, -it.value()});
            }
        }
        if (!lowered.isEmpty()) {
            Item* const text = items.text->contractItem();
            const double width = text->getItemWidth();
            dynamic_cast<::RichTextItem&>(*text).adjustBoxSizeToContent(width);
            text->setItemSize({width, text->getItemHeight()});
        }
    }
}

void Placer::placeRows(double top)
{
    QMap<int, QList<ObjectItems>> rows;
    for (const bool isSpanned : {false, true}) {
        for (const ObjectItems& items : m_objects) {
            if (items.plan->row > 0 && (items.plan->rows > 1) == isSpanned) {
                rows[items.plan->row + items.plan->rows - 1].append(items);
            }
        }
    }
    double y = top;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        m_tops.insert(row.key(), y);
        placeRow(*row, y);
        m_rows.append({*row, y});
    }
}

// Whether an object beside the lines of a paragraph would be cut.
bool Placer::hasObjectBelow(const QList<Mark>& marks, int paragraph, double bottom) const
{
    const auto isBelow = [bottom](const ObjectItems& marked) {
        auto* const item = marked.shape != nullptr ? marked.shape : marked.text;
        return item != nullptr && !marked.plan->isInLine &&
               bottomOf(*item) > bottom + HeightTolerance;
    };
    return std::any_of(marks.begin(), marks.end(), [&](const Mark& mark) {
        const QList<ObjectItems> marked = m_marked.values(mark.number);
        return mark.paragraph == paragraph && std::any_of(marked.begin(), marked.end(), isBelow);
    });
}

// The first line, or paragraph with an object, that ends below.
std::optional<PageEnd> Placer::endInText(const ObjectItems& items, double bottom) const
{
    const auto* const text = dynamic_cast<const ::RichTextItem*>(items.text->contractItem());
    if (text == nullptr) {
        return std::nullopt;
    }
    const QTextDocument& document = *text->document();
    const QList<Mark> marks = m_marked.isEmpty() ? QList<Mark>() : marksOf(*items.text);
    PageEnd end{.order = items.plan->order, .paragraphCount = document.blockCount()};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const double top = items.text->graphicsItem()->pos().y() +
                           document.documentLayout()->blockBoundingRect(block).top();
        end.paragraph = block.blockNumber();
        int full = end.paragraph > 0 && hasObjectBelow(marks, end.paragraph, bottom) ? 0 : -1;
        end.lineStarts.clear();
        for (int number = 0; number < block.layout()->lineCount(); ++number) {
            const QTextLine line = block.layout()->lineAt(number);
            end.lineStarts.append(
                number > 0 ? line.textStart() + marksBehind(block, line.textStart()) : 0);
            if (full < 0 && top + line.y() + line.height() > bottom + HeightTolerance) {
                full = number;
            }
        }
        if (full >= 0 && !end.lineStarts.isEmpty()) {
            end.line = full;
            return end;
        }
    }
    return std::nullopt;
}

std::optional<PageEnd> Placer::pageEnd(double bottom) const
{
    for (const Row& row : m_rows) {
        if (row.bottom <= bottom + HeightTolerance) {
            continue;
        }
        const ObjectItems& items = row.objects.front();
        if (items.plan->flows && items.text != nullptr) {
            if (std::optional<PageEnd> end = endInText(items, bottom)) {
                return end;
            }
        } else if (&row != &m_rows.front()) {
            return PageEnd{.order = items.plan->order};
        }
    }
    return std::nullopt;
}

// Objects in objects follow those that contain them.
void Placer::placeAtMarks(const ObjectItems& items)
{
    if (items.text == nullptr) {
        return;
    }
    const QPointF corner = items.text->graphicsItem()->pos();
    for (const Mark& mark : marksOf(*items.text)) {
        for (const ObjectItems& marked : m_marked.values(mark.number)) {
            if (marked.plan->isNote) {
                continue;
            }
            growWithText(marked);
            moveItems(marked, marked.plan->isInLine ? corner + mark.corner
                                                    : QPointF(0.0, corner.y() + mark.top));
        }
        for (const ObjectItems& marked : m_marked.values(mark.number)) {
            placeAtMarks(marked);
        }
    }
}

void Placer::placeAtMarks()
{
    if (m_marked.isEmpty()) {
        return;
    }
    for (const ObjectItems& items : m_objects) {
        if (items.plan->mark == 0) {
            placeAtMarks(items);
        }
    }
}

} // namespace

std::optional<PageEnd> placeObjects(const QMap<int, ObjectItems>& objects, const PagePlan& page)
{
    Placer placer(objects);
    placer.lowerObjects();
    placer.placeRows(page.top);
    const PageNotes notes(objects);
    placer.placeAtMarks();
    placeParagraphEdges(objects, placer.rowTops());
    const auto endAbove = [&placer, &notes](double bottom) {
        return placer.pageEnd(bottom - notes.heightAbove(bottom));
    };
    notes.place(page.bottom, placer.rowsBottom());
    return page.lowest > 0.0 && endAbove(page.lowest) ? endAbove(page.bottom) : std::nullopt;
}

} // namespace repair

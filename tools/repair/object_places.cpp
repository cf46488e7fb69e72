#include "repair/object_places.h"

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

void moveItems(const ObjectItems& items, const QPointF& offset)
{
    for (workbench::CanvasItem* const item : {items.shape, items.text}) {
        if (item != nullptr) {
            item->graphicsItem()->moveBy(offset.x(), offset.y());
        }
    }
}

double bottomOf(workbench::CanvasItem& item)
{
    return item.graphicsItem()->pos().y() + item.contractItem()->getItemHeight();
}

// Frames are at least as high as their text.
void growWithText(const ObjectItems& items)
{
    if (items.shape == nullptr || items.text == nullptr) {
        return;
    }
    Item* const box = items.shape->contractItem();
    const double grown =
        bottomOf(*items.text) + items.plan->space - items.shape->graphicsItem()->pos().y();
    if (grown > box->getItemHeight()) {
        box->setItemSize({box->getItemWidth(), grown});
    }
}

/// A mark in a text.
struct Mark
{
    int number = 0;
    QPointF corner;   ///< of its picture, from the corner of the text's item
    double top = 0.0; ///< of its line
};

Mark markAt(const QTextDocument& document, const QTextBlock& block, const QTextFragment& fragment)
{
    const QTextImageFormat format = fragment.charFormat().toImageFormat();
    const int inBlock = fragment.position() - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(inBlock);
    const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
    Mark mark;
    mark.number = format.name().sliced(MarkPrefix.size()).toInt();
    mark.top = corner.y();
    if (line.isValid()) {
        mark.top += line.y();
        mark.corner =
            corner + QPointF(line.cursorToX(inBlock), line.y() + line.ascent() - format.height());
    }
    return mark;
}

QList<Mark> marksOf(workbench::CanvasItem& item)
{
    const auto* const text = dynamic_cast<const ::RichTextItem*>(item.contractItem());
    QList<Mark> marks;
    if (text == nullptr) {
        return marks;
    }
    const QTextDocument& document = *text->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat() && format.toImageFormat().name().startsWith(MarkPrefix)) {
                marks.append(markAt(document, block, it.fragment()));
            }
        }
    }
    return marks;
}

/// Places the objects of a page.
class Placer
{
public:
    explicit Placer(const QMap<int, ObjectItems>& objects);

    void placeRows(double top);
    void placeAtMarks();

private:
    void placeRow(const QList<ObjectItems>& row, double& y) const;
    void placeAtMarks(const ObjectItems& items);
    [[nodiscard]] double heightOf(const ObjectItems& items) const;
    [[nodiscard]] double textBottom(const ObjectItems& items) const;

    const QMap<int, ObjectItems>& m_objects;
    QMultiHash<int, ObjectItems> m_marked; // by mark; an object may have several parts
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
double Placer::heightOf(const ObjectItems& items) const
{
    if (items.text != nullptr) {
        const double bottom = textBottom(items) + items.plan->space;
        const bool isText = items.plan->fillsRow || items.shape == nullptr;
        return isText ? bottom : std::max(bottom, items.shape->contractItem()->getItemHeight());
    }
    if (items.plan->space > 0.0) {
        return items.plan->space;
    }
    return items.shape != nullptr ? bottomOf(*items.shape) : 0.0;
}

void Placer::placeRow(const QList<ObjectItems>& row, double& y) const
{
    double height = 0.0;
    for (const ObjectItems& items : row) {
        height = std::max(height, heightOf(items));
    }
    for (const ObjectItems& items : row) {
        moveItems(items, {0.0, y});
        const bool isBox =
            items.shape != nullptr && (items.plan->fillsRow || items.text != nullptr);
        if (isBox) {
            Item* const box = items.shape->contractItem();
            box->setItemSize({box->getItemWidth(), height});
        }
    }
    y += height;
}

void Placer::placeRows(double top)
{
    QMap<int, QList<ObjectItems>> rows;
    for (const ObjectItems& items : m_objects) {
        if (items.plan->row > 0) {
            rows[items.plan->row].append(items);
        }
    }
    double y = top;
    for (const QList<ObjectItems>& row : rows) {
        placeRow(row, y);
    }
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

void placeObjects(const QMap<int, ObjectItems>& objects, double top)
{
    Placer placer(objects);
    placer.placeRows(top);
    placer.placeAtMarks();
}

} // namespace repair

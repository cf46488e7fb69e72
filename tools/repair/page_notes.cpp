#include "repair/page_notes.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"
#include "repair/text_marks.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

#include <QHash>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// A note at the bottom of a page is not divided.
constexpr qsizetype MaximumNoteCharacters = 1'000;
const QString MarkSize = u"0.01"_s; // points: cannot be seen

} // namespace

void takeNote(Document& document, std::unique_ptr<Node>& note, const TextPlace& place,
              Node::Children& taken)
{
    Node* const body = note->child(u"text:note-body");
    const Node* const citation = note->child(u"text:note-citation");
    Node* const first = body != nullptr ? body->firstElement() : nullptr;
    if (first == nullptr || note->attribute(u"text:note-class") == "endnote"_L1 ||
        body->allText().size() > MaximumNoteCharacters) {
        return;
    }
    const QString number = citation != nullptr ? citation->allText() : QString();
    first->children.insert(first->children.begin(), Node::characters(number + u' '));
    const QRectF& column = place.page.box;
    auto frame = textFrame(document, {column.left(), 0.0, column.width(), 0.0}, {});
    takeParagraphs(*body, *frame->child(u"draw:text-box"), 0);
    body->children.clear();
    const QString key = QString::number(document.newMark());
    frame->setAttribute(AnchorAttribute, key);
    frame->setAttribute(InLineAttribute, u"true"_s);
    frame->setAttribute(NoteAttribute, u"true"_s);
    taken.push_back(std::move(frame));
    auto mark = Node::element(MarkElement);
    mark->attributes = {
        {u"key"_s, key}, {u"width"_s, MarkSize}, {u"height"_s, MarkSize}, {u"side"_s, NoteSide}};
    auto cited = Node::element(u"text:span"_s);
    cited->append(std::move(mark));
    cited->append(std::move(note));
    note = std::move(cited);
}

NoteLengths::NoteLengths(const Node& page)
{
    for (const auto& object : page.children) {
        if (object->hasAttribute(NoteAttribute)) {
            m_lengths.insert(object->attribute(AnchorAttribute), object->allText().size());
        }
    }
}

qsizetype NoteLengths::citedIn(const Node& paragraph) const
{
    QStringList marks = paragraph.attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts);
    for (const auto& span : paragraph.children) {
        marks += span->attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts);
    }
    qsizetype length = 0;
    for (const QString& mark : marks) {
        length += m_lengths.value(mark.section(u' ', 0, 0));
    }
    return length;
}

PageNotes::PageNotes(const QMap<int, ObjectItems>& objects)
{
    QHash<int, ObjectItems> notes;
    for (const ObjectItems& items : objects) {
        if (items.plan->isNote && items.text != nullptr) {
            notes.insert(items.plan->mark, items);
        }
    }
    for (const ObjectItems& items : objects) {
        if (notes.isEmpty() || items.text == nullptr || !items.plan->flows) {
            continue;
        }
        const double top = items.text->graphicsItem()->pos().y();
        for (const Mark& mark : marksOf(*items.text)) {
            if (const auto found = notes.constFind(mark.number); found != notes.constEnd()) {
                m_notes.append({*found, top + mark.top,
                                found->text->contractItem()->getItemHeight() + found->plan->space});
            }
        }
    }
}

double PageNotes::heightAbove(double y) const
{
    double height = 0.0;
    for (const Note& note : m_notes) {
        height += note.cited < y ? note.height : 0.0;
    }
    return height;
}

void PageNotes::place(double pageBottom, double textBottom) const
{
    double y = std::max(textBottom, pageBottom - heightAbove(std::max(pageBottom, textBottom)));
    for (const Note& note : m_notes) {
        moveItems(note.items, {0.0, y - note.items.text->graphicsItem()->pos().y()});
        y += note.height;
    }
}

} // namespace repair

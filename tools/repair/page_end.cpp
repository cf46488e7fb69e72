#include "repair/page_end.h"

#include "repair/anchored_shapes.h"
#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/page_notes.h"
#include "repair/page_steps.h"
#include "repair/shape_parts.h"
#include "repair/shape_place.h"
#include "repair/split_text.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// A page of small print has 10,000. More are imported with the next page.
constexpr qsizetype MaximumCharacters = 10'000;

int rowOf(const Node& object)
{
    return object.attribute(RowAttribute).toInt();
}

// Where lines may be separated: at least two stay together if the style demands it.
TextEnd niceEnd(const Node& box, const PageEnd& end)
{
    const auto paragraph = [&box](int index) -> const Node& {
        return *box.children[static_cast<std::size_t>(index)];
    };
    const int lines = static_cast<int>(end.lineStarts.size());
    const Node& cut = paragraph(end.paragraph);
    const int line = std::min(end.line, lines - cut.attribute(WidowsAttribute).toInt());
    if (line > 0 && line >= cut.attribute(OrphansAttribute).toInt()) {
        return {end.paragraph, end.lineStarts[line]};
    }
    int first = end.paragraph;
    while (first > 0 && paragraph(first - 1).hasAttribute(KeepAttribute)) {
        --first;
    }
    return {first, 0};
}

// Where lines are separated if nothing else is on the page.
TextEnd anyEnd(const PageEnd& end)
{
    if (end.paragraph > 0 || end.line > 0) {
        return {end.paragraph, end.line > 0 ? end.lineStarts[end.line] : 0};
    }
    return end.lineStarts.size() > 1 ? TextEnd{0, end.lineStarts[1]} : TextEnd{1, 0};
}

QSet<QString> markKeys(const Node::Children& objects)
{
    QSet<QString> keys;
    const auto collect = [&keys](const Node& node) {
        for (const QString& mark : node.attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts)) {
            keys.insert(mark.section(u' ', 0, 0));
        }
    };
    for (const auto& object : objects) {
        forEachElement(*object, collect);
    }
    return keys;
}

template <class Condition>
qsizetype moveObjects(Node& page, Node::Children& rest, const Condition& isMoved)
{
    const auto size = std::ssize(rest);
    for (auto& object : page.children) {
        if (isMoved(*object)) {
            rest.push_back(std::move(object));
        }
    }
    std::erase(page.children, nullptr);
    return std::ssize(rest) - size;
}

// Objects in a text go with it, and those in their own texts too.
void moveAnchored(Node& page, Node::Children& rest)
{
    qsizetype moved = 1;
    while (moved > 0) {
        const QSet<QString> keys = markKeys(rest);
        moved = moveObjects(page, rest, [&keys](const Node& object) {
            return keys.contains(object.attribute(AnchorAttribute)) ||
                   keys.contains(object.attribute(FromTextAttribute));
        });
    }
}

// The space above a text or table is not repeated where it continues.
void beginAtTop(const Node::Children& rest)
{
    int first = 0;
    for (const auto& object : rest) {
        if (const int row = rowOf(*object); row > 0 && (first == 0 || row < first)) {
            first = row;
        }
    }
    for (const auto& object : rest) {
        const bool isText =
            object->hasAttribute(FlowsAttribute) || object->hasAttribute(TableAttribute);
        if (isText && rowOf(*object) == first) {
            object->setAttribute(u"svg:y"_s, u"0in"_s);
        }
    }
}

bool isHeaderOf(const Node& object, const QString& table)
{
    return object.hasAttribute(HeaderAttribute) && object.attribute(TableAttribute) == table;
}

// A table that continues on the next page has its header there too. Rows with objects in their
// texts are not repeated: an object is on one page.
void repeatHeader(const Node& page, const QString& table, Node::Children& rest)
{
    Node::Children header;
    for (const auto& object : page.children) {
        if (isHeaderOf(*object, table)) {
            header.push_back(object->clone());
        }
    }
    const bool isContinued =
        !table.isEmpty() && std::any_of(rest.begin(), rest.end(), [&table](const auto& object) {
            return object->attribute(TableAttribute) == table;
        });
    if (isContinued && markKeys(header).isEmpty()) {
        rest.insert(rest.begin(), std::make_move_iterator(header.begin()),
                    std::make_move_iterator(header.end()));
    }
}

bool showsSomething(const Node& object)
{
    return !object.hasAttribute(FlowsAttribute) || hasVisibleText(*object.child(u"draw:text-box"));
}

// From 1: numbers that grow from page to page would overflow in a long text.
void renumberRows(Node& page)
{
    const QString names[] = {RowAttribute, FromRowAttribute};
    QMap<int, int> numbers; // sorted
    for (const auto& object : page.children) {
        for (const QString& name : names) {
            numbers.insert(object->attribute(name).toInt(), 0);
        }
    }
    int number = 0;
    for (auto it = numbers.upperBound(0); it != numbers.end(); ++it) {
        *it = ++number;
    }
    for (const auto& object : page.children) {
        for (const QString& name : names) {
            if (object->hasAttribute(name)) {
                object->setAttribute(
                    name, QString::number(numbers.value(object->attribute(name).toInt())));
            }
        }
    }
}

// The order is that of the objects, the texts above all others.
void sortTextsLast(Node& page)
{
    std::stable_sort(page.children.begin(), page.children.end(),
                     [](const auto& a, const auto& b) { return layerOf(*a) < layerOf(*b); });
}

} // namespace

Node::Children takeRest(Document& document, const PageEnd& end)
{
    Node& page = *document.page();
    const QString order = QString::number(end.order);
    const auto found =
        std::find_if(page.children.begin(), page.children.end(), [&order](const auto& object) {
            return object->attribute(u"draw:z-index") == order;
        });
    if (found == page.children.end() || rowOf(**found) == 0) {
        return {};
    }
    Node& last = **found;
    int firstRow = rowOf(last); // of the rest
    const QString table = last.attribute(TableAttribute);
    // Behind the header alone, a row is the first one too: the next page has no more room.
    const bool isFirst = std::none_of(
        page.children.begin(), page.children.end(), [firstRow, &table](const auto& object) {
            return rowOf(*object) > 0 && rowOf(*object) < firstRow && !isHeaderOf(*object, table);
        });
    Node::Children rest;
    if (end.paragraph < 0) {
        firstRow += isFirst ? 1 : 0;
    } else {
        const Node& box = *last.child(u"draw:text-box");
        if (std::ssize(box.children) != end.paragraphCount) {
            return {};
        }
        TextEnd textEnd = niceEnd(box, end);
        const bool isAtStart = textEnd.paragraph == 0 && textEnd.character == 0;
        if (!isAtStart || isFirst) {
            rest.push_back(splitFrame(document, last, isAtStart ? anyEnd(end) : textEnd));
            ++firstRow;
        }
    }
    moveObjects(page, rest, [firstRow](const Node& object) {
        return rowOf(object) >= firstRow || object.attribute(FromRowAttribute).toInt() >= firstRow;
    });
    beginAtTop(rest);
    moveAnchored(page, rest);
    repeatHeader(page, table, rest);
    const bool isVisible = std::any_of(rest.begin(), rest.end(),
                                       [](const auto& object) { return showsSomething(*object); });
    return isVisible ? std::move(rest) : Node::Children();
}

std::optional<PageEnd> endOfCharacters(const Document& document)
{
    qsizetype characters = 0;
    const NoteLengths notes(*document.page());
    for (const auto& object : document.page()->children) {
        if (rowOf(*object) == 0) {
            continue;
        }
        PageEnd end{.order = object->attribute(u"draw:z-index").toInt()};
        const Node* const box = object->child(u"draw:text-box");
        if (!object->hasAttribute(FlowsAttribute) || box == nullptr) {
            characters += object->allText().size();
            if (characters > MaximumCharacters) {
                return end;
            }
            continue;
        }
        end.paragraphCount = static_cast<int>(box->children.size());
        for (const auto& paragraph : box->children) {
            ++end.paragraph;
            const bool isFirst = characters == 0;
            const QString text = paragraph->allText();
            characters += text.size() + 1 + notes.citedIn(*paragraph);
            if (characters > MaximumCharacters) {
                const auto blank = text.lastIndexOf(u' ', MaximumCharacters);
                end.line = isFirst ? 1 : 0;
                end.lineStarts = {
                    0, static_cast<int>(blank > 0 ? blank + 1
                                                  : std::min(MaximumCharacters, text.size()))};
                return end;
            }
        }
    }
    return std::nullopt;
}

void putRest(Document& document, Node::Children rest)
{
    Node& page = *document.page();
    for (const auto& object : rest) {
        object->removeAttribute(u"draw:z-index");
    }
    for (const auto& object : page.children) {
        object->removeAttribute(u"draw:z-index");
    }
    // Before the texts, so that theirs come first.
    sortTextsLast(page);
    const auto texts =
        std::find_if(page.children.begin(), page.children.end(),
                     [](const auto& object) { return object->child(u"draw:text-box") != nullptr; });
    page.children.insert(texts, std::make_move_iterator(rest.begin()),
                         std::make_move_iterator(rest.end()));
    sortTextsLast(page);
    renumberRows(page);
    (void)writeOrder(document);
}

void countRowsFrom(const Node::Children& rest, Node& page)
{
    int last = 0;
    for (const auto& object : rest) {
        last = std::max(last, rowOf(*object));
    }
    for (const auto& object : page.children) {
        for (const QString& name : {RowAttribute, FromRowAttribute}) {
            if (const int row = object->attribute(name).toInt(); row > 0) {
                object->setAttribute(name, QString::number(last + row));
            }
        }
    }
}

} // namespace repair

#include "repair/split_text.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

/// The marks before a span; those that take no room stay at the start of the text.
struct SpanMarks
{
    QStringList inText;
    QStringList others;
};

SpanMarks marksOf(const Node& span)
{
    SpanMarks marks;
    for (const QString& mark : span.attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts)) {
        (takesRoom(mark) ? marks.inText : marks.others).append(mark);
    }
    return marks;
}

void writeMarks(Node& node, const QStringList& marks)
{
    if (marks.isEmpty()) {
        node.removeAttribute(MarksAttribute);
    } else {
        node.setAttribute(MarksAttribute, marks.join(u';'));
    }
}

QString shownText(const Node& span)
{
    return span.hasAttribute(HolderAttribute) ? QString() : span.allText();
}

// The end of a paragraph from this character on, as a paragraph. Marks are characters.
std::unique_ptr<Node> splitParagraph(Document& document, Node& paragraph, int character)
{
    auto tail = Node::element(paragraph.name);
    tail->attributes = paragraph.attributes;
    paragraph.removeAttribute(MarksAttribute);
    StyleProperties style =
        document.table().resolved(u"paragraph"_s, paragraph.attribute(u"text:style-name"), false);
    style.paragraph.remove(u"fo:text-indent"_s);
    style.paragraph.remove(u"fo:margin-top"_s);
    tail->setAttribute(u"text:style-name"_s, document.styleFor(u"paragraph"_s, style));
    Node::Children spans = std::move(paragraph.children);
    paragraph.children.clear();
    qsizetype left = character;
    for (auto& span : spans) {
        const SpanMarks marks = marksOf(*span);
        const qsizetype markCount = marks.inText.size();
        const QString text = shownText(*span);
        if (left >= markCount + text.size()) {
            left -= markCount + text.size();
            paragraph.children.push_back(std::move(span));
            continue;
        }
        const qsizetype kept = left - markCount;
        if (kept > 0) {
            Node& head = paragraph.append(span->clone());
            head.children.clear();
            const bool endsLine = text[kept - 1] == QChar::LineSeparator;
            head.append(Node::characters(text.first(endsLine ? kept - 1 : kept)));
        } else if (left > 0) {
            writeMarks(paragraph, marks.inText.first(left) + marks.others);
        }
        if (left > 0) {
            writeMarks(*span, kept < 0 ? marks.inText.sliced(left) : QStringList());
            span->children.clear();
            span->append(Node::characters(text.sliced(std::max<qsizetype>(0, kept))));
        }
        left = 0;
        tail->children.push_back(std::move(span));
    }
    return tail;
}

} // namespace

std::unique_ptr<Node> splitFrame(Document& document, Node& frame, const TextEnd& end)
{
    Node& box = *frame.child(u"draw:text-box");
    auto rest = Node::element(frame.name);
    rest->attributes = frame.attributes;
    Node& target = rest->append(Node::element(box.name));
    auto from =
        box.children.begin() + std::min<std::ptrdiff_t>(end.paragraph, std::ssize(box.children));
    if (from != box.children.end() && end.character > 0) {
        target.append(splitParagraph(document, **from, end.character));
        ++from;
    }
    std::move(from, box.children.end(), std::back_inserter(target.children));
    box.children.erase(from, box.children.end());
    return rest;
}

} // namespace repair

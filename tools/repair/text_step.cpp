#include "repair/text_step.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/list_labels.h"
#include "repair/numbering.h"
#include "repair/page_end.h"
#include "repair/paragraph_edges.h"
#include "repair/paragraph_spaces.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Lists and sections within one another.
constexpr int MaximumTextDepth = 100;
// What texts mean that give no font, and drawings that give no size.
const QString DefaultTextFont = u"Times New Roman"_s;
const QString DefaultDrawingSize = u"18pt"_s;
constexpr QLatin1StringView ParagraphNames[] = {
    "fo:text-align"_L1,    "fo:margin-left"_L1, "fo:margin-right"_L1, "fo:margin-top"_L1,
    "fo:margin-bottom"_L1, "fo:text-indent"_L1, "fo:line-height"_L1,  "fo:background-color"_L1};

/// Rewrites the blocks of one text.
class BlockWriter
{
public:
    BlockWriter(Document& document, const Node& frame, TextCounts& counts)
        : m_document(document)
        , m_counts(counts)
        , m_reader(document, counts)
        , m_spaces(document, frame)
    {}

    void rewrite(Node& container, const StyleProperties& base);

private:
    struct List
    {
        QString style;
        int level = 0;
    };

    void readBlocks(const Node& parent, const List* list, int depth);
    void readList(const Node& element, const List* outer, int depth);
    void writeParagraph(const Node& paragraph, const List* list);
    void addLabel(const Node& paragraph, const Node* level, StyleProperties& style,
                  std::vector<Run>& runs);
    void writeIndent(const Node* level, const QString& paragraphStyle, bool isFirst,
                     Properties& paragraph);

    Document& m_document;
    TextCounts& m_counts;
    RunReader m_reader;
    ParagraphSpaces m_spaces;
    StyleProperties m_base;
    Node::Children m_paragraphs;
};

void BlockWriter::rewrite(Node& container, const StyleProperties& base)
{
    m_base = base;
    Node::Children old = std::move(container.children);
    container.children.clear();
    auto blocks = Node::element(u"text:section"_s);
    Node::Children others;
    for (auto& child : old) {
        const bool isText = child->name.startsWith("text:"_L1);
        (isText ? blocks->children : others).push_back(std::move(child));
    }
    readBlocks(*blocks, nullptr, 0);
    for (auto notes = m_reader.takeNotes(); !notes.empty(); notes = m_reader.takeNotes()) {
        for (const auto& note : notes) {
            readBlocks(*note, nullptr, 0);
        }
    }
    m_spaces.finish();
    container.children = std::move(m_paragraphs);
    std::move(others.begin(), others.end(), std::back_inserter(container.children));
}

void BlockWriter::readBlocks(const Node& parent, const List* list, int depth)
{
    for (const auto& child : parent.children) {
        if (depth > MaximumTextDepth || !child->name.startsWith("text:"_L1)) {
            continue;
        }
        if (isParagraph(*child)) {
            writeParagraph(*child, list);
        } else if (child->is(u"text:list")) {
            ++m_counts.lists;
            readList(*child, list, depth);
        } else if (!child->is(u"text:tracked-changes") && !child->name.endsWith("-source"_L1)) {
            m_counts.sections += child->is(u"text:section") ? 1 : 0;
            readBlocks(*child, list, depth + 1);
        }
    }
}

void BlockWriter::readList(const Node& element, const List* outer, int depth)
{
    List list;
    list.style = element.attribute(u"text:style-name");
    list.level = outer != nullptr ? outer->level + 1 : 1;
    if (list.style.isEmpty() && outer != nullptr) {
        list.style = outer->style;
    }
    for (const auto& item : element.children) {
        if (!item->isText()) {
            readBlocks(*item, &list, depth + 1);
        }
    }
}

void BlockWriter::addLabel(const Node& paragraph, const Node* level, StyleProperties& style,
                           std::vector<Run>& runs)
{
    const QString label = paragraph.attribute(LabelAttribute);
    writeIndent(level, paragraph.attribute(u"text:style-name"),
                paragraph.hasAttribute(LabelAttribute), style.paragraph);
    if (!label.isEmpty()) {
        const StyleProperties shown = labelStyle(style, level);
        const double room = -toPoints(style.paragraph.value(u"fo:text-indent"_s)).value_or(0.0);
        runs.insert(runs.begin(),
                    {shown, label + labelGap(m_document.table(), level, shown.text, label, room)});
    }
}

void BlockWriter::writeIndent(const Node* level, const QString& paragraphStyle, bool isFirst,
                              Properties& paragraph)
{
    const Indent indent = level != nullptr ? indentOf(*level) : Indent{18.0, -18.0};
    double margin = indent.margin;
    double first = isFirst ? indent.first : 0.0;
    if (indent.canBeReplaced) {
        const Properties own = m_document.table().indentOverList(paragraphStyle);
        margin = toPoints(own.value(u"fo:margin-left"_s)).value_or(margin);
        first = toPoints(own.value(u"fo:text-indent"_s)).value_or(first);
    } else {
        margin += toPoints(paragraph.value(u"fo:margin-left"_s)).value_or(0.0);
    }
    paragraph.insert(u"fo:margin-left"_s, toInches(margin));
    paragraph.insert(u"fo:text-indent"_s, toInches(first));
}

// What a break between pages must not separate.
void writeKeeps(const Properties& style, Node& paragraph)
{
    if (style.value(u"fo:keep-with-next"_s) == "always"_L1) {
        paragraph.setAttribute(KeepAttribute, u"true"_s);
    }
    if (const QString orphans = style.value(u"fo:orphans"_s); orphans.toInt() > 0) {
        paragraph.setAttribute(OrphansAttribute, orphans);
    }
    if (const QString widows = style.value(u"fo:widows"_s); widows.toInt() > 0) {
        paragraph.setAttribute(WidowsAttribute, widows);
    }
}

void BlockWriter::writeParagraph(const Node& paragraph, const List* list)
{
    StyleProperties style = m_base;
    style.overlay(m_document.table().resolved(
        u"paragraph"_s, paragraph.attribute(u"text:style-name"), m_document.wasText));
    std::vector<Run> runs = m_reader.read(paragraph, style);
    const StyleTable& table = m_document.table();
    if (list != nullptr) {
        addLabel(paragraph, levelIn(listStyle(table, list->style), list->level), style, runs);
    } else if (paragraph.hasAttribute(LabelAttribute)) {
        const int level = paragraph.attribute(u"text:outline-level").toInt();
        addLabel(paragraph, levelIn(outlineStyle(table), std::max(level, 1)), style, runs);
    }
    const QMarginsF insets =
        m_document.wasText ? edgeInsets(style.paragraph, paragraph) : QMarginsF();
    m_spaces.join(paragraph.attribute(u"text:style-name"), style.paragraph, insets);
    StyleProperties shown;
    for (const QLatin1StringView name : ParagraphNames) {
        if (style.paragraph.contains(name)) {
            shown.paragraph.insert(name, style.paragraph.value(name));
        }
    }
    // The height of an empty paragraph, and the font of one without runs of its own.
    for (const QString& name : {u"fo:font-size"_s, u"fo:font-weight"_s, u"fo:font-style"_s}) {
        if (style.text.contains(name)) {
            shown.text.insert(name, style.text.value(name));
        }
    }
    const QString font = m_document.table().fontFamily(style.text.value(u"style:font-name"_s));
    if (!font.isEmpty()) {
        shown.text.insert(u"style:font-name"_s, font);
    }
    auto written = Node::element(u"text:p"_s);
    m_spaces.written(*written, shown);
    if (m_document.wasText) {
        writeKeeps(style.paragraph, *written);
    }
    writeRuns(m_document, *written, std::move(runs));
    m_paragraphs.push_back(std::move(written));
}

bool holdsText(const Node& node)
{
    return std::any_of(node.children.begin(), node.children.end(),
                       [](const auto& child) { return child->name.startsWith("text:"_L1); });
}

void simplifyInside(Document& document, Node& parent, const Node* frame, TextCounts& counts)
{
    for (const auto& child : parent.children) {
        if (child->name.startsWith("draw:"_L1)) {
            const Node* const owner = child->is(u"draw:text-box") ? frame : child.get();
            simplifyInside(document, *child, owner, counts);
        }
    }
    if (frame != nullptr && holdsText(parent)) {
        const Node& shape = parent.is(u"draw:text-box") ? *frame : parent;
        BlockWriter(document, shape, counts).rewrite(parent, textBase(document, shape));
    }
}

} // namespace

StyleProperties shapeStyle(const StyleTable& table, const Node& shape)
{
    StyleProperties style = table.resolved(u"graphic"_s, shape.attribute(u"draw:style-name"), true);
    if (!shape.is(u"draw:frame")) {
        style.overlay(
            table.resolved(u"paragraph"_s, shape.attribute(u"draw:text-style-name"), false));
    }
    return style;
}

StyleProperties drawingBase(const StyleTable& table, const Node& shape)
{
    StyleProperties base;
    base.text.insert(u"fo:font-size"_s, DefaultDrawingSize);
    base.overlay(shapeStyle(table, shape));
    return base;
}

StyleProperties textBase(Document& document, const Node& shape)
{
    const StyleTable& table = document.table();
    if (!document.wasText) {
        return drawingBase(table, shape);
    }
    StyleProperties base;
    base.text.insert(u"style:font-name"_s, DefaultTextFont);
    return base;
}

TextCounts simplifyTexts(Document& document)
{
    TextCounts counts;
    if (const Node* const page = document.page()) {
        for (const auto& child : page->children) {
            if (child->name.startsWith("draw:"_L1)) {
                simplifyInside(document, *child, child.get(), counts);
            }
        }
    }
    return counts;
}

} // namespace repair

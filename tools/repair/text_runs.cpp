#include "repair/text_runs.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Spaces that one text:s may represent.
constexpr int MaximumSpaces = 1000;
// Elements within one another in a paragraph.
constexpr int MaximumSpanDepth = 200;

// Neither shown nor text of this place. Objects in a text are handled elsewhere.
constexpr QLatin1StringView Skipped[] = {"office:annotation"_L1,
                                         "office:annotation-end"_L1,
                                         "text:ruby-text"_L1,
                                         "text:tracked-changes"_L1,
                                         "draw:frame"_L1,
                                         "draw:g"_L1,
                                         "draw:custom-shape"_L1,
                                         "draw:rect"_L1,
                                         "draw:line"_L1,
                                         "draw:ellipse"_L1,
                                         "draw:circle"_L1,
                                         "draw:path"_L1,
                                         "draw:polygon"_L1,
                                         "draw:polyline"_L1,
                                         "draw:connector"_L1,
                                         "draw:caption"_L1,
                                         "draw:control"_L1,
                                         "draw:measure"_L1,
                                         "draw:regular-polygon"_L1,
                                         "office:event-listeners"_L1,
                                         "text:index-title-template"_L1};
constexpr QLatin1StringView Transparent[] = {"text:meta"_L1, "text:ruby"_L1, "text:ruby-base"_L1,
                                             "text:meta-field"_L1};
// What a character style states that shows.
constexpr QLatin1StringView TextNames[] = {"fo:font-size"_L1,
                                           "style:font-name"_L1,
                                           "fo:font-weight"_L1,
                                           "fo:font-style"_L1,
                                           "fo:color"_L1,
                                           "fo:background-color"_L1,
                                           "fo:font-variant"_L1,
                                           "fo:letter-spacing"_L1,
                                           "fo:text-transform"_L1,
                                           "style:text-underline-style"_L1,
                                           "style:text-line-through-style"_L1,
                                           "style:text-position"_L1,
                                           "style:text-scale"_L1,
                                           "style:use-window-font-color"_L1};

template <std::size_t Size>
bool contains(const QLatin1StringView (&names)[Size], const QString& name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool isBlank(const QString& text)
{
    return QStringView(text).trimmed().isEmpty();
}

// Blank runs have no format of their own in the result: the reader drops them.
std::vector<Run> withoutBlankRuns(std::vector<Run> runs)
{
    std::vector<Run> joined;
    QString before;
    for (Run& run : runs) {
        if (!run.mark.isEmpty()) {
            joined.push_back(std::move(run));
        } else if (!isBlank(run.text)) {
            run.text.prepend(before);
            before.clear();
            joined.push_back(std::move(run));
        } else if (joined.empty() || !joined.back().mark.isEmpty()) {
            before += run.text;
        } else {
            joined.back().text += run.text;
        }
    }
    return joined;
}

// The reader makes an item only of text.
std::vector<Run> withMarkHolder(std::vector<Run> runs)
{
    const bool hasText =
        std::any_of(runs.begin(), runs.end(), [](const Run& run) { return run.mark.isEmpty(); });
    const bool hasRoom = std::any_of(runs.begin(), runs.end(), [](const Run& run) {
        return !run.mark.isEmpty() && takesRoom(run.mark);
    });
    if (hasRoom && !hasText) {
        Run holder{runs.back().style, MarkHolder};
        holder.isHolder = true;
        runs.push_back(std::move(holder));
    }
    return runs;
}

} // namespace

std::vector<Run> RunReader::read(const Node& paragraph, const StyleProperties& base)
{
    m_runs.clear();
    m_endsInBlank = true;
    readInside(paragraph, base, 0);
    return std::move(m_runs);
}

void RunReader::readInside(const Node& parent, const StyleProperties& style, int depth)
{
    for (const auto& child : parent.children) {
        if (child->isText()) {
            addText(child->text, style);
        } else if (depth < MaximumSpanDepth) {
            readElement(*child, style, depth + 1);
        }
    }
}

void RunReader::readElement(const Node& element, const StyleProperties& style, int depth)
{
    if (element.is(u"text:span")) {
        StyleProperties inner = style;
        inner.overlay(
            m_document.table().resolved(u"text"_s, element.attribute(u"text:style-name"), false));
        if (inner.text.value(u"text:display"_s) == "none"_L1) {
            return;
        }
        m_counts.fields += depth > 1 ? 1 : 0;
        readInside(element, inner, depth);
    } else if (element.is(u"text:a")) {
        readLink(element, style, depth);
    } else if (element.is(u"text:s")) {
        const int count =
            element.hasAttribute(u"text:c") ? element.attribute(u"text:c").toInt() : 1;
        ++m_counts.blanks;
        add(QString(std::clamp(count, 0, MaximumSpaces), u' '), style);
    } else if (element.is(u"text:tab")) {
        add(u"\t"_s, style);
    } else if (element.is(u"text:line-break")) {
        ++m_counts.blanks;
        add(QString(QChar::LineSeparator), style);
        m_endsInBlank = true;
    } else if (element.is(u"text:note")) {
        readNote(element, style);
    } else if (element.is(MarkElement)) {
        addMark(element, style);
    } else if (element.is(u"text:variable-set") || element.is(u"text:variable-get")) {
        readVariable(element, style, depth);
    } else if (element.is(u"text:page-number")) {
        ++m_counts.fields;
        add(QString::number(m_document.pageNumber), style);
    } else if (!contains(Skipped, element.name) && !isHidden(element)) {
        m_counts.fields += contains(Transparent, element.name) || !element.children.empty() ? 1 : 0;
        readInside(element, style, depth);
    }
}

// A variable shows the value that was set last before it, which may not be the stored text.
void RunReader::readVariable(const Node& element, const StyleProperties& style, int depth)
{
    const QString name = element.attribute(u"text:name");
    ++m_counts.fields;
    if (element.is(u"text:variable-set")) {
        m_variables.insert(name, element.allText());
    } else if (m_variables.contains(name) && element.attribute(u"text:display") != "formula"_L1) {
        add(m_variables.value(name), style);
        return;
    }
    if (element.attribute(u"text:display") != "none"_L1) {
        readInside(element, style, depth);
    }
}

// Office programs give links a style of their own, even if the link does not name it.
void RunReader::readLink(const Node& link, const StyleProperties& style, int depth)
{
    const QString named = link.attribute(u"text:style-name");
    StyleProperties inner = style;
    inner.overlay(m_document.table().resolved(
        u"text"_s, named.isEmpty() ? u"Internet_20_link"_s : named, false));
    ++m_counts.fields;
    readInside(link, inner, depth);
}

void RunReader::readNote(const Node& note, const StyleProperties& style)
{
    ++m_counts.notes;
    const Node* const citation = note.child(u"text:note-citation");
    const QString mark = citation != nullptr ? citation->allText() : QString();
    StyleProperties raised = style;
    raised.text.insert(u"style:text-position"_s, u"super 58%"_s);
    add(mark, raised);
    const Node* const body = note.child(u"text:note-body");
    if (body != nullptr && !body->children.empty()) {
        auto copy = body->clone();
        if (Node* const first = copy->firstElement()) {
            first->children.insert(first->children.begin(), Node::characters(mark + u' '));
        }
        m_notes.push_back(std::move(copy));
    }
}

// Blanks, tabs and line ends in the file are one blank; at the start of a paragraph none.
void RunReader::addText(const QString& text, const StyleProperties& style)
{
    QString collapsed;
    collapsed.reserve(text.size());
    for (const QChar character : text) {
        const bool blank =
            character == u' ' || character == u'\n' || character == u'\t' || character == u'\r';
        if (!blank) {
            collapsed += character;
        } else if (!m_endsInBlank) {
            collapsed += u' ';
        }
        m_endsInBlank = blank;
    }
    m_counts.blanks += !collapsed.isEmpty() && isBlank(collapsed) ? 1 : 0;
    add(collapsed, style);
}

void RunReader::add(const QString& text, const StyleProperties& style)
{
    if (text.isEmpty()) {
        return;
    }
    m_endsInBlank = text.back() == u' ';
    if (!m_runs.empty() && m_runs.back().mark.isEmpty() && m_runs.back().style.text == style.text) {
        m_runs.back().text += text;
    } else {
        m_runs.push_back({style, text});
    }
}

void RunReader::addMark(const Node& mark, const StyleProperties& style)
{
    const QStringList values{mark.attribute(u"key"), mark.attribute(u"width"),
                             mark.attribute(u"height"), mark.attribute(u"side")};
    m_runs.push_back({style, QString(), values.join(u' ')});
    // A blank after an object in its line separates it from the next word.
    m_endsInBlank = m_endsInBlank && values.constLast() != "none"_L1;
}

void writeRuns(Document& document, Node& paragraph, std::vector<Run> runs)
{
    paragraph.children.clear();
    QStringList marks;
    for (const Run& run : withMarkHolder(withoutBlankRuns(std::move(runs)))) {
        if (!run.mark.isEmpty()) {
            marks.append(run.mark);
            continue;
        }
        StyleProperties shown;
        for (const QLatin1StringView name : TextNames) {
            if (run.style.text.contains(name)) {
                shown.text.insert(name, run.style.text.value(name));
            }
        }
        const QString declared = run.style.text.value(u"style:font-name"_s);
        const QString family = declared.isEmpty()
                                   ? shownFamily(run.style.text.value(u"fo:font-family"_s))
                                   : document.table().fontFamily(declared);
        if (!family.isEmpty()) {
            shown.text.insert(u"style:font-name"_s, family);
        }
        Node& span = paragraph.append(Node::element(u"text:span"_s));
        span.setAttribute(u"text:style-name"_s, document.styleFor(u"text"_s, shown));
        span.append(Node::characters(run.text));
        if (run.isHolder) {
            span.setAttribute(HolderAttribute, u"true"_s);
        }
        if (!marks.isEmpty()) {
            span.setAttribute(MarksAttribute, marks.join(u';'));
            marks.clear();
        }
    }
    if (!marks.isEmpty()) {
        paragraph.setAttribute(MarksAttribute, marks.join(u';'));
    }
}

} // namespace repair

#include "repair/numbering.h"

#include "repair/anchored_shapes.h"
#include "repair/list_labels.h"
#include "repair/styles.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr int LevelCount = 10; // the format has no more
constexpr int NotCounted = -1;

/// The last number of each level of a list.
using Counters = std::array<int, LevelCount>;

constexpr Counters fresh()
{
    Counters counters{};
    counters.fill(NotCounted);
    return counters;
}

struct List
{
    QString style;
    int level = 0;
    Counters* counters = nullptr;
    int start = NotCounted; ///< of the item that is open
    bool isNewItem = false;
};

int numberAttribute(const Node& node, QStringView name, int otherwise)
{
    bool isNumber = false;
    const int number = node.attribute(name).toInt(&isNumber);
    return isNumber && number >= 0 ? number : otherwise;
}

class LabelWriter
{
public:
    LabelWriter(const StyleTable& table, const Node* outline)
        : m_table(table)
        , m_outline(outline)
    {}

    void write(const Node& parent, List* list);
    [[nodiscard]] int numberedHeadings() const { return m_headings; }

private:
    void writeList(const Node& element, const List* outer);
    void writeLabel(Node& paragraph, List* list);
    [[nodiscard]] bool isNumbered(const Node& heading, int level) const;

    const StyleTable& m_table;
    const Node* const m_outline;
    std::map<QString, Counters> m_lists; // by style: a later list may continue it
    Counters m_counters = fresh();       // of the headings
    int m_headings = 0;
};

// Counts an item, and forgets the numbers of deeper levels.
void countItem(Counters& counters, int level, int start, const Node* style)
{
    int& number = counters.at(static_cast<std::size_t>(level - 1));
    const Node* const levelNode = levelIn(style, level);
    const int first =
        levelNode != nullptr ? numberAttribute(*levelNode, u"text:start-value", 1) : 1;
    number = start != NotCounted ? start : number != NotCounted ? number + 1 : first;
    std::fill(counters.begin() + level, counters.end(), NotCounted);
}

// The number of a level, after those of the levels above that the style shows with it: "2.1".
QString shownNumber(const Counters& counters, int level, const Node* style)
{
    const int shown =
        std::clamp(numberAttribute(*levelIn(style, level), u"text:display-levels", 1), 1, level);
    QStringList parts;
    for (int i = level - shown + 1; i <= level; ++i) {
        const Node* const node = levelIn(style, i);
        const int counted = counters.at(static_cast<std::size_t>(i - 1));
        const QString part =
            node == nullptr
                ? QString()
                : numberText(counted != NotCounted ? counted
                                                   : numberAttribute(*node, u"text:start-value", 1),
                             node->attribute(u"style:num-format"));
        if (!part.isEmpty()) {
            parts.append(part);
        }
    }
    return parts.join(u'.');
}

QString labelOf(const Counters& counters, int level, const Node* style)
{
    const Node* const node = levelIn(style, level);
    if (node == nullptr) {
        return u"\u2022"_s;
    }
    const QString bullet = bulletText(node->attribute(u"text:bullet-char"));
    return bullet.isEmpty()
               ? node->attribute(u"style:num-prefix") + shownNumber(counters, level, style) +
                     node->attribute(u"style:num-suffix")
               : bullet;
}

// Notes and frames inside a paragraph are texts of their own; deleted text does not count.
void LabelWriter::write(const Node& parent, List* list)
{
    for (const auto& child : parent.children) {
        if (isParagraph(*child)) {
            writeLabel(*child, list);
            write(*child, nullptr);
        } else if (child->is(u"text:list")) {
            writeList(*child, list);
        } else if (!child->is(u"text:tracked-changes")) {
            write(*child, child->name.startsWith("text:"_L1) ? list : nullptr);
        }
    }
}

void LabelWriter::writeList(const Node& element, const List* outer)
{
    List list;
    list.style = element.attribute(u"text:style-name");
    list.level = outer != nullptr ? std::min(outer->level + 1, LevelCount) : 1;
    if (list.style.isEmpty() && outer != nullptr) {
        list.style = outer->style;
    }
    if (outer != nullptr) {
        list.counters = outer->counters;
    } else {
        list.counters = &m_lists.try_emplace(list.style, fresh()).first->second;
        const bool continues = element.attribute(u"text:continue-numbering") == "true"_L1 ||
                               element.hasAttribute(u"text:continue-list"_s);
        if (!continues) {
            *list.counters = fresh();
        }
    }
    for (const auto& item : element.children) {
        list.isNewItem = item->is(u"text:list-item");
        list.start = numberAttribute(*item, u"text:start-value", NotCounted);
        write(*item, &list);
    }
}

bool LabelWriter::isNumbered(const Node& heading, int level) const
{
    const Node* const node = levelIn(m_outline, level);
    if (node == nullptr || node->attribute(u"style:num-format").isEmpty() ||
        heading.attribute(u"text:is-list-header") == "true"_L1) {
        return false;
    }
    // A style that takes the list away makes a heading without a number.
    const StyleProperties style =
        m_table.resolved(u"paragraph"_s, heading.attribute(u"text:style-name"), false);
    return !style.list || !style.list->isEmpty();
}

void LabelWriter::writeLabel(Node& paragraph, List* list)
{
    paragraph.removeAttribute(LabelAttribute);
    if (list != nullptr) {
        if (std::exchange(list->isNewItem, false)) {
            const Node* const style = listStyle(m_table, list->style);
            countItem(*list->counters, list->level, list->start, style);
            paragraph.setAttribute(LabelAttribute, labelOf(*list->counters, list->level, style));
        }
        return;
    }
    const int level = numberAttribute(paragraph, u"text:outline-level", 1);
    if (paragraph.is(u"text:h") && level >= 1 && level <= LevelCount &&
        isNumbered(paragraph, level)) {
        const int start = paragraph.attribute(u"text:restart-numbering") == "true"_L1
                              ? numberAttribute(paragraph, u"text:start-value", 1)
                              : NotCounted;
        countItem(m_counters, level, start, m_outline);
        paragraph.setAttribute(LabelAttribute, labelOf(m_counters, level, m_outline));
        ++m_headings;
    }
}

} // namespace

int writeLabels(const StyleTable& table, const Node* outline, Node& root)
{
    LabelWriter writer(table, outline);
    writer.write(root, nullptr);
    return writer.numberedHeadings();
}

} // namespace repair

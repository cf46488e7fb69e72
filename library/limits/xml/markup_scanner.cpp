#include "limits/xml/markup_scanner.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace xmllimits {

namespace {

// The parser's own limit for the expansion of one entity, in characters, and the most
// elements that fit into it.
constexpr qint64 EntityCharacters = 4096;
constexpr qint64 EntityElements = EntityCharacters / 4;
// The shortest declaration of an attribute's default value.
constexpr qint64 AttributeDefaultCharacters = 8;

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

bool isPredefinedReference(QByteArrayView text)
{
    static constexpr std::array Predefined = {"#", "amp;", "lt;", "gt;", "quot;", "apos;"};
    return std::any_of(Predefined.begin(), Predefined.end(),
                       [text](const char* name) { return text.startsWith(name); });
}

/// One scan of a document's bytes.
class Scanner
{
public:
    Scanner(const QByteArray& utf8, qint64 treeBytes, const TreeCosts& costs)
        : m_text(utf8)
        , m_treeBytes(treeBytes)
        , m_costs(costs)
    {}

    std::optional<Excess> run();

private:
    [[nodiscard]] bool at(const char* start) const { return m_text.sliced(m_at).startsWith(start); }
    [[nodiscard]] bool isAtEnd() const { return m_at >= m_text.size(); }
    qsizetype moveAfter(const char* end, qsizetype from);
    void readText();
    void readMarkup();
    void readDeclaration();
    void readStartTag();
    void readDoctype();
    void readSubsetPart(QByteArrayView& quoted);
    void noteEntityText(QByteArrayView quoted);
    qsizetype skipQuoted();
    void countReferences(QByteArrayView text);
    void countElement(qint64 attributes);
    void countNode(qint64 characters);
    void check(bool exceeded, const char* message, qint64 limit);

    QByteArrayView m_text;
    qint64 m_treeBytes;
    TreeCosts m_costs;
    qsizetype m_at = 0;
    qsizetype m_markupStart = 0;
    qint64 m_depth = 0;
    qint64 m_estimate = 0;
    bool m_hasSubset = false;
    bool m_entitiesHoldMarkup = false;
    qint64 m_entityCharacters = 0;
    qint64 m_defaultAttributes = 0;
    std::optional<Excess> m_excess;
};

std::optional<Excess> Scanner::run()
{
    while (!isAtEnd() && !m_excess) {
        readText();
        if (!isAtEnd()) {
            readMarkup();
        }
        check(m_estimate > m_treeBytes,
              "The document is too large: its tree would take more than "
              "%1 bytes",
              m_treeBytes);
    }
    return m_excess;
}

void Scanner::check(bool exceeded, const char* message, qint64 limit)
{
    if (exceeded && !m_excess) {
        m_excess = Excess{QString::fromLatin1(message).arg(limit), m_markupStart};
    }
}

// Moves after the next `end`, or to the end of the text if there is none.
qsizetype Scanner::moveAfter(const char* end, qsizetype from)
{
    const QByteArrayView wanted(end);
    const qsizetype found = from <= m_text.size() ? m_text.indexOf(wanted, from) : -1;
    m_at = found < 0 ? m_text.size() : found + wanted.size();
    return m_at;
}

void Scanner::readText()
{
    const qsizetype start = m_at;
    const qsizetype markup = m_text.indexOf('<', start);
    m_at = markup < 0 ? m_text.size() : markup;
    const QByteArrayView text = m_text.sliced(start, m_at - start);
    // The tree leaves out white space between elements.
    if (!std::all_of(text.begin(), text.end(), isBlank)) {
        countNode(text.size());
    }
    countReferences(text);
}

// Most markup is tags: the rare kinds are tested last.
void Scanner::readMarkup()
{
    m_markupStart = m_at;
    const char kind = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
    if (kind == '/') {
        moveAfter(">", m_at + 2);
        --m_depth;
    } else if (kind == '!') {
        readDeclaration();
    } else if (kind == '?') {
        countNode(moveAfter("?>", m_at + 2) - m_markupStart);
    } else {
        readStartTag();
    }
}

void Scanner::readDeclaration()
{
    if (at("<!--")) {
        countNode(moveAfter("-->", m_at + 4) - m_markupStart);
    } else if (at("<![CDATA[")) {
        countNode(moveAfter("]]>", m_at + 9) - m_markupStart);
    } else {
        readDoctype();
    }
}

void Scanner::countNode(qint64 characters)
{
    m_estimate += m_costs.node + m_costs.character * characters;
}

// At a quotation mark: moves past the closing one and returns the length in between.
qsizetype Scanner::skipQuoted()
{
    const char quote[] = {m_text[m_at], '\0'};
    const qsizetype start = m_at + 1;
    return std::max<qsizetype>(0, moveAfter(quote, start) - 1 - start);
}

void Scanner::readStartTag()
{
    qint64 attributes = 0;
    bool isEmpty = false;
    for (++m_at; !isAtEnd() && m_text[m_at] != '>';) {
        const char c = m_text[m_at];
        isEmpty = c == '/';
        attributes += c == '=' ? 1 : 0;
        if (c == '"' || c == '\'') {
            const qsizetype start = m_at + 1;
            const qsizetype length = skipQuoted();
            m_estimate += m_costs.character * length;
            countReferences(m_text.sliced(std::min(start, m_text.size()), length));
        } else {
            ++m_at;
        }
    }
    ++m_at;
    check(m_depth + 1 > MaximumDepth, "Elements are nested deeper than %1", MaximumDepth);
    check(attributes > MaximumAttributes, "An element has more than %1 attributes",
          MaximumAttributes);
    countElement(attributes);
    m_depth += isEmpty ? 0 : 1;
}

void Scanner::countElement(qint64 attributes)
{
    const qint64 all = attributes + m_defaultAttributes;
    m_estimate += m_costs.node + (all > 0 ? m_costs.attributeTable : 0) + m_costs.attribute * all;
}

// Only a document type can declare entities, so other documents have none to expand.
void Scanner::countReferences(QByteArrayView text)
{
    if (!m_hasSubset) {
        return;
    }
    for (qsizetype i = text.indexOf('&'); i >= 0 && m_estimate <= m_treeBytes;
         i = text.indexOf('&', i + 1)) {
        if (isPredefinedReference(text.sliced(i + 1))) {
            continue;
        }
        m_estimate += m_costs.node + m_costs.character * m_entityCharacters;
        if (m_entitiesHoldMarkup) {
            const qint64 attributes = 1 + m_defaultAttributes;
            m_estimate += EntityElements * (m_costs.node + m_costs.attribute * attributes);
        }
    }
}

void Scanner::noteEntityText(QByteArrayView quoted)
{
    // A reference in an entity's text may become markup: "&#60;" is "<".
    static constexpr std::array<char, 3> MayBecomeMarkup = {'<', '&', '%'};
    m_entitiesHoldMarkup =
        m_entitiesHoldMarkup || std::any_of(MayBecomeMarkup.begin(), MayBecomeMarkup.end(),
                                            [quoted](char c) { return quoted.contains(c); });
    m_entityCharacters =
        std::min(EntityCharacters, std::max<qint64>(m_entityCharacters, quoted.size()));
}

// One comment, instruction, quoted text or character of a document type.
void Scanner::readSubsetPart(QByteArrayView& quoted)
{
    const char c = m_text[m_at];
    if (at("<!--")) {
        moveAfter("-->", m_at + 4);
    } else if (at("<?")) {
        moveAfter("?>", m_at + 2);
    } else if (c == '"' || c == '\'') {
        const qsizetype start = std::min(m_at + 1, m_text.size());
        quoted = m_text.sliced(start, skipQuoted());
    } else {
        m_estimate += at("<!") ? m_costs.node : 0;
        ++m_at;
    }
}

void Scanner::readDoctype()
{
    qsizetype subset = -1;
    for (m_at += 2; !isAtEnd();) {
        const char c = m_text[m_at];
        if (c == '[' && subset < 0) {
            subset = m_at;
        } else if (subset < 0 ? c == '>' : c == ']') {
            break;
        }
        QByteArrayView quoted;
        readSubsetPart(quoted);
        if (subset >= 0) {
            noteEntityText(quoted);
        }
    }
    if (subset >= 0) {
        m_hasSubset = true;
        const QByteArrayView text = m_text.sliced(subset, m_at - subset);
        const qint64 expanded = text.size() + EntityCharacters * text.count('%');
        const bool mayDefault = text.contains('%') || text.indexOf("<!ATTLIST") >= 0;
        m_defaultAttributes =
            mayDefault ? std::min(m_treeBytes, expanded / AttributeDefaultCharacters) : 0;
        m_estimate += expanded * m_costs.character;
    }
    moveAfter(">", m_at);
}

} // namespace

std::optional<Excess> findExcess(const QByteArray& utf8, qint64 treeBytes, const TreeCosts& costs)
{
    return Scanner(utf8, treeBytes, costs).run();
}

Position positionOf(const QByteArray& utf8, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(utf8).first(std::min(offset, utf8.size()));
    Position position;
    position.line += before.count('\n');
    const QByteArrayView line = before.sliced(before.lastIndexOf('\n') + 1);
    position.column += std::count_if(
        line.begin(), line.end(), [](char c) { return (static_cast<uchar>(c) & 0xC0U) != 0x80U; });
    return position;
}

} // namespace xmllimits

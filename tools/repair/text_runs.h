#pragma once

#include "repair/styles.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace repair {

class Document;
class Node;

/// Characters of one format.
struct Run
{
    StyleProperties style;
    QString text;
    /// The mark of an object, in the form of MarksAttribute; then there is no text.
    QString mark = {};
    /// Whether the text is only there because the reader makes an item only of text.
    bool isHolder = false;
};

/// What was replaced in the texts of a document.
struct TextCounts
{
    int blanks = 0; ///< spaces, tabs, line breaks that the reader drops
    int fields = 0; ///< fields, links, nested spans
    int lists = 0;
    int sections = 0;
    int notes = 0;
};

/// Reads the content of paragraphs: blanks are collapsed as the format says, spaces, tabs and
/// line breaks become characters, fields and links their text.
class RunReader
{
public:
    RunReader(Document& document, TextCounts& counts)
        : m_document(document)
        , m_counts(counts)
    {}

    [[nodiscard]] std::vector<Run> read(const Node& paragraph, const StyleProperties& base);
    /// The bodies of notes since the last call.
    [[nodiscard]] std::vector<std::unique_ptr<Node>> takeNotes() { return std::move(m_notes); }

private:
    void readInside(const Node& parent, const StyleProperties& style, int depth);
    void readElement(const Node& element, const StyleProperties& style, int depth);
    void readLink(const Node& link, const StyleProperties& style, int depth);
    void readVariable(const Node& element, const StyleProperties& style, int depth);
    void readNote(const Node& note, const StyleProperties& style);
    void addText(const QString& text, const StyleProperties& style);
    void add(const QString& text, const StyleProperties& style);
    void addMark(const Node& mark, const StyleProperties& style);

    Document& m_document;
    TextCounts& m_counts;
    std::vector<Run> m_runs;
    std::vector<std::unique_ptr<Node>> m_notes;
    bool m_endsInBlank = true;
    QHash<QString, QString> m_variables; // values that the text has set
};

/// Replaces what a paragraph contains by runs, so that the reader loses no blank: text that is
/// only blank joins its neighbor.
void writeRuns(Document& document, Node& paragraph, std::vector<Run> runs);

} // namespace repair

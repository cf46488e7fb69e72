#pragma once

#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QMarginsF>
#include <QString>

namespace repair {

class Document;

/// What the settings of a text document say about the spaces between its paragraphs and lines.
struct SpaceRules
{
    bool addUp = true;   ///< between two paragraphs; otherwise the larger one counts
    bool atStart = true; ///< above the first paragraph of a page, cell or frame
    bool inCells = true; ///< below the last paragraph of a cell
    bool inLines = true; ///< the gap of the font, in the height of a line
};

[[nodiscard]] SpaceRules readSpaceRules(const Document& document);

/// The spaces between the paragraphs of one text: what is written always adds up.
class ParagraphSpaces
{
public:
    /// @param frame that contains the text; every paragraph of a drawing keeps its spaces
    ParagraphSpaces(Document& document, const Node& frame);

    /// Writes the space above a paragraph into its style, and takes back that below the one before
    /// if the two are to have none between them.
    ///
    /// @param styleName of the paragraph in the document
    /// @param insets    of its border
    void join(const QString& styleName, Properties& paragraph, const QMarginsF& insets);
    /// Gives the paragraph its style, which was joined last, with the insets.
    void written(Node& paragraph, const StyleProperties& shown);
    /// No paragraph follows.
    void finish();

private:
    void takeBackBelow();

    Document& m_document;
    const bool m_isJoined;
    const bool m_isAtStart;
    const bool m_isCell;
    const bool m_flows;
    // Of the paragraph before:
    Node* m_paragraph = nullptr;
    StyleProperties m_shown;
    QString m_named;
    bool m_isContextual = false;
    QMarginsF m_insets;
};

} // namespace repair

#pragma once

#include "repair/text_anchor.h"
#include "repair/xml_tree.h"

#include <QString>

#include <memory>
#include <vector>

namespace repair {

class Document;

// An object in a text leaves a mark. After the import, a mark is an invisible picture as large as
// the object: lines leave room for it, and the layout of the text decides where the object is.

/// The element of a mark in a paragraph, with the attributes key, width, height (points) and side:
/// left, right, none for an object in its line, page for one that needs no room, note for a note.
inline const QString MarkElement = QLatin1String("labelport:mark");
/// Marks before a span, or at the end of a paragraph: "key width height side", separated by ";".
inline const QString MarksAttribute = QLatin1String("labelport:marks");
/// Whether a mark, in the form of MarksAttribute, is a character of the text.
[[nodiscard]] bool takesRoom(const QString& mark);
/// The text of a paragraph that has marks and no words: the reader makes no item without text.
inline constexpr QChar MarkHolder = QChar(0x200B);
/// Of a span: its text is a MarkHolder, not the same character of the document.
inline const QString HolderAttribute = QLatin1String("labelport:holder");

/// An object below its paragraph.
struct LoweredShape
{
    std::unique_ptr<Node> shape;
    /// Points from the paragraph's last line to the object; other text may be between them.
    double distance = 0.0;
};

/// The objects of a paragraph or list.
struct TakenShapes
{
    Node::Children anchored; ///< with marks, or with a place on the page
    Node::Children above;    ///< that the lines do not run beside
    std::vector<LoweredShape> below;
    bool hasPageBreak = false;
};

/// Takes the objects out of a paragraph or list.
///
/// @param inRows whether objects may come above and below the text; otherwise all are anchored
[[nodiscard]] TakenShapes takeShapes(Document& document, Node& block, const TextPlace& place,
                                     bool inRows);

/// The same for all paragraphs of a cell, header, or frame.
[[nodiscard]] Node::Children takeAllShapes(Document& document, Node& container,
                                           const TextPlace& place);

[[nodiscard]] bool isShape(const Node& node);
[[nodiscard]] bool isParagraph(const Node& node);
/// The paragraph that gives a block its breaks between pages: the first one of a list.
[[nodiscard]] const Node& firstParagraph(const Node& block);
[[nodiscard]] const Node& lastParagraph(const Node& block);

} // namespace repair

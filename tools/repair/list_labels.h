#pragma once

#include "repair/styles.h"

#include <QString>

namespace repair {

class Node;

/// Points from the left side of the text: all lines, and the first one in addition.
struct Indent
{
    double margin = 0.0;
    double first = 0.0;
    /// Whether paragraphs may state others. Otherwise theirs are added.
    bool canBeReplaced = false;
};

/// A bullet as a character that every font has: symbol fonts, which may be missing, have theirs in
/// the private area of Unicode.
[[nodiscard]] QString bulletText(const QString& character);

/// A list item's number in the format of a list style: digits, letters or Roman numerals.
[[nodiscard]] QString numberText(int number, const QString& format);
/// The style of a list, and that of headings; null if it is unknown.
[[nodiscard]] const Node* listStyle(const StyleTable& table, const QString& name);
[[nodiscard]] const Node* outlineStyle(const StyleTable& table);
/// A level of such a style: bullet, number or picture; null if it is unknown.
[[nodiscard]] const Node* levelIn(const Node* style, int level);
[[nodiscard]] Indent indentOf(const Node& level);

/// The style of a bullet or number of a level, which is not underlined with its paragraph and may
/// have a size of its own.
[[nodiscard]] StyleProperties labelStyle(StyleProperties style, const Node* level);
/// Blanks between a bullet or number and its text, which begins where the other lines do if the
/// level states nothing else. Tabs would jump to the layout's own stops.
///
/// @param level may be null
/// @param room of both, in points
[[nodiscard]] QString labelGap(const StyleTable& table, const Node* level, const Properties& text,
                               const QString& label, double room);

} // namespace repair

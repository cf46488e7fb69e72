#pragma once

#include <QString>

namespace repair {

class Node;
class StyleTable;

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
/// The style of a list's level: bullet, number or picture; null if it is unknown.
[[nodiscard]] const Node* levelStyle(const StyleTable& table, const QString& list, int level);
[[nodiscard]] Indent indentOf(const Node& level);

} // namespace repair

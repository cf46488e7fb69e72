#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace xmllimits {

/// Deepest nesting of elements. Qt's tree takes quadratic time in the depth: 300,000 nested
/// elements keep it busy for minutes. Real labels have fewer than 30 levels.
inline constexpr int MaximumDepth = 1000;

/// Most attributes of one element. The parser compares every attribute of an element with all
/// before it. Real elements have fewer than 40.
inline constexpr int MaximumAttributes = 1000;

/// A limit that a document exceeds, and where.
struct Excess
{
    QString message;
    qsizetype offset = 0; ///< in bytes
};

/// Memory of the parts of a tree in bytes, for the worst case of each.
struct TreeCosts
{
    qint64 node;           ///< an element, a text, a comment, an instruction
    qint64 attributeTable; ///< once for an element that has attributes
    qint64 attribute;
    qint64 character; ///< of texts and values
};

/// QDomDocument in Qt 6.4, measured.
inline constexpr TreeCosts DomCosts{320, 1500, 500, 2};
/// ElementTree: a record in a table that doubles when it is full, and a name that occurs only
/// once; characters in such a table.
inline constexpr TreeCosts CompactCosts{180, 0, 170, 6};

/// A position in a text: the line from 1, the column from 0, as Qt's parser counts them.
struct Position
{
    qint64 line = 1;
    qint64 column = 0;
};

/// Scans a document once, without building anything, and returns the first limit that it
/// exceeds: depth, attributes of one element, or memory of the complete tree.
///
/// Exact up to the document's first error, where a parser stops; markup after an error may be
/// counted wrongly.
///
/// @param utf8      the document
/// @param treeBytes the memory that its tree may take
/// @param costs     what the parts of its tree take
[[nodiscard]] std::optional<Excess> findExcess(const QByteArray& utf8, qint64 treeBytes,
                                               const TreeCosts& costs = DomCosts);

/// The position of a byte offset in a text.
[[nodiscard]] Position positionOf(const QByteArray& utf8, qsizetype offset);

} // namespace xmllimits

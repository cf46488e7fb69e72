#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace xmlbounds {

/// A bound that a document exceeds, and where.
struct Excess
{
    QString message;
    qsizetype offset = 0; ///< in bytes
};

/// What the parts of a tree take, in bytes, by the worst that each can be.
struct TreeCosts
{
    qint64 node;           ///< an element, a text, a comment, an instruction
    qint64 attributeTable; ///< once for an element that has attributes
    qint64 attribute;
    qint64 character; ///< of texts and values
};

/// QDomDocument in Qt 6.4, measured.
inline constexpr TreeCosts DomCosts{320, 1500, 500, 2};
/// ElementTree: a record in a table that doubles when it is full, and a name that is like
/// no other; characters in such a table.
inline constexpr TreeCosts CompactCosts{180, 0, 170, 6};

/// A place in a text: the line from 1, the column from 0, as Qt's parser counts them.
struct Place
{
    qint64 line = 1;
    qint64 column = 0;
};

/// Goes through a document once, without building anything, and gives the first bound
/// that it exceeds: depth, attributes of one element, or memory of the whole tree.
///
/// Exact for everything that precedes a document's first fault, where a parser stops;
/// what follows a fault may be counted wrongly.
///
/// @param utf8      the document
/// @param treeBytes the memory that its tree may take
/// @param costs     what the parts of its tree take
[[nodiscard]] std::optional<Excess> findExcess(const QByteArray& utf8, qint64 treeBytes,
                                               const TreeCosts& costs = DomCosts);

/// The place of an offset in a text.
[[nodiscard]] Place placeOf(const QByteArray& utf8, qsizetype offset);

} // namespace xmlbounds

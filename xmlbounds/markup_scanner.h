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
[[nodiscard]] std::optional<Excess> findExcess(const QByteArray& utf8, qint64 treeBytes);

/// The place of an offset in a text.
[[nodiscard]] Place placeOf(const QByteArray& utf8, qsizetype offset);

} // namespace xmlbounds

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class QDomDocument;

/// Parses XML of unknown origin into a document tree, within bounds.
namespace xmlbounds {

/// Deepest nesting of elements that is accepted. Qt's tree takes quadratic time in the
/// depth: 300,000 nested elements keep it busy for minutes. Real labels stay below 30.
inline constexpr int MaximumDepth = 1000;

/// Most attributes that one element may have. The parser compares every attribute of an
/// element with all before it. Real elements stay below 40.
inline constexpr int MaximumAttributes = 1000;

/// Most memory, in bytes, that the tree may take by our estimate. An element of four
/// bytes in a file takes 300 in the tree, one with an attribute 2,000, so that a few
/// megabytes of file could fill the memory of a small machine.
inline constexpr qint64 MaximumTreeBytes = 600LL << 20;

/// Why a document was refused.
struct ParseFailure
{
    QString message;
    qint64 line = 0;   ///< from 1
    qint64 column = 0; ///< from 0, as Qt's parser counts it
};

/// Parses bytes as QDomDocument::setContent() does with its default options, after
/// checking the bounds. External entities are never loaded, and an entity that expands
/// beyond 4096 characters is refused.
///
/// @param bytes     the document in any encoding that its declaration names
/// @param document  filled on success; empty after a failure
/// @param treeBytes the memory that the tree may take, where it is to be less than usual
/// @return nothing on success, else the parser's own message and place, or ours where a
///         bound is exceeded
[[nodiscard]] std::optional<ParseFailure>
parseDocument(const QByteArray& bytes, QDomDocument& document, qint64 treeBytes = MaximumTreeBytes);

} // namespace xmlbounds

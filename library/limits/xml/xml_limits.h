#pragma once

#include "limits/xml/markup_scanner.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QDomDocument;

/// Checks and parses XML of unknown origin.
namespace xmllimits {

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

/// Checks a document's limits in every encoding that a parser may choose: the bytes as they
/// are, the encoding that the first bytes indicate (UTF-16, UTF-32), and the one that the
/// declaration names.
///
/// @return the first limit that is exceeded, and where; nothing if the document may be parsed
[[nodiscard]] std::optional<ParseFailure> exceededLimit(const QByteArray& bytes, qint64 treeBytes,
                                                        const TreeCosts& costs);

/// Parses bytes as QDomDocument::setContent() does with its default options, after
/// checking the limits. External entities are never loaded, and an entity that expands
/// beyond 4096 characters is refused.
///
/// @param bytes     the document in any encoding that its declaration names
/// @param document  filled on success; empty after a failure
/// @param treeBytes the memory that the tree may take
/// @return nothing on success, else the parser's message and position, or ours if a limit is
///         exceeded
[[nodiscard]] std::optional<ParseFailure>
parseDocument(const QByteArray& bytes, QDomDocument& document, qint64 treeBytes = MaximumTreeBytes);

} // namespace xmllimits

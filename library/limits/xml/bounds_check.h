#pragma once

#include "limits/xml/bounded_document.h"
#include "limits/xml/markup_scanner.h"

namespace xmlbounds {

/// Checks a document's bounds in every reading that its bytes allow.
/// @return the first bound that is exceeded, and where; nothing when a parser may see it
[[nodiscard]] std::optional<ParseFailure> exceededBound(const QByteArray& bytes, qint64 treeBytes,
                                                        const TreeCosts& costs);

} // namespace xmlbounds

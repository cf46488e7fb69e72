#pragma once

#include "limits/xml/element_tree.h"

#include <QString>

#include <optional>

namespace opendocument {

/// The page attributes of a document, as written.
struct PageLayout
{
    std::optional<QString> width;
    std::optional<QString> height; ///< empty if there is no width
    bool portrait = true;
};

/// Reads the first page layout of a styles document.
/// @param root the root of the styles document
[[nodiscard]] PageLayout readPageLayout(const xmllimits::Element& root);

} // namespace opendocument

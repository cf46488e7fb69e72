#pragma once

#include "limits/xml/element_tree.h"

#include <QString>

#include <optional>

namespace opendocument {

/// What a document says of its pages, as written.
struct PageLayout
{
    std::optional<QString> width;
    std::optional<QString> height; ///< never without a width
    bool portrait = true;
};

/// Reads the first page layout of a styles document.
/// @param root the root of the styles document
[[nodiscard]] PageLayout readPageLayout(const xmllimits::Element& root);

} // namespace opendocument

#pragma once

class QDomElement;

namespace orvanta {

/// The page of a label, in points. A label that states no size is six inches wide and four
/// high.
struct LabelPage
{
    double width = 432.0;
    double height = 288.0;
    bool higherThanWide = false;
};

/// Reads the page from the `printable_control` of the root element.
[[nodiscard]] LabelPage readLabelPage(const QDomElement& root);

} // namespace orvanta

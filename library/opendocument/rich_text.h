#pragma once

#include "limits/xml/element_tree.h"
#include "opendocument/text_style.h"

#include <QMap>
#include <QString>

namespace opendocument {

using TextStyles = QMap<QString, OOTextStyle>;

/// The styles for writing a text.
struct TextStyling
{
    const TextStyles& styles;        ///< by name
    const OOTextStyle& defaultStyle; ///< for unknown names
    double pointsPerPixel = 1.0;     ///< factor for font sizes in HTML

    /// The style that an element names, or the fallback if it names no known style.
    [[nodiscard]] const OOTextStyle& styleOf(const xmllimits::Element& element,
                                             const OOTextStyle& otherwise) const;
};

/// A shape's text as HTML.
struct RichText
{
    QString html;
    bool isBlank = true;  ///< nothing but white space
    qsizetype length = 0; ///< characters of text, without markup
};

/// The child paragraphs of an element, as an HTML document in Qt's format.
[[nodiscard]] RichText toRichText(const xmllimits::Element& shape, const TextStyling& styling);

/// Whether an element contains text by its tag: a paragraph, heading, span, date or time.
[[nodiscard]] bool holdsText(const xmllimits::Element& element);

} // namespace opendocument

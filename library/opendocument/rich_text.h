#pragma once

#include "limits/xml/element_tree.h"
#include "opendocument/text_style.h"

#include <QMap>
#include <QString>

namespace opendocument {

using TextStyles = QMap<QString, OOTextStyle>;

/// The styles that a text is written with.
struct TextStyling
{
    const TextStyles& styles;        ///< by name
    const OOTextStyle& defaultStyle; ///< for names that are not known
    double pointsPerPixel = 1.0;     ///< what font sizes in HTML are multiplied by

    /// The style that an element names, or another where it names none that is known.
    [[nodiscard]] const OOTextStyle& styleOf(const xmllimits::Element& element,
                                             const OOTextStyle& otherwise) const;
};

/// A shape's text as HTML.
struct RichText
{
    QString html;
    bool isBlank = true;  ///< no text but white space
    qsizetype length = 0; ///< characters of text, without the markup
};

/// The paragraphs directly inside an element, as an HTML document of Qt's own kind.
[[nodiscard]] RichText toRichText(const xmllimits::Element& shape, const TextStyling& styling);

/// Whether an element's tag is one that holds text: a paragraph, heading, span, date or time.
[[nodiscard]] bool holdsText(const xmllimits::Element& element);

} // namespace opendocument

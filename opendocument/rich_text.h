#pragma once

#include "opendocument/text_style.h"

#include <QMap>
#include <QString>

class QDomElement;

namespace opendocument {

using TextStyles = QMap<QString, OOTextStyle>;

/// The styles that a text is written with.
struct TextStyling
{
    const TextStyles& styles;        ///< by name
    const OOTextStyle& defaultStyle; ///< for names that are not known
    double pointsPerPixel = 1.0;     ///< what font sizes in HTML are multiplied by

    /// The style that an element names, or another where it names none that is known.
    [[nodiscard]] const OOTextStyle& styleOf(const QDomElement& element,
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
[[nodiscard]] RichText toRichText(const QDomElement& shape, const TextStyling& styling);

/// Whether an element's tag is one that holds text: a paragraph, heading, span, date or time.
[[nodiscard]] bool holdsText(const QDomElement& element);

/// All text inside an element, as QDomElement::text() gives it, but in linear time however
/// deep it lies.
[[nodiscard]] QString textOf(const QDomElement& element);

} // namespace opendocument

#pragma once

#include "opendocument/text_style.h"

#include <QString>

namespace opendocument {

/// Whether a fragment is written even if the enclosing element already has the same value.
enum class Fragment { IfDifferent, Always };

/// The fragments of CSS for the differences of a text style from a base style, which the
/// enclosing element already specifies. Each is empty if there is no difference.
class StyleFragments
{
public:
    /// @param pointsPerPixel factor for font sizes
    StyleFragments(const OOTextStyle& style, const OOTextStyle& base, double pointsPerPixel,
                   Fragment when = Fragment::IfDifferent);

    [[nodiscard]] QString family() const;
    [[nodiscard]] QString size() const;
    [[nodiscard]] QString weight() const;
    [[nodiscard]] QString slant() const;
    [[nodiscard]] QString decoration() const;
    /// The alignment as an attribute of a paragraph.
    [[nodiscard]] QString alignmentAttribute() const;

private:
    const OOTextStyle& m_style;
    const OOTextStyle& m_base;
    double m_pointsPerPixel;
    bool m_always;
};

} // namespace opendocument

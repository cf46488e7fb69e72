#pragma once

#include "opendocument/text_style.h"

#include <QString>

namespace opendocument {

/// Whether a fragment is written although the enclosing element already says the same.
enum class Fragment { IfDifferent, Always };

/// The fragments of CSS that tell how a text style differs from a base style, which the
/// enclosing element already states. Each is empty when there is no difference.
class StyleFragments
{
public:
    /// @param pointsPerPixel what font sizes are multiplied by
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

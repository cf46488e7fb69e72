#pragma once

#include "repair/gradient.h"
#include "repair/styles.h"

#include <QPainterPath>
#include <QString>

namespace repair {

/// Writes the insides of outlines as SVG: colors, gradients, hatches.
class FillWriter
{
public:
    /// The elements that fill a path, given in points on the page.
    [[nodiscard]] QString fill(const QPainterPath& path, const Properties& graphic,
                               const StyleTable& table);
    /// The gradients that the elements refer to.
    [[nodiscard]] const QString& definitions() const { return m_gradients.definitions(); }

private:
    [[nodiscard]] QString gradient(const QPainterPath& path, const Node& gradient,
                                   const QString& attributes);
    [[nodiscard]] QString transparency(const QPainterPath& path, const QString& color,
                                       const Node& opacity);

    GradientWriter m_gradients;
};

/// A color as "#rrggbb"; the other one if the text is not a color.
[[nodiscard]] QString colorName(const QString& text, const QString& otherwise);

} // namespace repair

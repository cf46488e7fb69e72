#pragma once

#include <QPainterPath>
#include <QString>

#include <functional>

namespace repair {

class Node;

/// The two ends of a gradient, as color stops at an offset. The first is the edge of a round or
/// square gradient, and the middle of an axial one.
struct GradientEnds
{
    std::function<QString(double)> first;
    std::function<QString(double)> last;
    /// Whether nothing below shines through.
    bool isOpaque = true;
};

/// Fills paths with gradients of a document.
class GradientWriter
{
public:
    /// The SVG elements that fill a path.
    [[nodiscard]] QString paint(const QPainterPath& path, const Node& gradient,
                                const QString& attributes, const GradientEnds& ends);
    /// The gradients that the elements refer to.
    [[nodiscard]] const QString& definitions() const { return m_definitions; }

private:
    [[nodiscard]] QString paintNested(const QPainterPath& path, const Node& gradient,
                                      const QString& attributes, const GradientEnds& ends);
    [[nodiscard]] QString newId();

    QString m_definitions;
    int m_count = 0;
};

/// The angle of a gradient or hatch, counter-clockwise in degrees.
[[nodiscard]] double angleOf(const Node& node, QStringView attribute);

/// An SVG element that is filled with a color or a gradient.
[[nodiscard]] QString filledPath(const QPainterPath& path, const QString& fill,
                                 const QString& attributes);

} // namespace repair

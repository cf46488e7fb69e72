#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <optional>

/// Makes a drawing harmless that comes from a file nobody vouches for.
namespace workbench::symbols {

/// What the outermost element says about the drawing's size.
struct SvgRoot
{
    QString width;
    QString height;
    QString viewBox;
    QString aspectRatio;
};

/// A drawing that names nothing outside itself and whose cost is bounded.
struct SafeSvg
{
    SvgRoot root;
    /// Further attributes of the outermost element and all that stands in it, as XML text:
    /// what follows `<svg` once the size is written.
    QString body;

    /// The whole document with the given size attributes.
    [[nodiscard]] QByteArray document(const QString& sizeAttributes) const;
};

/// Copies what may stay: elements of SVG without scripts, animations, foreign content,
/// processing instructions and document type, without references to files or networks, with
/// lengths in user units. Nothing when the text is no SVG or too large.
[[nodiscard]] std::optional<SafeSvg> sanitizeSvg(const QByteArray& svg);

} // namespace workbench::symbols

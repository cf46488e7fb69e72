#pragma once

#include "limits/svg/svg_attribute_filter.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Makes SVG documents of unknown origin safe for Qt's renderer.
namespace svglimits {

/// The size of a drawing as its outermost element gives it.
struct SvgRoot
{
    QString width;
    QString height;
    QString viewBox;
    QString aspectRatio;
};

/// A drawing that refers to nothing outside itself and whose rendering cost is limited.
struct SafeSvg
{
    SvgRoot root;
    /// The other attributes of the outermost element and its content, as XML text: everything
    /// after the size attributes.
    QString body;

    /// The complete document with the size that it came with.
    [[nodiscard]] QByteArray document() const;
    /// The complete document with other size attributes: XML text that begins with a space.
    [[nodiscard]] QByteArray document(const QString& sizeAttributes) const;
};

/// Copies a document without scripts, animations, foreign content, processing instructions,
/// document type, and references to files or networks.
///
/// @return nothing if the text is not SVG or exceeds a limit
[[nodiscard]] std::optional<SafeSvg> sanitizeSvg(const QByteArray& svg,
                                                 LengthUnits units = LengthUnits::UserUnits);

} // namespace svglimits

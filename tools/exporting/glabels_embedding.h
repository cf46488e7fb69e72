#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>

/// Pictures and drawings in the forms in which gLabels embeds them.
namespace exporting {

/// Longest embedded picture or drawing, in bytes of the document: libxml2, with which gLabels reads
/// it, accepts texts of up to ten million bytes.
inline constexpr qint64 MaximumEmbedded = 9'500'000;

/// The drawing with a size in small units and without proportions of its own, so that it fills any
/// box exactly.
[[nodiscard]] QByteArray stretched(QByteArray svg, const QSizeF& size);

/// The picture as RGB or RGBA bytes, scaled down if it has too many to be embedded.
[[nodiscard]] QImage embeddable(const QImage& picture);

/// Such a picture, serialized as GdkPixdata.
[[nodiscard]] QByteArray pixdataOf(const QImage& picture);

} // namespace exporting

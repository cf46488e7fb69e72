#pragma once

#include "orvanta/elements.h"

#include <QByteArray>

/// The bytes of an embedded picture.
namespace orvanta {

/// The bytes in the first `content` child of an element, decoded from base64. Characters that are
/// not base64 are skipped; empty if nothing is left.
[[nodiscard]] QByteArray readPictureContent(const Element& parent);

/// The bytes without a leading UTF-8 byte-order mark.
[[nodiscard]] QByteArray withoutByteOrderMark(QByteArray bytes);

/// Whether the bytes are an SVG picture: they begin with exactly "<svg". With white space, an XML
/// declaration or capitals at the start, they are a raster picture; old labels depend on it.
[[nodiscard]] bool isSvg(const QByteArray& bytes);

/// An SVG picture without the additions of the source's serializer: a namespace prefix, and a view
/// box without size, with which it would draw nothing.
[[nodiscard]] QByteArray cleanedSvg(QByteArray svg);

} // namespace orvanta

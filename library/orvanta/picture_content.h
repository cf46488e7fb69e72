#pragma once

#include <QByteArray>

class QDomElement;

/// The bytes of an embedded picture, before anybody draws them.
namespace orvanta {

/// The bytes that the first `content` child of an element holds in base64. Characters
/// that are no base64 are skipped; empty when nothing is left.
[[nodiscard]] QByteArray readPictureContent(const QDomElement& parent);

/// The bytes without a UTF-8 byte-order mark in front.
[[nodiscard]] QByteArray withoutByteOrderMark(QByteArray bytes);

/// Whether the bytes are an SVG picture: they begin with exactly "<svg". White space, an XML
/// declaration or capitals in front make a picture a raster one; old labels depend on it.
[[nodiscard]] bool isSvg(const QByteArray& bytes);

/// An SVG picture without what the source's serialiser added: a namespace prefix and a view
/// box of no size, which would draw nothing.
[[nodiscard]] QByteArray cleanedSvg(QByteArray svg);

} // namespace orvanta

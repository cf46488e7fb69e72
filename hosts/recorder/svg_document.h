#pragma once

#include <QByteArray>
#include <QSizeF>

namespace recorder {

/// What the recording host wants to know of an SVG document: whether it is one, and its
/// size. Nothing that the document refers to is opened.
class SvgDocument
{
public:
    explicit SvgDocument(const QByteArray& bytes);

    /// Whether the renderer takes the document.
    [[nodiscard]] bool isValid() const { return m_valid; }
    /// The size that the document has by itself, in its own units; 0 by 0 when it is not
    /// valid.
    [[nodiscard]] QSizeF defaultSize() const { return m_size; }

private:
    bool m_valid = false;
    QSizeF m_size{0, 0};
};

/// The same document without anything that a renderer would open or load: style sheets,
/// document types, pictures that are not inside the document.
///
/// Empty when the bytes are no well-formed XML, or when the renderer could take unbounded
/// time over them: too large in any respect, or multiplied by copies of copies.
[[nodiscard]] QByteArray selfContainedSvg(const QByteArray& bytes);

} // namespace recorder

#pragma once

#include <QByteArray>
#include <QSizeF>

namespace recorder {

/// Whether an SVG document can be rendered, and its size. Nothing that the document refers to
/// is opened.
class SvgDocument
{
public:
    explicit SvgDocument(const QByteArray& bytes);

    /// Whether the document is within the limits and the renderer accepts it.
    [[nodiscard]] bool isValid() const { return m_valid; }
    /// The document's own size in its own units; 0 by 0 if it is not valid.
    [[nodiscard]] QSizeF defaultSize() const { return m_size; }

private:
    bool m_valid = false;
    QSizeF m_size{0, 0};
};

} // namespace recorder

#pragma once

#include <QImage>
#include <QString>

namespace workbench {

class Canvas;

/// Largest picture of a page: pixels per side, and in total.
inline constexpr int MaximumImageSide = 20'000;
inline constexpr qint64 MaximumImagePixels = 150'000'000;

/// A picture, or the user-visible reason why there is none.
struct PageImage
{
    QImage image;
    QString error;
};

/// Paints the page at a resolution in dots per inch. The picture stores the resolution
/// and has at least one pixel.
[[nodiscard]] PageImage renderPage(const Canvas& canvas, double dpi);

/// Writes the picture as PNG. Atomic: on failure an existing file is unchanged.
/// Returns the user-visible error; empty on success.
[[nodiscard]] QString writePng(const QImage& image, const QString& fileName);

} // namespace workbench

#pragma once

#include <QImage>
#include <QString>

namespace workbench {

class Canvas;

/// Largest picture that is made of a page: pixels along one side, and all together.
inline constexpr int kMaximumImageSide = 20'000;
inline constexpr qint64 kMaximumImagePixels = 150'000'000;

/// A picture, or in plain words why there is none.
struct PageImage
{
    QImage image;
    QString error;
};

/// Paints the page at a resolution in dots per inch. The picture carries the resolution
/// and has at least one pixel.
[[nodiscard]] PageImage renderPage(const Canvas& canvas, double dpi);

/// Writes the picture as PNG. The file appears whole or, when something fails, stays what
/// it was. Returns in plain words what failed, else nothing.
[[nodiscard]] QString writePng(const QImage& image, const QString& fileName);

} // namespace workbench

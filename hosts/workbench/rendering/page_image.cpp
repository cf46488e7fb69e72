#include "workbench/rendering/page_image.h"

#include "workbench/canvas/canvas.h"
#include "workbench/items/units.h"
#include "workbench/pictures/atomic_save.h"
#include "workbench/pictures/png_encoder.h"
#include "workbench/rendering/page_painter.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double MetersPerInch = 0.0254;

struct PageImageTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::PageImage)
};

// Pixels as doubles: a page's size in pixels may exceed an integer.
QSizeF pixelSize(const Canvas& canvas, double dpi)
{
    const QSizeF size = canvas.page().size * (dpi / PointsPerInch);
    // Rounding errors must not add a pixel to a page of whole inches.
    return {std::max(1.0, std::ceil(size.width() - 1e-6)),
            std::max(1.0, std::ceil(size.height() - 1e-6))};
}

bool isWithinBounds(const QSizeF& pixels)
{
    return pixels.width() <= MaximumImageSide && pixels.height() <= MaximumImageSide &&
           pixels.width() * pixels.height() <= static_cast<double>(MaximumImagePixels);
}

// The largest integral resolution at which the page fits.
int largestDpi(const QSizeF& page)
{
    const double longest = std::max(page.width(), page.height());
    const double bySide = MaximumImageSide / longest;
    const double byPixels =
        std::sqrt(static_cast<double>(MaximumImagePixels) / (page.width() * page.height()));
    return static_cast<int>(std::min(bySide, byPixels) * PointsPerInch);
}

QString tooLarge(const QSizeF& page, const QSizeF& pixels, double dpi)
{
    const QString text =
        PageImageTr::tr(
            "The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots "
            "per inch. The largest picture is %6 pixels along a side and %7 million in all.")
            .arg(page.width())
            .arg(page.height())
            .arg(pixels.width(), 0, 'f', 0)
            .arg(pixels.height(), 0, 'f', 0)
            .arg(dpi)
            .arg(MaximumImageSide)
            .arg(MaximumImagePixels / 1'000'000);
    const int best = largestDpi(page);
    return best < 1 ? text
                    : text + PageImageTr::tr(" Up to %1 dots per inch are possible.").arg(best);
}

// The page may cover the last row and column only partly: fill them completely.
QColor groundOf(const Canvas& canvas)
{
    const QColor color = canvas.canvasBackgroundColor();
    return color.alpha() == 255 ? color : QColor(Qt::transparent);
}

int dotsPerMeter(double dpi)
{
    return static_cast<int>(std::lround(dpi / MetersPerInch));
}

} // namespace

PageImage renderPage(const Canvas& canvas, double dpi)
{
    if (!std::isfinite(dpi) || dpi <= 0.0) {
        return {{}, PageImageTr::tr("The resolution must be above 0 dots per inch.")};
    }
    const QSizeF pixels = pixelSize(canvas, dpi);
    if (!isWithinBounds(pixels)) {
        return {{}, tooLarge(canvas.page().size, pixels, dpi)};
    }
    QImage image(pixels.toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return {{},
                PageImageTr::tr("There is not enough memory for a picture of %1 by %2 pixels.")
                    .arg(pixels.width())
                    .arg(pixels.height())};
    }
    image.fill(groundOf(canvas));
    QPainter painter(&image);
    painter.scale(dpi / PointsPerInch, dpi / PointsPerInch);
    paintPage(painter, canvas);
    painter.end();
    // Set after painting: fonts would change their size with the resolution of the image
    // that they are painted on.
    image.setDotsPerMeterX(dotsPerMeter(dpi));
    image.setDotsPerMeterY(dotsPerMeter(dpi));
    return {image, {}};
}

QString writePng(const QImage& image, const QString& fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return PageImageTr::tr("Cannot write \"%1\": %2.").arg(fileName, file.errorString());
    }
    if (!encodePng(image, file) || !commitComplete(file)) {
        return PageImageTr::tr("Cannot write \"%1\": %2.").arg(fileName, writeError(file));
    }
    return {};
}

} // namespace workbench

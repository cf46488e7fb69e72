#include "repair/picture_fill.h"

#include "repair/document.h"
#include "repair/drawing.h"
#include "repair/lengths.h"
#include "repair/shape_steps.h"

#include <QBrush>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr double PointsPerMeter = 72.0 / 0.0254;
// Pixels per point of the painted area: 150 dpi, less if it has more pixels than this.
constexpr double PaintedScale = 150.0 / 72.0;
constexpr double PaintedPixels = 4'000'000.0;
constexpr double PaintedSide = 8'000.0;
// Points. Smaller repetitions look like a color, and take long.
constexpr double SmallestTile = 0.5;

// A length, or a share of the shape's; the picture's own where none is given.
double tileLength(const QString& text, double whole, double own)
{
    const double length =
        text.endsWith(u'%') ? shareOf(text) * whole : toPoints(text).value_or(0.0);
    return std::max(length > 0.0 ? length : own, SmallestTile);
}

QSizeF sizeOfTile(const QImage& picture, const QSizeF& box, const Properties& graphic)
{
    const QSizeF own(picture.width() * PointsPerMeter / std::max(picture.dotsPerMeterX(), 1),
                     picture.height() * PointsPerMeter / std::max(picture.dotsPerMeterY(), 1));
    return {tileLength(graphic.value(u"draw:fill-image-width"_s), box.width(), own.width()),
            tileLength(graphic.value(u"draw:fill-image-height"_s), box.height(), own.height())};
}

// Where the first tile is: at a corner, a side, or in the middle of the box.
QRectF firstTile(const QRectF& box, const QSizeF& size, const Properties& graphic)
{
    const QString point = graphic.value(u"draw:fill-image-ref-point"_s);
    const auto place = [&point](const QString& start, const QString& end, double room) {
        const double middle = room / 2.0;
        return point.contains(start) ? 0.0 : point.contains(end) ? room : middle;
    };
    const auto shift = [&graphic](const QString& name) {
        const QString text = graphic.value(name);
        return text.isEmpty() ? 0.0 : shareOf(text);
    };
    const QPointF corner(place(u"left"_s, u"right"_s, box.width() - size.width()) +
                             shift(u"draw:fill-image-ref-point-x"_s) * size.width(),
                         place(u"top"_s, u"bottom"_s, box.height() - size.height()) +
                             shift(u"draw:fill-image-ref-point-y"_s) * size.height());
    return {box.topLeft() + corner, size};
}

void paintPicture(QPainter& painter, const QImage& picture, const QRectF& box,
                  const QPainterPath& inside, const Properties& graphic)
{
    const QString repeat = graphic.value(u"style:repeat"_s);
    if (repeat == "stretch"_L1) {
        return painter.drawImage(box, picture);
    }
    const QRectF tile = firstTile(box, sizeOfTile(picture, box.size(), graphic), graphic);
    if (repeat == "no-repeat"_L1) {
        return painter.drawImage(tile, picture);
    }
    QBrush brush(picture);
    brush.setTransform(
        QTransform::fromTranslate(tile.x(), tile.y())
            .scale(tile.width() / picture.width(), tile.height() / picture.height()));
    painter.fillPath(inside, brush);
}

} // namespace

std::optional<PictureFill> pictureFill(Document& document, const std::vector<Outline>& outlines,
                                       const Properties& graphic)
{
    const Node* const fill =
        graphic.value(u"draw:fill"_s) == "bitmap"_L1
            ? document.table().named(u"draw:fill-image"_s, graphic.value(u"draw:fill-image-name"_s))
            : nullptr;
    const QImage picture =
        fill != nullptr ? readPicture(document, fill->attribute(u"xlink:href")) : QImage();
    QPainterPath inside;
    for (const Outline& outline : outlines) {
        if (outline.isFilled) {
            inside.addPath(outline.path);
        }
    }
    const QRectF box = inside.boundingRect();
    if (picture.isNull() || box.isEmpty()) {
        return std::nullopt;
    }
    const double scale =
        std::min({PaintedScale, std::sqrt(PaintedPixels / (box.width() * box.height())),
                  PaintedSide / std::max(box.width(), box.height())});
    QImage painted((box.size() * scale).toSize().expandedTo(QSize(1, 1)),
                   QImage::Format_ARGB32_Premultiplied);
    if (painted.isNull()) {
        return std::nullopt;
    }
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(painted.width() / box.width(), painted.height() / box.height());
    painter.translate(-box.topLeft());
    painter.setClipPath(inside);
    painter.setOpacity(shareOf(graphic.value(u"draw:opacity"_s, u"100%"_s)));
    paintPicture(painter, picture, box, inside, graphic);
    painter.end();
    PictureFill result{{}, box};
    QBuffer output(&result.png);
    return painted.save(&output, "PNG") ? std::optional(result) : std::nullopt;
}

} // namespace repair

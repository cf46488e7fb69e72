#include "repair/svg_path.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace repair {

QString svgNumber(double value)
{
    return QString::number(value, 'f', 3);
}

// Closed outlines say so: their first corner is joined, too.
QString toSvgPath(const QPainterPath& path)
{
    QString data;
    QPointF start;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            start = element;
            data += u'M';
            break;
        case QPainterPath::LineToElement:
            data += u'L';
            break;
        case QPainterPath::CurveToElement:
            data += u'C';
            break;
        case QPainterPath::CurveToDataElement:
            data += u' ';
            break;
        }
        data += svgNumber(element.x) + u' ' + svgNumber(element.y);
        const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
        if (isLast && QPointF(element) == start && !element.isMoveTo()) {
            data += u'Z';
        }
    }
    return data;
}

// The center of the ellipse from two of its points, as the SVG recommendation derives it.
void addSvgArc(QPainterPath& path, const QSizeF& radii, double rotation, bool isLarge,
               bool isClockwise, const QPointF& end)
{
    double rx = std::abs(radii.width());
    double ry = std::abs(radii.height());
    if (rx <= 0.0 || ry <= 0.0 || end == path.currentPosition()) {
        path.lineTo(end);
        return;
    }
    const QTransform turn = QTransform().rotate(rotation);
    const QPointF half = turn.transposed().map((path.currentPosition() - end) / 2.0);
    const double excess = std::pow(half.x() / rx, 2) + std::pow(half.y() / ry, 2);
    const double grow = std::sqrt(std::max(1.0, excess));
    rx *= grow;
    ry *= grow;
    const double squares = std::pow(rx * half.y(), 2) + std::pow(ry * half.x(), 2);
    const double root = std::sqrt(std::max(0.0, (std::pow(rx * ry, 2) - squares) / squares));
    const double sign = isLarge == isClockwise ? -1.0 : 1.0;
    const QPointF center(sign * root * rx * half.y() / ry, -sign * root * ry * half.x() / rx);
    const double start = std::atan2((half.y() - center.y()) / ry, (half.x() - center.x()) / rx);
    double sweep = std::atan2((-half.y() - center.y()) / ry, (-half.x() - center.x()) / rx) - start;
    if (isClockwise && sweep < 0.0) {
        sweep += 2.0 * M_PI;
    } else if (!isClockwise && sweep > 0.0) {
        sweep -= 2.0 * M_PI;
    }
    const QPointF onPage = turn.map(center) + (path.currentPosition() + end) / 2.0;
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (M_PI / 2.0))));
    const double step = sweep / pieces;
    const double reach = 4.0 / 3.0 * std::tan(step / 4.0);
    const QTransform toPage =
        QTransform::fromScale(rx, ry) * turn * QTransform::fromTranslate(onPage.x(), onPage.y());
    for (int i = 0; i < pieces; ++i) {
        const double from = start + i * step;
        const double to = from + step;
        const QPointF p0(std::cos(from), std::sin(from));
        const QPointF p3(std::cos(to), std::sin(to));
        path.cubicTo(toPage.map(QPointF(p0.x() - reach * p0.y(), p0.y() + reach * p0.x())),
                     toPage.map(QPointF(p3.x() + reach * p3.y(), p3.y() - reach * p3.x())),
                     toPage.map(p3));
    }
}

} // namespace repair

#include "repair/gradient.h"

#include "repair/drawing.h"
#include "repair/lengths.h"
#include "repair/svg_path.h"
#include "repair/xml_tree.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Outlines of more elements take long to cut; their gradient is round.
constexpr int MaximumCutElements = 100;
// Of the inside of a gradient that is all border: a gradient has a length.
constexpr double SmallestInner = 0.0001;

double borderOf(const Node& gradient)
{
    return gradient.hasAttribute(u"draw:border")
               ? std::clamp(shareOf(gradient.attribute(u"draw:border")), 0.0, 1.0)
               : 0.0;
}

QString lineGradient(const QString& id, const QPointF& from, const QPointF& to,
                     const QString& stops)
{
    return u"<linearGradient id=\"%1\" gradientUnits=\"userSpaceOnUse\" x1=\"%2\" y1=\"%3\" "
           "x2=\"%4\" y2=\"%5\">%6</linearGradient>"_s.arg(id, svgNumber(from.x()),
                                                           svgNumber(from.y()), svgNumber(to.x()),
                                                           svgNumber(to.y()), stops);
}

QString linearGradient(const QString& id, const QRectF& box, double angle, const QString& stops)
{
    const double radians = angle / DegreesPerRadian;
    const QPointF direction(std::sin(radians), std::cos(radians));
    const double half =
        (std::abs(box.width() * direction.x()) + std::abs(box.height() * direction.y())) / 2.0;
    return lineGradient(id, box.center() - direction * half, box.center() + direction * half,
                        stops);
}

QPointF centerOf(const Node& gradient)
{
    const auto share = [&gradient](QStringView name) {
        return gradient.hasAttribute(name) ? shareOf(gradient.attribute(name)) : 0.5;
    };
    return {share(u"draw:cx"), share(u"draw:cy")};
}

QString radialGradient(const QString& id, const QRectF& box, const Node& gradient,
                       const QString& stops)
{
    const QPointF center = centerOf(gradient);
    const bool isRound = gradient.attribute(u"draw:style") == "radial"_L1;
    // Around the box: a circle, or an ellipse of its proportions.
    const double rx =
        isRound ? std::hypot(box.width(), box.height()) / 2.0 : box.width() / std::sqrt(2.0);
    const double ry = isRound ? rx : box.height() / std::sqrt(2.0);
    return u"<radialGradient id=\"%1\" gradientUnits=\"userSpaceOnUse\" cx=\"0\" cy=\"0\" "
           "r=\"1\" gradientTransform=\"translate(%2 %3) rotate(%4) scale(%5 %6)\">%7"
           "</radialGradient>"_s.arg(id, svgNumber(box.x() + center.x() * box.width()),
                                     svgNumber(box.y() + center.y() * box.height()),
                                     svgNumber(isRound ? 0.0 : -angleOf(gradient, u"draw:angle")),
                                     svgNumber(rx), svgNumber(ry), stops);
}

QString simpleGradient(const QString& id, const QRectF& box, const Node& gradient,
                       const GradientEnds& ends)
{
    const double border = borderOf(gradient);
    const QString style = gradient.attribute(u"draw:style");
    const double angle = angleOf(gradient, u"draw:angle");
    if (style == "linear"_L1) {
        return linearGradient(id, box, angle,
                              ends.first(0.0) + ends.first(border) + ends.last(1.0));
    }
    if (style == "axial"_L1) {
        return linearGradient(id, box, angle,
                              ends.last(0.0) + ends.last(border / 2.0) + ends.first(0.5) +
                                  ends.last(1.0 - border / 2.0) + ends.last(1.0));
    }
    return radialGradient(id, box, gradient,
                          ends.last(0.0) + ends.first(1.0 - border) + ends.first(1.0));
}

// SVG has no gradient of nested squares or rectangles. Their color changes across two opposite
// sides in the parts between the diagonals of these sides, and along the other axis elsewhere.
struct NestedBoxes
{
    QPointF center;
    // From the center to the middle of a side of the outermost box.
    QPointF across;
    QPointF down;
    // Of a rectangular gradient, the length of the inner line as a share of the box, along one
    // axis.
    double acrossRidge = 0.0;
    double downRidge = 0.0;
};

bool isNested(const Node& gradient)
{
    const QString style = gradient.attribute(u"draw:style");
    return style == "square"_L1 || style == "rectangular"_L1;
}

// The outermost box contains the filled one when it is turned.
NestedBoxes nestedBoxes(const QRectF& filled, const Node& gradient)
{
    const double angle = angleOf(gradient, u"draw:angle");
    const double cosine = std::abs(std::cos(angle / DegreesPerRadian));
    const double sine = std::abs(std::sin(angle / DegreesPerRadian));
    QSizeF size = filled.size();
    if (gradient.attribute(u"draw:style") == "square"_L1) {
        size = QSizeF(1.0, 1.0) * std::max(size.width(), size.height());
    }
    size = QSizeF(size.width() * cosine + size.height() * sine,
                  size.height() * cosine + size.width() * sine);
    const QPointF shift = centerOf(gradient) - QPointF(0.5, 0.5);
    const double inner = std::max(1.0 - borderOf(gradient), SmallestInner);
    const QTransform turn = QTransform().rotate(-angle);
    return {filled.center() + QPointF(shift.x() * filled.width(), shift.y() * filled.height()),
            turn.map(QPointF(size.width() / 2.0, 0.0)) * inner,
            turn.map(QPointF(0.0, size.height() / 2.0)) * inner,
            std::max(1.0 - size.height() / size.width(), 0.0),
            std::max(1.0 - size.width() / size.height(), 0.0)};
}

// The parts of a path where the color changes across the box. Each is a triangle with its tip at
// the end of the inner line.
QPainterPath besideDiagonals(const QPainterPath& path, const NestedBoxes& nested)
{
    const QRectF box = path.boundingRect();
    const double reach =
        std::hypot(box.width(), box.height()) +
        std::hypot(nested.center.x() - box.center().x(), nested.center.y() - box.center().y());
    const QPointF slope = nested.across * (1.0 - nested.acrossRidge);
    const QPointF rise = nested.down * (1.0 - nested.downRidge);
    const double times = 2.0 * reach / std::hypot(slope.x(), slope.y());
    QPainterPath wedges;
    for (const double side : {1.0, -1.0}) {
        const QPointF tip = nested.across * nested.acrossRidge;
        const QPointF ridge = nested.down * nested.downRidge;
        wedges.addPolygon(QPolygonF({nested.center + side * (tip - ridge),
                                     nested.center + side * (tip - ridge + (slope - rise) * times),
                                     nested.center + side * (tip + ridge + (slope + rise) * times),
                                     nested.center + side * (tip + ridge)}));
        wedges.closeSubpath();
    }
    return path.intersected(wedges);
}

} // namespace

QString GradientWriter::newId()
{
    return u"g%1"_s.arg(++m_count);
}

QString GradientWriter::paintNested(const QPainterPath& path, const Node& gradient,
                                    const QString& attributes, const GradientEnds& ends)
{
    const NestedBoxes nested = nestedBoxes(path.boundingRect(), gradient);
    const auto along = [&](const QPointF& half, double ridge) {
        const QString id = newId();
        const QString stops = ends.first(0.0) + ends.last(0.5 - ridge / 2.0) +
                              ends.last(0.5 + ridge / 2.0) + ends.first(1.0);
        m_definitions += lineGradient(id, nested.center - half, nested.center + half, stops);
        return u"url(#%1)"_s.arg(id);
    };
    const QPainterPath beside = besideDiagonals(path, nested);
    // Opaque parts overlap: the ground would shine through between their smoothed edges.
    return filledPath(ends.isOpaque ? path : path.subtracted(beside),
                      along(nested.down, nested.downRidge), attributes) +
           filledPath(beside, along(nested.across, nested.acrossRidge), attributes);
}

QString GradientWriter::paint(const QPainterPath& path, const Node& gradient,
                              const QString& attributes, const GradientEnds& ends)
{
    const QRectF box = path.boundingRect();
    if (isNested(gradient) && !box.isEmpty() && path.elementCount() <= MaximumCutElements) {
        return paintNested(path, gradient, attributes, ends);
    }
    const QString id = newId();
    m_definitions += simpleGradient(id, box, gradient, ends);
    return filledPath(path, u"url(#%1)"_s.arg(id), attributes);
}

// Degrees with a unit; without one, older documents write tenths.
double angleOf(const Node& node, QStringView attribute)
{
    const QString text = node.attribute(attribute);
    if (text.endsWith("deg"_L1)) {
        return text.chopped(3).toDouble();
    }
    if (text.endsWith("rad"_L1)) {
        return text.chopped(3).toDouble() * DegreesPerRadian;
    }
    return text.toDouble() / 10.0;
}

QString filledPath(const QPainterPath& path, const QString& fill, const QString& attributes)
{
    return u"<path fill=\"%1\" fill-rule=\"evenodd\"%2 d=\"%3\"/>"_s.arg(fill, attributes,
                                                                         toSvgPath(path));
}

} // namespace repair

#include "repair/transform.h"

#include "repair/lengths.h"
#include "repair/xml_tree.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Degrees; and the share of a side by which it may be out of square.
constexpr double NoRotation = 0.005;
constexpr double NoSkew = 0.002;

double argument(const QStringList& arguments, qsizetype index)
{
    const QString text = arguments.value(index);
    const auto length = toPoints(text);
    return length ? *length : text.toDouble();
}

QTransform transformOf(QStringView keyword, const QStringList& arguments)
{
    const double first = argument(arguments, 0);
    if (keyword == u"rotate") {
        return QTransform().rotateRadians(-first);
    }
    if (keyword == u"translate") {
        return QTransform::fromTranslate(first, argument(arguments, 1));
    }
    if (keyword == u"scale") {
        return QTransform::fromScale(first, arguments.size() > 1 ? argument(arguments, 1) : first);
    }
    if (keyword == u"skewX") {
        return {1.0, 0.0, -std::tan(first), 1.0, 0.0, 0.0};
    }
    if (keyword == u"skewY") {
        return {1.0, -std::tan(first), 0.0, 1.0, 0.0, 0.0};
    }
    if (keyword == u"matrix" && arguments.size() == 6) {
        return {first,
                argument(arguments, 1),
                argument(arguments, 2),
                argument(arguments, 3),
                argument(arguments, 4),
                argument(arguments, 5)};
    }
    return {};
}

bool isFinite(const QTransform& transform)
{
    const std::array values{transform.m11(), transform.m12(), transform.m21(),
                            transform.m22(), transform.dx(),  transform.dy()};
    for (const double value : values) {
        if (!std::isfinite(value)) {
            return false;
        }
    }
    return true;
}

} // namespace

QTransform parseTransform(const QString& text)
{
    static const QRegularExpression part(u"([a-zA-Z]+)\\s*\\(([^)]*)\\)"_s);
    static const QRegularExpression separators(u"[\\s,]+"_s);
    QTransform whole;
    for (const QRegularExpressionMatch& match : part.globalMatch(text)) {
        const QStringList arguments = match.captured(2).split(separators, Qt::SkipEmptyParts);
        whole *= transformOf(match.capturedView(1), arguments);
    }
    return isFinite(whole) ? whole : QTransform();
}

Placement placementOf(const Node& shape)
{
    const QSizeF size(pointsOf(shape, u"svg:width"), pointsOf(shape, u"svg:height"));
    const QTransform position =
        QTransform::fromTranslate(pointsOf(shape, u"svg:x"), pointsOf(shape, u"svg:y"));
    return {size, position * parseTransform(shape.attribute(u"draw:transform"))};
}

std::optional<RotatedBox> toRotatedBox(const Placement& placement)
{
    const QTransform& map = placement.toPage;
    const double across = std::hypot(map.m11(), map.m12());
    const double down = std::hypot(map.m21(), map.m22());
    const double product = map.m11() * map.m21() + map.m12() * map.m22();
    if (map.determinant() <= 0.0 || std::abs(product) > NoSkew * across * down) {
        return std::nullopt;
    }
    const QSizeF size(placement.size.width() * across, placement.size.height() * down);
    const QPointF center =
        map.map(QPointF(placement.size.width() / 2.0, placement.size.height() / 2.0));
    QRectF box(QPointF(), size);
    box.moveCenter(center);
    return RotatedBox{box, std::atan2(map.m12(), map.m11()) * DegreesPerRadian};
}

void writePlacement(Node& shape, const Placement& placement)
{
    const auto number = [](double value) { return QString::number(value, 'f', 9); };
    const QTransform& map = placement.toPage;
    shape.setAttribute(u"svg:width"_s, toInches(placement.size.width()));
    shape.setAttribute(u"svg:height"_s, toInches(placement.size.height()));
    shape.removeAttribute(u"svg:x");
    shape.removeAttribute(u"svg:y");
    shape.setAttribute(u"draw:transform"_s,
                       u"matrix (%1 %2 %3 %4 %5 %6)"_s.arg(number(map.m11()), number(map.m12()),
                                                           number(map.m21()), number(map.m22()),
                                                           toInches(map.dx()), toInches(map.dy())));
}

void writeBox(Node& shape, const RotatedBox& placed)
{
    shape.setAttribute(u"svg:width"_s, toInches(placed.box.width()));
    shape.setAttribute(u"svg:height"_s, toInches(placed.box.height()));
    shape.removeAttribute(u"draw:transform");
    if (std::abs(placed.rotation) < NoRotation) {
        shape.setAttribute(u"svg:x"_s, toInches(placed.box.x()));
        shape.setAttribute(u"svg:y"_s, toInches(placed.box.y()));
        return;
    }
    shape.removeAttribute(u"svg:x");
    shape.removeAttribute(u"svg:y");
    shape.setAttribute(u"draw:transform"_s,
                       u"rotate (%1) translate (%2 %3)"_s.arg(
                           QString::number(-placed.rotation / DegreesPerRadian, 'f', 9),
                           toInches(placed.box.x()), toInches(placed.box.y())));
}

} // namespace repair

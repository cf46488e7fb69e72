#include "migration/census/open_document_geometry.h"

#include <QStringList>
#include <QTransform>

#include <array>
#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct Unit
{
    QLatin1String suffix;
    double points;
};

constexpr std::array Units{
    Unit{"in"_L1, 72.0}, Unit{"cm"_L1, 72.0 / 2.54}, Unit{"mm"_L1, 72.0 / 25.4},
    Unit{"pt"_L1, 1.0},  Unit{"pc"_L1, 12.0},        Unit{"px"_L1, 0.75},
};

// Angles are counter-clockwise, while the axis of ordinates points down.
QTransform operation(QStringView name, const QList<double>& values)
{
    const auto value = [&values](qsizetype index) { return values.value(index, 0.0); };
    if (name == "rotate"_L1) {
        const double sine = std::sin(value(0));
        const double cosine = std::cos(value(0));
        return {cosine, -sine, sine, cosine, 0.0, 0.0};
    }
    if (name == "translate"_L1) {
        return QTransform::fromTranslate(value(0), value(1));
    }
    if (name == "scale"_L1) {
        return QTransform::fromScale(value(0), values.value(1, value(0)));
    }
    if (name == "skewX"_L1) {
        return {1.0, 0.0, -std::tan(value(0)), 1.0, 0.0, 0.0};
    }
    if (name == "skewY"_L1) {
        return {1.0, -std::tan(value(0)), 0.0, 1.0, 0.0, 0.0};
    }
    if (name == "matrix"_L1) {
        return {value(0), value(1), value(2), value(3), value(4), value(5)};
    }
    return {};
}

QTransform transformOf(QStringView text)
{
    QTransform transform;
    for (const QStringView part : text.split(u')', Qt::SkipEmptyParts)) {
        const qsizetype opening = part.indexOf(u'(');
        if (opening < 0) {
            continue;
        }
        QList<double> values;
        const QString numbers = part.sliced(opening + 1).toString().replace(u',', u' ');
        for (const QString& number : numbers.split(u' ', Qt::SkipEmptyParts)) {
            values.append(lengthInPoints(number).value_or(number.toDouble()));
        }
        transform *= operation(part.left(opening).trimmed(), values);
    }
    return transform;
}

std::optional<double> lengthOf(const QXmlStreamAttributes& attributes, QLatin1String name)
{
    return lengthInPoints(attributes.value(name));
}

// Only a translation gives a position.
bool isMoved(QStringView transform)
{
    return transform.contains("translate"_L1) || transform.contains("matrix"_L1);
}

/// Whether an object without a size has an outline.
enum class MissingSize : quint8 { HasNone, IsZero };

QPolygonF untransformed(const QXmlStreamAttributes& attributes, bool isPlaced, MissingSize missing)
{
    if (attributes.hasAttribute("svg:x1"_L1)) {
        const QPointF from(lengthOf(attributes, "svg:x1"_L1).value_or(0.0),
                           lengthOf(attributes, "svg:y1"_L1).value_or(0.0));
        const QPointF to(lengthOf(attributes, "svg:x2"_L1).value_or(0.0),
                         lengthOf(attributes, "svg:y2"_L1).value_or(0.0));
        return QPolygonF({from, to});
    }
    const auto x = lengthOf(attributes, "svg:x"_L1);
    const auto y = lengthOf(attributes, "svg:y"_L1);
    auto width = lengthOf(attributes, "svg:width"_L1);
    auto height = lengthOf(attributes, "svg:height"_L1);
    if (missing == MissingSize::IsZero) {
        width = width.value_or(0.0);
        height = height.value_or(0.0);
    }
    if (!width || !height || (!isPlaced && (!x || !y))) {
        return {};
    }
    const QRectF box(x.value_or(0.0), y.value_or(0.0), *width, *height);
    return QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
}

QPolygonF outline(const QXmlStreamAttributes& attributes, MissingSize missing)
{
    const QStringView transform = attributes.value("draw:transform"_L1);
    const QPolygonF corners = untransformed(attributes, isMoved(transform), missing);
    return transform.isEmpty() ? corners : transformOf(transform).map(corners);
}

} // namespace

std::optional<double> lengthInPoints(QStringView length)
{
    for (const Unit& unit : Units) {
        if (length.endsWith(unit.suffix)) {
            bool isNumber = false;
            const double number = length.chopped(2).toDouble(&isNumber);
            return isNumber && std::isfinite(number) ? std::optional(number * unit.points)
                                                     : std::nullopt;
        }
    }
    return std::nullopt;
}

QPolygonF outlineOf(const QXmlStreamAttributes& attributes)
{
    return outline(attributes, MissingSize::HasNone);
}

std::optional<QRectF> boxOf(const QXmlStreamAttributes& attributes)
{
    const QPolygonF corners = outline(attributes, MissingSize::IsZero);
    if (corners.isEmpty()) {
        return std::nullopt;
    }
    constexpr double millimeters = 25.4 / 72.0;
    const QRectF box = corners.boundingRect();
    return QRectF(box.topLeft() * millimeters, box.size() * millimeters);
}

} // namespace migration

#include "migration/census/open_document_geometry.h"

#include <QStringView>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct Unit
{
    QLatin1String name;
    double millimeters;
};

constexpr std::array Units{Unit{"mm"_L1, 1.0},        Unit{"cm"_L1, 10.0},
                           Unit{"in"_L1, 25.4},       Unit{"pt"_L1, 25.4 / 72.0},
                           Unit{"pc"_L1, 25.4 / 6.0}, Unit{"px"_L1, 25.4 / 96.0}};

// Nothing for a text that is not a finite length with a known unit.
std::optional<double> millimetersOf(QStringView length)
{
    const QStringView text = length.trimmed();
    for (const Unit& unit : Units) {
        bool isNumber = false;
        const double number =
            text.endsWith(unit.name) ? text.chopped(unit.name.size()).toDouble(&isNumber) : 0.0;
        if (isNumber && std::isfinite(number)) {
            return number * unit.millimeters;
        }
    }
    return std::nullopt;
}

// Rotations and translations, which are applied in the order of the text.
std::optional<QTransform> transformOf(QStringView text)
{
    QTransform transform;
    bool isMoved = false;
    for (const QStringView part : text.split(u')', Qt::SkipEmptyParts)) {
        const qsizetype bracket = part.indexOf(u'(');
        const QStringView name = part.left(std::max<qsizetype>(bracket, 0)).trimmed();
        const QList<QStringView> values =
            part.mid(bracket + 1).trimmed().split(u' ', Qt::SkipEmptyParts);
        if (name == "rotate"_L1) {
            // Counterclockwise in the document, where the y axis points down.
            const double angle = values.value(0).toDouble();
            transform *= QTransform().rotateRadians(std::isfinite(angle) ? -angle : 0.0);
        } else if (name == "translate"_L1) {
            const std::optional<double> x = millimetersOf(values.value(0));
            const std::optional<double> y = millimetersOf(values.value(1));
            transform *= QTransform::fromTranslate(x.value_or(0.0), y.value_or(0.0));
            isMoved = x.has_value();
        }
    }
    return isMoved ? std::optional(transform) : std::nullopt;
}

} // namespace

std::optional<QRectF> boxOf(const QXmlStreamAttributes& attributes)
{
    const auto length = [&attributes](QLatin1String name) {
        return millimetersOf(attributes.value(name));
    };
    const std::optional<double> x1 = length("svg:x1"_L1);
    const std::optional<double> y1 = length("svg:y1"_L1);
    if (x1 && y1) {
        const QPointF end(length("svg:x2"_L1).value_or(*x1), length("svg:y2"_L1).value_or(*y1));
        return QRectF(QPointF(*x1, *y1), end).normalized();
    }
    const QSizeF size(length("svg:width"_L1).value_or(0.0), length("svg:height"_L1).value_or(0.0));
    if (const auto transform = transformOf(attributes.value("draw:transform"_L1))) {
        return transform->mapRect(QRectF(QPointF(0.0, 0.0), size));
    }
    const std::optional<double> x = length("svg:x"_L1);
    const std::optional<double> y = length("svg:y"_L1);
    return x && y ? std::optional(QRectF(QPointF(*x, *y), size)) : std::nullopt;
}

} // namespace migration

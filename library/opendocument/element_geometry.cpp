#include "opendocument/element_geometry.h"

#include "opendocument/numbers.h"

#include "host/services/basic_conversions.h"

#include <QStringList>
#include <QTransform>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double ZPerIndex = 1000.0;

QString withoutParentheses(QString text)
{
    return text.remove(u'(').remove(u')');
}

// Documents rotate counterclockwise in radians, items clockwise in degrees.
void readRotate(const QString& argument, double& rotation)
{
    if (const auto radians = toNumber(withoutParentheses(argument))) {
        rotation = BasicConversions::normalizeAngle(-(*radians * DegreesPerRadian));
    }
}

double readTranslate(const QString& argument, double unitFactor)
{
    return toLength(withoutParentheses(argument), unitFactor).value_or(0.0);
}

void readTransform(const QString& transform, double unitFactor, Geometry& geometry)
{
    const QStringList parts = transform.split(u' ');
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        if (parts[i] == "rotate"_L1) {
            readRotate(parts[++i], geometry.rotation);
        } else if (parts[i] == "translate"_L1) {
            const double x = readTranslate(parts[++i], unitFactor);
            const double y = readTranslate(parts.value(++i), unitFactor);
            geometry.position = {x, y};
        }
    }
}

} // namespace

void readStackingOrder(const xmllimits::Element& element, Geometry& geometry)
{
    bool isInteger = false;
    const int index = element.attribute(u"draw:z-index"_s).toInt(&isInteger);
    if (isInteger) {
        geometry.z = index * ZPerIndex;
    }
}

void readGeometry(const xmllimits::Element& element, double unitFactor, Geometry& geometry)
{
    readLength(element, u"svg:width"_s, unitFactor, geometry.size.rwidth());
    readLength(element, u"svg:height"_s, unitFactor, geometry.size.rheight());
    readLength(element, u"svg:x"_s, unitFactor, geometry.position.rx());
    readLength(element, u"svg:y"_s, unitFactor, geometry.position.ry());
    readStackingOrder(element, geometry);
    readTransform(element.attribute(u"draw:transform"_s), unitFactor, geometry);
}

QPointF positionInRotatedBox(const Geometry& geometry, const QSizeF& textSize)
{
    const QPointF boxCenter(geometry.size.width() / 2.0, geometry.size.height() / 2.0);
    const QPointF textCenter(textSize.width() / 2.0, textSize.height() / 2.0);
    const QTransform rotation = QTransform().rotate(geometry.rotation);
    return geometry.position + boxCenter + rotation.map(textCenter - boxCenter) - textCenter;
}

} // namespace opendocument

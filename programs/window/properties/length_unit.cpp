#include "window/properties/length_unit.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace window {

QString unitSymbol(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? u"in"_s : u"mm"_s;
}

QString lengthNumber(double points, LengthUnit unit)
{
    const int decimals = unit == LengthUnit::Inch ? 3 : 2;
    // Adding zero turns -0.0 into 0.0. Values that only round to -0.00 keep
    // their sign.
    return QLocale().toString(inUnit(points, unit) + 0.0, 'f', decimals);
}

QString lengthText(double points, LengthUnit unit)
{
    return lengthNumber(points, unit) + QLatin1Char(' ') + unitSymbol(unit);
}

QString areaText(double width, double height, LengthUnit unit)
{
    return lengthNumber(width, unit) + u" × "_s + lengthText(height, unit);
}

} // namespace window

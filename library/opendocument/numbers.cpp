#include "opendocument/numbers.h"

#include "numeric/plain_number.h"
#include "opendocument/code_table.h"

#include <algorithm>
#include <cmath>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

constexpr NamedCode<double> Units[] = {
    {"in"_L1, 72.0},
    {"cm"_L1, 28.346456692913385},
    // A hundred times the points of a millimeter. Old labels in millimeters depend on that scale.
    {"mm"_L1, 283.46456692913387},
    {"pc"_L1, 12.0},
};

constexpr qsizetype UnitCharacters = 2;

} // namespace

std::optional<double> toNumber(QStringView text)
{
    if (const std::optional<double> plain = plainDecimal(text)) {
        return plain;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

QStringView withoutTail(QStringView text, qsizetype count)
{
    return text.chopped(std::min(count, text.size()));
}

QString unitOf(const QString& length)
{
    return length.size() <= UnitCharacters ? length : length.last(UnitCharacters);
}

std::optional<double> pointsPerUnit(QStringView unit)
{
    return codeOf(Units, unit);
}

std::optional<double> toLength(QStringView text, double unitFactor)
{
    const auto number = toNumber(withoutTail(text, UnitCharacters));
    if (!number || !std::isfinite(*number * unitFactor)) {
        return std::nullopt;
    }
    return *number * unitFactor;
}

bool readLength(const xmllimits::Element& element, const QString& name, double unitFactor,
                double& target)
{
    const auto length = toLength(element.attribute(name), unitFactor);
    target = length.value_or(target);
    return length.has_value();
}

} // namespace opendocument

#include "repair/lengths.h"

#include "repair/xml_tree.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr double PointsPerInch = 72.0;

struct Unit
{
    QLatin1StringView name;
    double points;
};

constexpr Unit Units[] = {
    {"in"_L1, PointsPerInch},
    {"cm"_L1, PointsPerInch / 2.54},
    {"mm"_L1, PointsPerInch / 25.4},
    {"pt"_L1, 1.0},
    {"pc"_L1, 12.0},
    {"px"_L1, 0.75},
};

// Font sizes are read in points.
constexpr QLatin1StringView Excluded[] = {"fo:font-size"_L1, "style:font-size-asian"_L1,
                                          "style:font-size-complex"_L1};
constexpr QLatin1StringView Prefixes[] = {"svg:"_L1,  "fo:"_L1,    "draw:"_L1, "style:"_L1,
                                          "text:"_L1, "table:"_L1, "dr3d:"_L1};
// Parts of a value besides blanks: transformations have parentheses and commas.
constexpr QStringView Separators = u" ,()";

bool mayHoldLengths(const QString& name)
{
    const auto isPrefix = [&name](QLatin1StringView prefix) { return name.startsWith(prefix); };
    return std::any_of(std::begin(Prefixes), std::end(Prefixes), isPrefix) &&
           std::find(std::begin(Excluded), std::end(Excluded), name) == std::end(Excluded) &&
           !name.endsWith("name"_L1);
}

// The value with each of its lengths in inches.
QString converted(const QString& value, int& count)
{
    QString result;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= value.size(); ++i) {
        if (i < value.size() && !Separators.contains(value[i])) {
            continue;
        }
        const QStringView part = QStringView(value).sliced(start, i - start);
        const auto points = part.endsWith("in"_L1) ? std::nullopt : toPoints(part);
        result += points ? toInches(*points) : part.toString();
        count += points ? 1 : 0;
        if (i < value.size()) {
            result += value[i];
        }
        start = i + 1;
    }
    return result;
}

// Cheap: most values are names and colors.
bool looksLikeLength(const QString& value)
{
    return value.size() <= 512 &&
           std::any_of(std::begin(Units), std::end(Units),
                       [&value](const Unit& unit) { return value.contains(unit.name); });
}

} // namespace

std::optional<double> toPoints(QStringView length)
{
    if (length.size() < 3) {
        return std::nullopt;
    }
    const QStringView suffix = length.last(2);
    for (const Unit& unit : Units) {
        if (suffix == unit.name) {
            bool isNumber = false;
            const double value = length.chopped(2).toDouble(&isNumber) * unit.points;
            return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
        }
    }
    return std::nullopt;
}

double pointsOf(const Node& node, QStringView attribute)
{
    return toPoints(node.attribute(attribute)).value_or(0.0);
}

QString toInches(double points)
{
    return QString::number(points / PointsPerInch, 'f', 6) + "in"_L1;
}

int convertLengths(Node& root)
{
    int count = 0;
    forEachElement(root, [&count](Node& node) {
        for (Attribute& attribute : node.attributes) {
            if (mayHoldLengths(attribute.name) && looksLikeLength(attribute.value)) {
                attribute.value = converted(attribute.value, count);
            }
        }
    });
    return count;
}

} // namespace repair

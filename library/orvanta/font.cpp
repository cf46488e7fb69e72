#include "orvanta/font.h"

#include "orvanta/element_values.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvanta {

namespace {

void takeFamily(const QDomElement& child, FamilyCheck isKnownFamily, Font& font)
{
    const QString family = child.text();
    font.family = isKnownFamily(family) ? family : QString(FallbackFamily);
}

void takeSize(const QDomElement& child, FamilyCheck /*unused*/, Font& font)
{
    font.size = readDouble(child);
}

void takeStyle(const QDomElement& child, FamilyCheck /*unused*/, Font& font)
{
    font.style = readInteger(child);
}

constexpr Field<Font> FontFields[] = {
    {QLatin1String("family"), takeFamily},
    {QLatin1String("size"), takeSize},
    {QLatin1String("style"), takeStyle},
};

} // namespace

Font readFont(const QDomElement& font, FamilyCheck isKnownFamily)
{
    Font result;
    readFields(font, FontFields, isKnownFamily, result);
    return result;
}

int wholePoints(double size)
{
    if (std::isnan(size)) {
        return 0;
    }
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(size, Least, Most));
}

} // namespace orvanta

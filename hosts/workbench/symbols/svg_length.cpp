#include "workbench/symbols/svg_length.h"

#include <array>
#include <cmath>

namespace workbench::symbols {

namespace {

struct Unit
{
    QStringView suffix;
    double userUnits;
};

// A document is measured as it is on a screen of 96 pixels to the inch, and a font that
// nobody named is 16 pixels high.
constexpr std::array<Unit, 10> Units{{
    {u"px", 1.0},
    {u"pt", 96.0 / 72.0},
    {u"pc", 16.0},
    {u"mm", 96.0 / 25.4},
    {u"cm", 96.0 / 2.54},
    {u"in", 96.0},
    {u"Q", 96.0 / 101.6},
    {u"em", 16.0},
    {u"ex", 8.0},
    {u"", 1.0},
}};

} // namespace

std::optional<SvgLength> parseSvgLength(QStringView text)
{
    text = text.trimmed();
    const bool percent = text.endsWith(u'%');
    double factor = 1.0;
    if (percent) {
        text.chop(1);
    } else {
        for (const Unit& unit : Units) {
            if (text.endsWith(unit.suffix, Qt::CaseInsensitive)) {
                text.chop(unit.suffix.size());
                factor = unit.userUnits;
                break;
            }
        }
    }
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return SvgLength{value, percent, factor};
}

} // namespace workbench::symbols

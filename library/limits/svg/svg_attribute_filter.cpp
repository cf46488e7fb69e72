#include "limits/svg/svg_attribute_filter.h"

#include "limits/svg/svg_limits.h"
#include "limits/svg/svg_values.h"

#include <QXmlStreamAttributes>

#include <algorithm>
#include <array>

namespace svglimits {

namespace {

/// Attributes that hold coordinates.
constexpr std::array<QStringView, 20> Geometry{
    u"x",  u"y",  u"width", u"height", u"x1",        u"y1",          u"x2",
    u"y2", u"cx", u"cy",    u"dx",     u"dy",        u"r",           u"rx",
    u"ry", u"d",  u"fx",    u"points", u"transform", u"stroke-width"};
/// Attributes that hold one length.
constexpr std::array<QStringView, 19> Lengths{
    u"x",  u"y",  u"width", u"height", u"x1", u"y1", u"x2", u"y2",           u"cx",       u"cy",
    u"dx", u"dy", u"r",     u"rx",     u"ry", u"fx", u"fy", u"stroke-width", u"font-size"};

[[nodiscard]] QString plainNumber(double value)
{
    return QString::number(value, 'g', 12);
}

} // namespace

bool SvgAttributeFilter::hasCoordinatesWithinLimits(const QXmlStreamAttributes& attributes)
{
    return std::all_of(attributes.begin(), attributes.end(), [](const QXmlStreamAttribute& each) {
        return !contains(Geometry, each.name()) ||
               summarizeNumbers(each.value()).greatest <= Coordinate;
    });
}

QString SvgAttributeFilter::valueOf(const QXmlStreamAttribute& attribute)
{
    const QString name = attribute.name().toString();
    const QString value = attribute.value().toString();
    if (name == u"href" || name == u"src" || name.startsWith(u"on", Qt::CaseInsensitive)) {
        return {};
    }
    if (name == u"style") {
        return filterDeclarations(value, [this](const QString& property, const QString& text) {
            return declaration(property, text);
        });
    }
    return pointsOutside(value) ? QString() : declaration(name, value);
}

QString SvgAttributeFilter::styleSheet(const QString& css)
{
    for (const QString& dashes : dashArrays(css)) {
        measureDashes(dashes);
    }
    return filterStyleSheet(css, m_keepDashes);
}

QString SvgAttributeFilter::declaration(const QString& name, const QString& value)
{
    if (name == u"stroke-dasharray") {
        measureDashes(value);
        return m_keepDashes ? value : QString();
    }
    measure(name, value);
    return length(name, value);
}

// A length that is too large, or that has a unit to convert, becomes a plain number.
QString SvgAttributeFilter::length(const QString& name, const QString& value) const
{
    const auto length = contains(Lengths, name) ? parseSvgLength(value) : std::nullopt;
    if (!length || length->percent) {
        return value;
    }
    const double units = length->inUserUnits();
    const bool isFontSize = name == u"font-size";
    const double limited = isFontSize ? std::clamp(units, 0.0, FontSize) : units;
    return m_units == LengthUnits::UserUnits || limited != units ? plainNumber(limited) : value;
}

void SvgAttributeFilter::measure(QStringView name, QStringView value)
{
    if (!contains(Geometry, name) || name == u"transform") {
        return;
    }
    const NumberSummary numbers = summarizeNumbers(value);
    m_coordinates += static_cast<double>(numbers.count);
    m_greatest = std::max(m_greatest, numbers.greatest);
}

void SvgAttributeFilter::measureDashes(const QString& value)
{
    const double period = summarizeNumbers(value).sum;
    if (period > 0.0) {
        m_dashPeriod = m_dashPeriod > 0.0 ? std::min(m_dashPeriod, period) : period;
    }
}

} // namespace svglimits

#include "orvanta/date_time_control.h"

#include "orvanta/object_fields.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace orvanta {

namespace {

struct FormatRow
{
    int code;
    std::size_t date; ///< index in DateFormats
    std::size_t time; ///< index in TimeFormats
};

constexpr FormatRow FormatRows[] = {
    {1, 2, 0}, // a date
    {2, 4, 0}, // a date with a short year
    {4, 0, 3}, // a time
};

// What no row knows: date and time.
constexpr FormatRow OtherFormat = {0, 2, 3};

void takeFormat(const QDomElement& child, FamilyCheck /*unused*/, DateTimeControl& control)
{
    control.formats = dateTimeFormats(readInteger(child));
}

constexpr Field<DateTimeControl> DateTimeFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<DateTimeControl>},
    {QLatin1String("format"), takeFormat},
};

} // namespace

DateTimeControl readDateTimeControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    DateTimeControl control;
    readFields(element, DateTimeFields, isKnownFamily, control);
    return control;
}

QStringList dateTimeFormats(int code)
{
    const auto* known = std::find_if(std::begin(FormatRows), std::end(FormatRows),
                                     [code](const FormatRow& row) { return row.code == code; });
    const FormatRow& row = known == std::end(FormatRows) ? OtherFormat : *known;
    return {DateFormats.at(row.date), TimeFormats.at(row.time)};
}

} // namespace orvanta

#pragma once

#include "orvanta/control_properties.h"

#include <QStringList>

#include <array>

namespace orvanta {

/// Date formats of the source, by its own index.
inline constexpr std::array<QLatin1String, 10> DateFormats = {
    QLatin1String(""),
    QLatin1String("yyyy-MM-dd"),
    QLatin1String("MM-dd-yyyy"),
    QLatin1String("MM/dd/yyyy"),
    QLatin1String("MM/dd/yy"),
    QLatin1String("dd-MM-yyyy"),
    QLatin1String("dd/MM/yyyy"),
    QLatin1String("dd MMM yyyy"),
    QLatin1String("MMMM d, yyyy"),
    QLatin1String("dddd, MMMM d, yyyy"),
};

/// Time formats of the source, by its own index. The tenth is two formats run together;
/// old labels depend on it and on the count of sixteen.
inline constexpr std::array<QLatin1String, 16> TimeFormats = {
    QLatin1String(""),           QLatin1String("hh:mm:ss AP"),
    QLatin1String("h:mm:ss ap"), QLatin1String("HH:mm:ss"),
    QLatin1String("H:mm:ss"),    QLatin1String("hh:mm ap"),
    QLatin1String("h:mm AP"),    QLatin1String("HH:mm"),
    QLatin1String("H:mm"),       QLatin1String("mm:sshh:mm:ss ap"),
    QLatin1String("h:m:s ap"),   QLatin1String("hh:mm:ss"),
    QLatin1String("h:m:s"),      QLatin1String("h:m ap"),
    QLatin1String("hh:mm"),      QLatin1String("h:m"),
};

/// The current date or time: `date_time_picker`.
struct DateTimeControl
{
    ControlProperties properties;
    QStringList formats; ///< date format, time format; empty when the object names none
};

[[nodiscard]] DateTimeControl readDateTimeControl(const QDomElement& element,
                                                  FamilyCheck isKnownFamily);

/// Date format and time format for a stored format code; an empty format leaves its part out.
[[nodiscard]] QStringList dateTimeFormats(int code);

} // namespace orvanta

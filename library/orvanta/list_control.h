#pragma once

#include "orvanta/control_properties.h"

#include <QStringList>

namespace orvanta {

/// A list box: `combo_box`. The format gives it no flips, rotation or alignment.
struct ListControl
{
    ControlProperties properties;
    QStringList entries;
};

[[nodiscard]] ListControl readListControl(const QDomElement& element, FamilyCheck isKnownFamily);

} // namespace orvanta

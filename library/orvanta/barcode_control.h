#pragma once

#include "orvanta/barcode_codes.h"
#include "orvanta/control_properties.h"

#include <QStringList>

namespace orvanta {

/// A barcode. The format gives it no flips and no rotation; its properties keep their
/// defaults.
struct BarcodeControl
{
    ControlProperties properties;
    QStringList texts;                 ///< contents to step through; may be empty
    int hostType = DefaultBarcodeCode; ///< the host's symbology code
};

[[nodiscard]] BarcodeControl readBarcodeControl(const QDomElement& element,
                                                FamilyCheck isKnownFamily);

} // namespace orvanta

#pragma once

#include "orvanta/control_properties.h"
#include "orvanta/element_values.h"

/// Children of an object element that several kinds share. Each works on the
/// `properties` of a kind's record.
namespace orvanta {

/// `printable_control`. A second one replaces all that the first gave, but flips and
/// rotation stand beside it in the object and stay.
template <typename Record>
void takePrintableControl(const QDomElement& child, FamilyCheck isKnownFamily, Record& record)
{
    ControlProperties properties = readControlProperties(child, isKnownFamily);
    properties.rotation = record.properties.rotation;
    properties.flipHorizontal = record.properties.flipHorizontal;
    properties.flipVertical = record.properties.flipVertical;
    record.properties = properties;
}

/// `flip_horizontally`
template <typename Record>
void takeFlipHorizontal(const QDomElement& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.flipHorizontal = readFlag(child);
}

/// `flip_vertically`
template <typename Record>
void takeFlipVertical(const QDomElement& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.flipVertical = readFlag(child);
}

/// `rotation`, in whole degrees
template <typename Record>
void takeRotation(const QDomElement& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.rotation = readInteger(child);
}

} // namespace orvanta

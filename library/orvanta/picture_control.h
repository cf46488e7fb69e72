#pragma once

#include "orvanta/control_properties.h"

#include <QByteArray>

namespace orvanta {

/// A picture: `picture_box`.
struct PictureControl
{
    ControlProperties properties;
    QByteArray bytes; ///< the picture's file; empty when there is none
};

[[nodiscard]] PictureControl readPictureControl(const QDomElement& element,
                                                FamilyCheck isKnownFamily);

} // namespace orvanta

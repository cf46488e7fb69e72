#pragma once

#include "orvanta/control_properties.h"

#include <QStringList>

namespace orvanta {

/// A text: `swap_text_box` or `transparent_label`.
struct TextControl
{
    ControlProperties properties;
    QStringList items;      ///< texts to step through; empty when there is only one
    bool scaleable = false; ///< the text fills its box, whatever its font size
    Qt::Alignment alignment = Qt::AlignHCenter | Qt::AlignVCenter;
};

[[nodiscard]] TextControl readTextControl(const QDomElement& element, FamilyCheck isKnownFamily);

/// Where the text stands for a stored alignment code. Left and right have no vertical part:
/// old labels depend on it.
[[nodiscard]] Qt::Alignment alignmentFromCode(int code);

} // namespace orvanta

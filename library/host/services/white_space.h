#pragma once

#include "host/services/visibility.h"

#include <QRegularExpression>

/// The host's definition of white space.
class LABELPORT_HOST_SERVICE WhiteSpace
{
public:
    WhiteSpace() = delete;

    /// Matches consecutive white space, for QString::split().
    [[nodiscard]] static QRegularExpression getWhiteSpacesSplitRegex();
};

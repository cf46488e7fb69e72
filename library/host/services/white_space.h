#pragma once

#include "host/services/visibility.h"

#include <QRegularExpression>

/// The host's idea of white space.
class LABELPORT_HOST_SERVICE WhiteSpace
{
public:
    WhiteSpace() = delete;

    /// Matches one run of white space, for QString::split().
    [[nodiscard]] static QRegularExpression getWhiteSpacesSplitRegex();
};

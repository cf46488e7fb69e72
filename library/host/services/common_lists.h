#pragma once

#include "host/services/visibility.h"

#include <QString>

/// The font families and barcode symbologies of the host.
class LABELPORT_HOST_SERVICE CommonLists
{
public:
    CommonLists() = delete;

    /// Whether the host can show this font family. If not, importers set FallbackFontFamily (see
    /// IFontItem).
    [[nodiscard]] static bool isValidFamily(QString family);
    /// Whether the code is a linear symbology of the host.
    [[nodiscard]] static bool isValidBarcode1D(unsigned short code);
    /// Whether the code is a two-dimensional symbology of the host.
    [[nodiscard]] static bool isValidBarcode2D(unsigned short code);
};

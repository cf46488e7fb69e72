#pragma once

#include "host/services/visibility.h"

#include <QString>

/// What the host knows: font families and barcode symbologies.
class LABELPORT_HOST_SERVICE CommonLists
{
public:
    CommonLists() = delete;

    /// Whether the host can show this font family. Importers keep a legacy label's
    /// font only then.
    [[nodiscard]] static bool isValidFamily(QString family);
    /// Whether the code is a linear symbology of the host's.
    [[nodiscard]] static bool isValidBarcode1D(unsigned short code);
    /// Whether the code is a two-dimensional symbology of the host's.
    [[nodiscard]] static bool isValidBarcode2D(unsigned short code);
};

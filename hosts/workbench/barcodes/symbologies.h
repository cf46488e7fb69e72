#pragma once

#include <QString>
#include <QtGlobal>

#include <span>

/// The barcode symbologies, with the host's codes, which are libzint's numbers.
namespace workbench::barcodes {

/// What the numeric settings of a label's barcode mean for a symbology. A maximum of 0 means
/// that the symbology has no such setting; for a setting outside its range the symbology
/// uses its default.
struct Symbology
{
    int code = 0;
    const char* name = nullptr; ///< English; symbologyName() translates it
    /// Two-dimensional: a matrix, several rows, or a linear part with a matrix above it.
    bool matrix = false;
    /// Option 1 adds a check digit.
    bool checkDigit = false;
    /// `number`: the size, version or column count of a matrix symbology, the distance of
    /// the add-on of an article number, the channels of Channel Code.
    int sizeMinimum = 0;
    int sizeMaximum = 0;
    /// `value`: the error correction level, for MaxiCode the mode.
    int levelMaximum = 0;
};

/// All symbologies, sorted by code.
[[nodiscard]] std::span<const Symbology> symbologies();
/// Null for an unknown code.
[[nodiscard]] const Symbology* findSymbology(int code);

[[nodiscard]] bool isLinear(int code);
[[nodiscard]] bool isMatrix(int code);
/// The symbology's translated name; "barcode kind 999" for an unknown code.
[[nodiscard]] QString symbologyName(int code);

} // namespace workbench::barcodes

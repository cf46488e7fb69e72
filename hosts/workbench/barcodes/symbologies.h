#pragma once

#include <QString>
#include <QtGlobal>

#include <span>

/// The barcode symbologies: the host's list of codes, which are libzint's numbers.
namespace workbench::barcodes {

/// What the numeric settings of a label's barcode mean for a symbology. A maximum of 0 means
/// that the symbology has no such setting; a setting outside its range is the symbology's
/// own choice.
struct Symbology
{
    int code = 0;
    const char* name = nullptr; ///< in English; symbologyName() says it in the program's language
    /// Two-dimensional: a matrix, several rows, or a linear part with a matrix above it.
    bool matrix = false;
    /// The option 1 asks for a check digit.
    bool checkDigit = false;
    /// `number`: the size, version or count of columns of a matrix symbology, the distance of
    /// the add-on of an article number, the channels of Channel Code.
    int sizeMinimum = 0;
    int sizeMaximum = 0;
    /// `value`: the level of error correction, for MaxiCode the mode.
    int levelMaximum = 0;
};

/// Every symbology, in the order of the codes.
[[nodiscard]] std::span<const Symbology> symbologies();
/// Null for a code that is not known.
[[nodiscard]] const Symbology* findSymbology(int code);

[[nodiscard]] bool isLinear(int code);
[[nodiscard]] bool isMatrix(int code);
/// The symbology's name for a person; "barcode kind 999" for an unknown one.
[[nodiscard]] QString symbologyName(int code);

} // namespace workbench::barcodes

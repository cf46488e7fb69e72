#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace orvanta {

/// The host's code for a barcode without a symbology, or with an unknown one: Code 39.
inline constexpr int DefaultBarcodeCode = 8;
/// The source's code of the first entry of BarcodeCodes.
inline constexpr int FirstBarcodeCode = 2;

/// The host's symbology codes, indexed by the source's code minus FirstBarcodeCode.
// clang-format off
inline constexpr std::array<quint8, 111> BarcodeCodes = {
    3, 3, 3, 2, 3, 3, 8, 8, // 2 to 9
    13, 13, 13, 69, 69, 69, 60, 8, 18, 18, // 10 to 19
    20, 8, 8, 69, 8, 8, 8, 8, 8, 8, // 20 to 29
    8, 8, 8, 20, 34, 34, 34, 37, 37, 37, // 30 to 39
    8, 8, 8, 8, 8, 8, 8, 8, 8, 8, // 40 to 49
    8, 8, 8, 8, 8, 55, 55, 8, 58, 20, // 50 to 59
    20, 20, 8, 8, 8, 8, 8, 8, 8, 69, // 60 to 69
    8, 71, 69, 8, 18, 8, 8, 8, 8, 8, // 70 to 79
    8, 8, 8, 8, 55, 8, 8, 8, 8, 8, // 80 to 89
    8, 8, 8, 8, 8, 8, 8, 58, 20, 8, // 90 to 99
    20, 8, 71, 71, 58, 58, 55, 55, 55, 55, // 100 to 109
    18, 18, 71, // 110 to 112
};
// clang-format on

/// The host's symbology code for a code of the source's.
[[nodiscard]] constexpr int hostBarcodeCode(int sourceCode)
{
    constexpr int End = FirstBarcodeCode + static_cast<int>(BarcodeCodes.size());
    if (sourceCode < FirstBarcodeCode || sourceCode >= End) {
        return DefaultBarcodeCode;
    }
    return BarcodeCodes[static_cast<std::size_t>(sourceCode - FirstBarcodeCode)];
}

} // namespace orvanta

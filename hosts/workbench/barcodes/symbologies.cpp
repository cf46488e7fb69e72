#include "workbench/barcodes/symbologies.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace workbench::barcodes {

namespace {

// code, name, two-dimensional, has a check digit, smallest and largest size, highest level.
// clang-format off
constexpr std::array<Symbology, 97> Table{{
    {1, "Code 11", false, true, 0, 0, 0},
    {2, "Standard 2 of 5", false, true, 0, 0, 0},
    {3, "Interleaved 2 of 5", false, true, 0, 0, 0},
    {4, "IATA 2 of 5", false, true, 0, 0, 0},
    {6, "Data Logic 2 of 5", false, true, 0, 0, 0},
    {7, "Industrial 2 of 5", false, true, 0, 0, 0},
    {8, "Code 39", false, true, 0, 0, 0},
    {9, "Extended Code 39", false, true, 0, 0, 0},
    {13, "EAN", false, false, 7, 12, 0},
    {14, QT_TRANSLATE_NOOP("workbench::Symbologies", "EAN with check digit"), false, false, 7, 12, 0},
    {16, "GS1-128", false, false, 0, 0, 0},
    {18, "Codabar", false, true, 0, 0, 0},
    {20, "Code 128", false, false, 0, 0, 0},
    {21, "Leitcode", false, false, 0, 0, 0},
    {22, "Identcode", false, false, 0, 0, 0},
    {23, "Code 16K", true, false, 0, 0, 0},
    {24, "Code 49", true, false, 0, 0, 0},
    {25, "Code 93", false, true, 0, 0, 0},
    {28, "Flattermarken", false, false, 0, 0, 0},
    {29, "GS1 DataBar", false, false, 0, 0, 0},
    {30, "GS1 DataBar Limited", false, false, 0, 0, 0},
    {31, "GS1 DataBar Expanded", false, false, 0, 0, 0},
    {32, "Telepen", false, false, 0, 0, 0},
    {34, "UPC-A", false, false, 7, 12, 0},
    {35, QT_TRANSLATE_NOOP("workbench::Symbologies", "UPC-A with check digit"), false, false, 7, 12, 0},
    {37, "UPC-E", false, false, 7, 12, 0},
    {38, QT_TRANSLATE_NOOP("workbench::Symbologies", "UPC-E with check digit"), false, false, 7, 12, 0},
    {40, "POSTNET", false, false, 0, 0, 0},
    {47, "MSI Plessey", false, true, 0, 0, 0},
    {49, "Facing Identification Mark", false, false, 0, 0, 0},
    {50, "LOGMARS", false, true, 0, 0, 0},
    {51, "Pharmacode", false, false, 0, 0, 0},
    {52, "PZN", false, false, 0, 0, 0},
    {53, "Two-track Pharmacode", false, false, 0, 0, 0},
    {54, "CEPNet", false, false, 0, 0, 0},
    {55, "PDF417", true, false, 0, 0, 8},
    {56, "Compact PDF417", true, false, 1, 30, 8},
    {57, "MaxiCode", true, false, 0, 0, 6},
    {58, "QR Code", true, false, 1, 40, 4},
    {60, "Code 128 subset B", false, false, 0, 0, 0},
    {63, "Australia Post Standard Customer", false, false, 0, 0, 0},
    {66, "Australia Post Reply Paid", false, false, 0, 0, 0},
    {67, "Australia Post Routing", false, false, 0, 0, 0},
    {68, "Australia Post Redirection", false, false, 0, 0, 0},
    {69, "ISBN", false, false, 7, 12, 0},
    {70, "Royal Mail Customer Code", false, false, 0, 0, 0},
    {71, "Data Matrix", true, false, 1, 48, 0},
    {72, "EAN-14", false, false, 0, 0, 0},
    {73, "Vehicle Identification Number", false, false, 0, 0, 0},
    {74, "Codablock-F", true, false, 9, 67, 0},
    {75, "NVE-18", false, false, 0, 0, 0},
    {76, "Japanese Postal Code", false, false, 0, 0, 0},
    {77, "Korea Post", false, false, 0, 0, 0},
    {79, "GS1 DataBar Stacked", false, false, 0, 0, 0},
    {80, "GS1 DataBar Stacked Omnidirectional", false, false, 0, 0, 0},
    {81, "GS1 DataBar Expanded Stacked", false, false, 1, 11, 0},
    {82, "PLANET", false, false, 0, 0, 0},
    {84, "MicroPDF417", true, false, 1, 4, 0},
    {85, "USPS Intelligent Mail", false, false, 0, 0, 0},
    {86, "UK Plessey", false, false, 0, 0, 0},
    {87, "Telepen Numeric", false, false, 0, 0, 0},
    {89, "ITF-14", false, false, 0, 0, 0},
    {90, "KIX", false, false, 0, 0, 0},
    {92, "Aztec Code", true, false, 1, 36, 4},
    {93, "DAFT Code", false, false, 0, 0, 0},
    {96, "DPD Code", false, false, 0, 0, 0},
    {97, "Micro QR Code", true, false, 1, 4, 3},
    {98, "HIBC Code 128", false, false, 0, 0, 0},
    {99, "HIBC Code 39", false, false, 0, 0, 0},
    {102, "HIBC Data Matrix", true, false, 1, 48, 0},
    {104, "HIBC QR Code", true, false, 1, 40, 4},
    {106, "HIBC PDF417", true, false, 1, 30, 8},
    {108, "HIBC MicroPDF417", true, false, 1, 4, 0},
    {110, "HIBC Codablock-F", true, false, 9, 67, 0},
    {112, "HIBC Aztec Code", true, false, 1, 36, 4},
    {115, "DotCode", true, false, 5, 200, 0},
    {116, "Han Xin Code", true, false, 1, 84, 4},
    {121, "Royal Mail Mailmark", false, false, 0, 0, 0},
    {128, "Aztec Runes", true, false, 0, 0, 0},
    {129, "Code 32", false, false, 0, 0, 0},
    {130, "EAN Composite", true, false, 7, 12, 0},
    {131, "GS1-128 Composite", true, false, 0, 0, 0},
    {132, "GS1 DataBar Composite", true, false, 0, 0, 0},
    {133, "GS1 DataBar Limited Composite", true, false, 0, 0, 0},
    {134, "GS1 DataBar Expanded Composite", true, false, 0, 0, 0},
    {135, "UPC-A Composite", true, false, 7, 12, 0},
    {136, "UPC-E Composite", true, false, 7, 12, 0},
    {137, "GS1 DataBar Stacked Composite", true, false, 0, 0, 0},
    {138, "GS1 DataBar Stacked Omnidirectional Composite", true, false, 0, 0, 0},
    {139, "GS1 DataBar Expanded Stacked Composite", true, false, 0, 0, 0},
    {140, "Channel Code", false, false, 3, 8, 0},
    {141, "Code One", true, false, 1, 10, 0},
    {142, "Grid Matrix", true, false, 1, 13, 5},
    {143, "UPNQR", true, false, 0, 0, 0},
    {144, "Ultracode", true, false, 1, 2, 6},
    {145, "Rectangular Micro QR Code", true, false, 1, 38, 4},
    {146, "BC412", false, false, 0, 0, 0},
}};
// clang-format on

} // namespace

std::span<const Symbology> symbologies()
{
    return Table;
}

const Symbology* findSymbology(int code)
{
    const auto found =
        std::lower_bound(Table.begin(), Table.end(), code,
                         [](const Symbology& each, int wanted) { return each.code < wanted; });
    return found != Table.end() && found->code == code ? &*found : nullptr;
}

bool isLinear(int code)
{
    const Symbology* symbology = findSymbology(code);
    return symbology && !symbology->matrix;
}

bool isMatrix(int code)
{
    const Symbology* symbology = findSymbology(code);
    return symbology && symbology->matrix;
}

QString symbologyName(int code)
{
    const Symbology* symbology = findSymbology(code);
    return symbology
               ? QCoreApplication::translate("workbench::Symbologies", symbology->name)
               : QCoreApplication::translate("workbench::Symbologies", "barcode kind %1").arg(code);
}

} // namespace workbench::barcodes

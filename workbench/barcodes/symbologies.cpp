#include "workbench/barcodes/symbologies.h"

#include <algorithm>
#include <array>

namespace workbench::barcodes {

namespace {

// code, name, two-dimensional, has a check digit, smallest and largest size, highest level.
// clang-format off
constexpr std::array<Symbology, 97> Table{{
    {1, u"Code 11", false, true, 0, 0, 0},
    {2, u"Standard 2 of 5", false, true, 0, 0, 0},
    {3, u"Interleaved 2 of 5", false, true, 0, 0, 0},
    {4, u"IATA 2 of 5", false, true, 0, 0, 0},
    {6, u"Data Logic 2 of 5", false, true, 0, 0, 0},
    {7, u"Industrial 2 of 5", false, true, 0, 0, 0},
    {8, u"Code 39", false, true, 0, 0, 0},
    {9, u"Extended Code 39", false, true, 0, 0, 0},
    {13, u"EAN", false, false, 7, 12, 0},
    {14, u"EAN with check digit", false, false, 7, 12, 0},
    {16, u"GS1-128", false, false, 0, 0, 0},
    {18, u"Codabar", false, true, 0, 0, 0},
    {20, u"Code 128", false, false, 0, 0, 0},
    {21, u"Leitcode", false, false, 0, 0, 0},
    {22, u"Identcode", false, false, 0, 0, 0},
    {23, u"Code 16K", true, false, 0, 0, 0},
    {24, u"Code 49", true, false, 0, 0, 0},
    {25, u"Code 93", false, true, 0, 0, 0},
    {28, u"Flattermarken", false, false, 0, 0, 0},
    {29, u"GS1 DataBar", false, false, 0, 0, 0},
    {30, u"GS1 DataBar Limited", false, false, 0, 0, 0},
    {31, u"GS1 DataBar Expanded", false, false, 0, 0, 0},
    {32, u"Telepen", false, false, 0, 0, 0},
    {34, u"UPC-A", false, false, 7, 12, 0},
    {35, u"UPC-A with check digit", false, false, 7, 12, 0},
    {37, u"UPC-E", false, false, 7, 12, 0},
    {38, u"UPC-E with check digit", false, false, 7, 12, 0},
    {40, u"POSTNET", false, false, 0, 0, 0},
    {47, u"MSI Plessey", false, true, 0, 0, 0},
    {49, u"Facing Identification Mark", false, false, 0, 0, 0},
    {50, u"LOGMARS", false, true, 0, 0, 0},
    {51, u"Pharmacode", false, false, 0, 0, 0},
    {52, u"PZN", false, false, 0, 0, 0},
    {53, u"Two-track Pharmacode", false, false, 0, 0, 0},
    {54, u"CEPNet", false, false, 0, 0, 0},
    {55, u"PDF417", true, false, 0, 0, 8},
    {56, u"Compact PDF417", true, false, 1, 30, 8},
    {57, u"MaxiCode", true, false, 0, 0, 6},
    {58, u"QR Code", true, false, 1, 40, 4},
    {60, u"Code 128 subset B", false, false, 0, 0, 0},
    {63, u"Australia Post Standard Customer", false, false, 0, 0, 0},
    {66, u"Australia Post Reply Paid", false, false, 0, 0, 0},
    {67, u"Australia Post Routing", false, false, 0, 0, 0},
    {68, u"Australia Post Redirection", false, false, 0, 0, 0},
    {69, u"ISBN", false, false, 7, 12, 0},
    {70, u"Royal Mail Customer Code", false, false, 0, 0, 0},
    {71, u"Data Matrix", true, false, 1, 48, 0},
    {72, u"EAN-14", false, false, 0, 0, 0},
    {73, u"Vehicle Identification Number", false, false, 0, 0, 0},
    {74, u"Codablock-F", true, false, 9, 67, 0},
    {75, u"NVE-18", false, false, 0, 0, 0},
    {76, u"Japanese Postal Code", false, false, 0, 0, 0},
    {77, u"Korea Post", false, false, 0, 0, 0},
    {79, u"GS1 DataBar Stacked", false, false, 0, 0, 0},
    {80, u"GS1 DataBar Stacked Omnidirectional", false, false, 0, 0, 0},
    {81, u"GS1 DataBar Expanded Stacked", false, false, 1, 11, 0},
    {82, u"PLANET", false, false, 0, 0, 0},
    {84, u"MicroPDF417", true, false, 1, 4, 0},
    {85, u"USPS Intelligent Mail", false, false, 0, 0, 0},
    {86, u"UK Plessey", false, false, 0, 0, 0},
    {87, u"Telepen Numeric", false, false, 0, 0, 0},
    {89, u"ITF-14", false, false, 0, 0, 0},
    {90, u"KIX", false, false, 0, 0, 0},
    {92, u"Aztec Code", true, false, 1, 36, 4},
    {93, u"DAFT Code", false, false, 0, 0, 0},
    {96, u"DPD Code", false, false, 0, 0, 0},
    {97, u"Micro QR Code", true, false, 1, 4, 3},
    {98, u"HIBC Code 128", false, false, 0, 0, 0},
    {99, u"HIBC Code 39", false, false, 0, 0, 0},
    {102, u"HIBC Data Matrix", true, false, 1, 48, 0},
    {104, u"HIBC QR Code", true, false, 1, 40, 4},
    {106, u"HIBC PDF417", true, false, 1, 30, 8},
    {108, u"HIBC MicroPDF417", true, false, 1, 4, 0},
    {110, u"HIBC Codablock-F", true, false, 9, 67, 0},
    {112, u"HIBC Aztec Code", true, false, 1, 36, 4},
    {115, u"DotCode", true, false, 5, 200, 0},
    {116, u"Han Xin Code", true, false, 1, 84, 4},
    {121, u"Royal Mail Mailmark", false, false, 0, 0, 0},
    {128, u"Aztec Runes", true, false, 0, 0, 0},
    {129, u"Code 32", false, false, 0, 0, 0},
    {130, u"EAN Composite", true, false, 7, 12, 0},
    {131, u"GS1-128 Composite", true, false, 0, 0, 0},
    {132, u"GS1 DataBar Composite", true, false, 0, 0, 0},
    {133, u"GS1 DataBar Limited Composite", true, false, 0, 0, 0},
    {134, u"GS1 DataBar Expanded Composite", true, false, 0, 0, 0},
    {135, u"UPC-A Composite", true, false, 7, 12, 0},
    {136, u"UPC-E Composite", true, false, 7, 12, 0},
    {137, u"GS1 DataBar Stacked Composite", true, false, 0, 0, 0},
    {138, u"GS1 DataBar Stacked Omnidirectional Composite", true, false, 0, 0, 0},
    {139, u"GS1 DataBar Expanded Stacked Composite", true, false, 0, 0, 0},
    {140, u"Channel Code", false, false, 3, 8, 0},
    {141, u"Code One", true, false, 1, 10, 0},
    {142, u"Grid Matrix", true, false, 1, 13, 5},
    {143, u"UPNQR", true, false, 0, 0, 0},
    {144, u"Ultracode", true, false, 1, 2, 6},
    {145, u"Rectangular Micro QR Code", true, false, 1, 38, 4},
    {146, u"BC412", false, false, 0, 0, 0},
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
    return symbology ? symbology->name.toString() : QStringLiteral("barcode kind %1").arg(code);
}

} // namespace workbench::barcodes

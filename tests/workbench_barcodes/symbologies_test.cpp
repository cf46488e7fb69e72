#include "workbench/barcodes/symbologies.h"

#include <QSet>

#include <gtest/gtest.h>
#include <zint.h>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::barcodes;

TEST(Symbologies, AreThoseOfTheEncoder)
{
    for (int code = -1; code <= 0xffff; ++code) {
        const bool known = code >= 0 && ZBarcode_ValidID(code) != 0;
        ASSERT_EQ(findSymbology(code) != nullptr, known) << code;
        ASSERT_EQ(isLinear(code) != isMatrix(code), known) << code;
    }
}

TEST(Symbologies, AreTwoDimensionalWhereTheirModulesAreSquare)
{
    for (const Symbology& each : symbologies()) {
        const bool square = ZBarcode_Cap(each.code, ZINT_CAP_FIXED_RATIO) != 0;
        const bool composite = ZBarcode_Cap(each.code, ZINT_CAP_COMPOSITE) != 0 && each.code >= 130;
        if (square || composite) {
            EXPECT_TRUE(each.matrix) << each.code;
        }
    }
    for (const int rows : {23, 24, 55, 56, 74, 84, 106, 108, 110}) {
        EXPECT_TRUE(isMatrix(rows)) << rows;
    }
    for (const int oneLine : {1, 3, 8, 13, 16, 18, 20, 25, 29, 34, 40, 51, 60, 69, 79, 85, 140}) {
        EXPECT_TRUE(isLinear(oneLine)) << oneLine;
    }
}

TEST(Symbologies, HaveNamesOfTheirOwn)
{
    QSet<QString> names;
    for (const Symbology& each : symbologies()) {
        names.insert(QString::fromLatin1(each.name));
    }
    EXPECT_EQ(names.size(), static_cast<qsizetype>(symbologies().size()));
    EXPECT_EQ(symbologyName(58), u"QR Code"_s);
    EXPECT_EQ(symbologyName(5), u"barcode kind 5"_s);
}

TEST(Symbologies, HaveSensibleRanges)
{
    for (const Symbology& each : symbologies()) {
        EXPECT_LE(each.sizeMinimum, each.sizeMaximum) << each.code;
        EXPECT_EQ(each.sizeMinimum > 0, each.sizeMaximum > 0) << each.code;
        EXPECT_FALSE(each.checkDigit && each.sizeMaximum > 0)
            << "one setting of the encoder cannot be both: " << each.code;
    }
}

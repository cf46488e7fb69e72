#include "numeric/fraction.h"
#include "numeric/overflow_error_exception.h"
#include "tests/support/captured_log.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr quint64 largest = std::numeric_limits<quint64>::max();

Fraction parsed(const char* text)
{
    return Fraction(QString::fromUtf8(text));
}

std::string printed(const Fraction& fraction)
{
    return fraction.toString().toStdString();
}

TEST(OverflowErrorException, NamesItself)
{
    const OverflowErrorException exception;
    const std::exception& asStandard = exception;
    EXPECT_STREQ(asStandard.what(), "Arithmetic Overflow");
}

TEST(Fraction, IsOneWhenUntouched)
{
    EXPECT_EQ(printed(Fraction()), "1/1");
    EXPECT_EQ(Fraction().toDouble(), 1.0);
}

struct ParseCase
{
    const char* text;
    const char* printed;
    double value;
    bool logged = false;
};

class FractionParsing : public testing::TestWithParam<ParseCase>
{};

TEST_P(FractionParsing, ReadsRatioOrDecimal)
{
    const CapturedLog log;
    const Fraction fraction = parsed(GetParam().text);

    EXPECT_EQ(printed(fraction), GetParam().printed);
    EXPECT_EQ(fraction.toDouble(), GetParam().value);
    if (!GetParam().logged) {
        EXPECT_TRUE(log.records().isEmpty());
        return;
    }
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.records()[0].level, Logger::Debug);
    EXPECT_EQ(log.records()[0].source, QLatin1String("fraction"));
    EXPECT_EQ(log.records()[0].function, QLatin1String("Fraction::Fraction(const QString&)"));
    EXPECT_EQ(log.records()[0].message,
              u"string \"%1\" invalid"_s.arg(QString::fromUtf8(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Ratios, FractionParsing,
                         testing::Values(ParseCase{"3/4", "3/4", 0.75},     //
                                         ParseCase{"6/8", "3/4", 0.75},     //
                                         ParseCase{" 3 / 4 ", "3/4", 0.75}, //
                                         ParseCase{"/4", "1/4", 0.25},      //
                                         ParseCase{"x/2", "1/2", 0.5},      //
                                         ParseCase{"-3/2", "1/2", 0.5},     //
                                         ParseCase{"1.5/2", "1/2", 0.5},    //
                                         ParseCase{"5/", "5/1", 5.0},       //
                                         ParseCase{"/", "1/1", 1.0},        //
                                         ParseCase{"1/2/3", "1/1", 1.0},    //
                                         ParseCase{"0x10/2", "1/2", 0.5},   //
                                         ParseCase{"0/5", "0/1", 0.0},      //
                                         ParseCase{"3/0", "1/0", infinity}));

INSTANTIATE_TEST_SUITE_P(LargeRatios, FractionParsing,
                         testing::Values(ParseCase{"18446744073709551615/1",
                                                   "18446744073709551615/1",
                                                   18446744073709551616.0},
                                         ParseCase{"18446744073709551616/2", "1/2", 0.5}));

INSTANTIATE_TEST_SUITE_P(Decimals, FractionParsing,
                         testing::Values(ParseCase{"0.5", "0.5", 0.5},      //
                                         ParseCase{"2", "2", 2.0},          //
                                         ParseCase{" 2.25 ", "2.25", 2.25}, //
                                         ParseCase{"1e3", "1000", 1000.0},  //
                                         ParseCase{"inf", "inf", infinity}, //
                                         ParseCase{"1234567", "1.23457e+06", 1234567.0}));

// A decimal that is not above zero is not used: the value is the default ratio 1/1.
INSTANTIATE_TEST_SUITE_P(DecimalsThatAreNoValue, FractionParsing,
                         testing::Values(ParseCase{"0", "1/1", 1.0},    //
                                         ParseCase{"0.0", "1/1", 1.0},  //
                                         ParseCase{"-2.5", "1/1", 1.0}, //
                                         ParseCase{"nan", "1/1", 1.0}));

INSTANTIATE_TEST_SUITE_P(InvalidText, FractionParsing,
                         testing::Values(ParseCase{"", "1/1", 1.0, true},      //
                                         ParseCase{"abc", "1/1", 1.0, true},   //
                                         ParseCase{"1e400", "1/1", 1.0, true}, //
                                         ParseCase{"1,5", "1/1", 1.0, true},   //
                                         ParseCase{"3\xC3\xA9", "1/1", 1.0, true}));

struct ReductionCase
{
    quint64 numerator;
    quint64 denominator;
    const char* printed;
};

class FractionReduction : public testing::TestWithParam<ReductionCase>
{};

TEST_P(FractionReduction, DividesByTheGreatestCommonDivisor)
{
    EXPECT_EQ(printed(Fraction(GetParam().numerator, GetParam().denominator)), GetParam().printed);
}

INSTANTIATE_TEST_SUITE_P(Table, FractionReduction,
                         testing::Values(ReductionCase{6, 8, "3/4"}, //
                                         ReductionCase{8, 6, "4/3"}, //
                                         ReductionCase{7, 7, "1/1"}, //
                                         ReductionCase{7, 5, "7/5"}, //
                                         ReductionCase{0, 5, "0/1"}, //
                                         ReductionCase{3, 0, "1/0"}, //
                                         ReductionCase{0, 0, "0/0"}, //
                                         ReductionCase{largest, largest, "1/1"},
                                         ReductionCase{largest, largest - 1,
                                                       "18446744073709551615/"
                                                       "18446744073709551614"}));

TEST(Fraction, DividesByAZeroDenominatorAsFloatingPointDoes)
{
    EXPECT_EQ(Fraction(3, 0).toDouble(), infinity);
    EXPECT_TRUE(std::isnan(Fraction(0, 0).toDouble()));
}

TEST(Fraction, TakesNumeratorAndDenominatorAsUnsigned)
{
    EXPECT_EQ(Fraction(quint64(1) << 63, 1).toDouble(), 9223372036854775808.0);
    EXPECT_EQ(Fraction(1, quint64(1) << 63).toDouble(), 1.0 / 9223372036854775808.0);
}

TEST(Fraction, PrintsExactAndDecimalForm)
{
    EXPECT_EQ(printed(Fraction(1, 3)), "1/3");
    EXPECT_EQ(printed(Fraction(0.125)), "0.125");
    EXPECT_EQ(printed(Fraction(1.0 / 3.0)), "0.333333");
    EXPECT_EQ(printed(Fraction(0.0)), "1/1");
    EXPECT_EQ(printed(Fraction(-4.0)), "1/1");
}

TEST(FractionEquality, ComparesRatiosWhenTheLeftSideIsExact)
{
    EXPECT_TRUE(Fraction(1, 2) == Fraction(2, 4));
    EXPECT_FALSE(Fraction(1, 2) != Fraction(2, 4));
    EXPECT_TRUE(Fraction(1, 2) != Fraction(1, 3));
    EXPECT_TRUE(Fraction(1, 2) != Fraction(3, 2));
    // The decimal 0.5 also has the ratio 1/1.
    EXPECT_TRUE(Fraction(1, 1) == Fraction(0.5));
    EXPECT_FALSE(Fraction(1, 2) == Fraction(0.5));
}

TEST(FractionEquality, ComparesDecimalsWhenTheLeftSideIsDecimal)
{
    EXPECT_TRUE(Fraction(0.5) == Fraction(0.5));
    EXPECT_FALSE(Fraction(0.5) == Fraction(0.25));
    EXPECT_FALSE(Fraction(0.5) == Fraction(1, 1));
    EXPECT_TRUE(Fraction(0.5) != Fraction(1, 1));
    // 0.0 is not decimal mode, so the ratios 1/1 are compared.
    EXPECT_TRUE(Fraction(0.0) == Fraction(7.0));
}

struct ProductCase
{
    const char* left;
    const char* right;
    const char* printed;
    double value;
    bool exact;
};

class FractionProduct : public testing::TestWithParam<ProductCase>
{};

TEST_P(FractionProduct, IsExactWhileItCanBe)
{
    const Fraction left = parsed(GetParam().left);
    const Fraction right = parsed(GetParam().right);
    const CapturedLog log;
    const Fraction product = left * right;

    EXPECT_EQ(printed(product), GetParam().printed);
    EXPECT_DOUBLE_EQ(product.toDouble(), GetParam().value);
    if (GetParam().exact) {
        EXPECT_TRUE(log.records().isEmpty());
        return;
    }
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.records()[0].level, Logger::Debug);
    EXPECT_EQ(log.records()[0].source, QLatin1String("fraction"));
    EXPECT_EQ(log.records()[0].function,
              QLatin1String("Fraction Fraction::operator*(Fraction) const"));
    EXPECT_EQ(log.records()[0].message, u"newFraction = "_s + QLatin1String(GetParam().printed));
}

INSTANTIATE_TEST_SUITE_P(Exact, FractionProduct,
                         testing::Values(ProductCase{"1/2", "2/3", "1/3", 1.0 / 3.0, true},
                                         ProductCase{"2/1", "3/1", "6/1", 6.0, true},
                                         // The quotient 0/0 counts as agreement.
                                         ProductCase{"0/1", "1/2", "0/1", 0.0, true},
                                         // A decimal 1.0 agrees with its ratio 1/1.
                                         ProductCase{"1", "1/3", "1/3", 1.0 / 3.0, true},
                                         // One side reads as 1/1 and is -1.0, not decimal.
                                         ProductCase{"0", "1/2", "1/2", 0.5, true},
                                         // Unreadable text is -1.0, too, so it is exact.
                                         ProductCase{"abc", "1", "1/1", 1.0, true},
                                         // Within a millionth counts as agreement.
                                         ProductCase{"1.0000005", "1/2", "1/2", 0.5, true},
                                         ProductCase{"0.9999995", "1/2", "1/2", 0.5, true}));

INSTANTIATE_TEST_SUITE_P(
    Decimal, FractionProduct,
    testing::Values(ProductCase{"0.5", "0.25", "0.125", 0.125, false},
                    ProductCase{"1/3", "0.5", "0.166667", 1.0 / 6.0, false},
                    ProductCase{"0.5", "1/3", "0.166667", 1.0 / 6.0, false},
                    // More than a millionth apart, on either side.
                    ProductCase{"1.000002", "1/2", "0.500001", 0.500001, false},
                    ProductCase{"0.999998", "1/2", "0.499999", 0.499999, false},
                    // Both zeros are other than -1.0, so both count as decimal here.
                    ProductCase{"0", "0.25", "0.25", 0.25, false},
                    ProductCase{"0", "0", "1", 1.0, false},
                    // The product rounds to 2^64, passes the overflow check and wraps to zero.
                    ProductCase{"4294967296/1", "4294967296/1", "1.84467e+19",
                                1.8446744073709552e19, false},
                    // A decimal product that is not above zero is not in decimal mode.
                    ProductCase{"1e-200", "1e-200", "1/1", 1.0, false}));

TEST(FractionProduct, LogsTheOverflowAndFallsBackToTheDecimal)
{
    const CapturedLog log;
    const Fraction product = parsed("4294967297/1") * parsed("4294967296/1");

    EXPECT_DOUBLE_EQ(product.toDouble(), 4294967297.0 * 4294967296.0);
    EXPECT_EQ(log.messages(), (QStringList{u"exception catch: Arithmetic Overflow"_s,
                                           u"newFraction = 1.84467e+19"_s}));
    for (const CapturedLog::Record& record : log.records()) {
        EXPECT_EQ(record.level, Logger::Debug);
        EXPECT_EQ(record.source, QLatin1String("fraction"));
        EXPECT_EQ(record.function, QLatin1String("Fraction Fraction::operator*(Fraction) const"));
    }
}

TEST(FractionProduct, CatchesAnOverflowOfTheDenominatorsToo)
{
    const CapturedLog log;
    const Fraction product = parsed("1/4294967297") * parsed("1/4294967296");

    EXPECT_EQ(log.records().size(), 2);
    EXPECT_GT(product.toDouble(), 0.0);
    EXPECT_NE(printed(product).find("e-20"), std::string::npos);
}

TEST(FractionProduct, ChecksForOverflowInFloatingPoint)
{
    // The largest integer rounds to 2^64, which is not above the threshold.
    const CapturedLog log;
    const Fraction product = Fraction(largest, 1) * Fraction(1, 1);

    EXPECT_EQ(printed(product), "18446744073709551615/1");
    EXPECT_TRUE(log.records().isEmpty());
}

TEST(FractionProduct, OfUndefinedRatiosStaysExact)
{
    const CapturedLog log;
    const Fraction product = Fraction(0, 0) * Fraction(1, 2);

    EXPECT_EQ(printed(product), "0/0");
    EXPECT_TRUE(log.records().isEmpty());
}

TEST(FractionQuotient, MultipliesByTheReciprocal)
{
    EXPECT_EQ(printed(Fraction(1, 2) / Fraction(2, 3)), "3/4");
    EXPECT_EQ(printed(Fraction(0.5) / Fraction(0.25)), "2");
    EXPECT_EQ(printed(Fraction(1, 2) / Fraction(0, 3)), "1/0");
    EXPECT_EQ(printed(Fraction(0.5) / Fraction(1, 3)), "1.5");
}

TEST(FractionReciprocal, SwapsTheRatioOrInvertsTheDecimal)
{
    EXPECT_EQ(printed(Fraction(3, 4).reciprocal()), "4/3");
    EXPECT_EQ(printed(Fraction(0, 4).reciprocal()), "1/0");
    EXPECT_EQ(printed(Fraction(4.0).reciprocal()), "0.25");
    // Not in decimal mode, so the ratio 1/1 is inverted; its decimal is -1.0 again.
    const Fraction ofZero = Fraction(0.0).reciprocal();
    EXPECT_EQ(printed(ofZero), "1/1");
    EXPECT_EQ(printed(ofZero * Fraction(0.0)), "1/1");
}

} // namespace

// Properties of all fractions, checked with generated ones.

#include "numeric/fraction.h"

#include <QStringList>

#include <cmath>
#include <numeric>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using rc::gen::arbitrary;
using rc::gen::inRange;
using rc::gen::nonZero;

// Decimal digits on both sides of the slash, as toString() gives them.
std::pair<quint64, quint64> ratioOf(const Fraction& fraction)
{
    const QStringList parts = fraction.toString().split(u'/');
    RC_ASSERT(parts.size() == 2);
    return {parts[0].toULongLong(), parts[1].toULongLong()};
}

bool near(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b)) || std::abs(a / b - 1.0) <= 1.000001e-6;
}

RC_GTEST_PROP(FractionProperty, IsAlwaysReduced, (quint64 numerator, quint64 denominator))
{
    const auto [n, d] = ratioOf(Fraction(numerator, denominator));
    RC_ASSERT(std::gcd(n, d) <= 1U);
}

RC_GTEST_PROP(FractionProperty, KeepsItsValueWhenReduced, ())
{
    const auto factor = *inRange<quint64>(1, 1000);
    const auto numerator = *inRange<quint64>(0, 1000000);
    const auto denominator = *inRange<quint64>(1, 1000000);
    RC_ASSERT(Fraction(factor * numerator, factor * denominator) ==
              Fraction(numerator, denominator));
}

RC_GTEST_PROP(FractionProperty, ReadsBackWhatItPrints, (quint64 numerator, quint64 denominator))
{
    const Fraction fraction(numerator, denominator);
    RC_ASSERT(Fraction(fraction.toString()) == fraction);
}

RC_GTEST_PROP(FractionProperty, SmallProductsAreExact, ())
{
    const auto small = inRange<quint64>(0, 4294967295U);
    const auto positive = inRange<quint64>(1, 4294967295U);
    const quint64 a = *small;
    const quint64 b = *positive;
    const quint64 c = *small;
    const quint64 d = *positive;
    RC_ASSERT(Fraction(a, b) * Fraction(c, d) == Fraction(a * c, b * d));
}

RC_GTEST_PROP(FractionProperty, ProductsAgreeWithFloatingPoint, (quint64 a, quint64 c))
{
    const Fraction left(a, *nonZero<quint64>());
    const Fraction right(c, *nonZero<quint64>());
    const double expected = left.toDouble() * right.toDouble();
    RC_ASSERT(near((left * right).toDouble(), expected));
}

RC_GTEST_PROP(FractionProperty, ProductsCommute, (quint64 a, quint64 b, quint64 c, quint64 d))
{
    const Fraction left(a, b);
    const Fraction right(c, d);
    RC_ASSERT((left * right).toString() == (right * left).toString());
}

RC_GTEST_PROP(FractionProperty, DecimalsMultiplyAsDecimals, ())
{
    const double a = *inRange<int>(1, 1 << 20) / 1024.0;
    const double b = *inRange<int>(1, 1 << 20) / 1024.0;
    RC_ASSERT((Fraction(a) * Fraction(b)).toDouble() == a * b);
}

RC_GTEST_PROP(FractionProperty, ReciprocalTurnsOverAndBack, (quint64 numerator))
{
    const Fraction fraction(numerator, *nonZero<quint64>());
    RC_ASSERT(fraction.reciprocal().reciprocal() == fraction);
}

RC_GTEST_PROP(FractionProperty, QuotientBySelfIsOne, ())
{
    const Fraction fraction(*inRange<quint64>(1, 4294967295U), *inRange<quint64>(1, 4294967295U));
    RC_ASSERT(fraction / fraction == Fraction());
}

RC_GTEST_PROP(FractionProperty, AnyTextGivesAValue, (const std::string& text))
{
    const double value = Fraction(QString::fromStdString(text)).toDouble();
    RC_ASSERT(std::isnan(value) || value >= 0.0);
}

RC_GTEST_PROP(FractionProperty, AnyDecimalGivesAPositiveValue, (double decimal))
{
    RC_ASSERT(Fraction(decimal).toDouble() == (decimal > 0.0 ? decimal : 1.0));
}

} // namespace

#include "numeric/fraction.h"

#include "numeric/overflow_error_exception.h"
#include "numeric/plain_number.h"

#include <Logger.h>

#include <numeric>

namespace {

// The decimal of a fraction that holds an exact ratio.
constexpr double noDecimal = -1.0;

// How far the exact product may stand from the floating-point product, as a quotient.
constexpr double lowestAgreement = 0.999999;
constexpr double highestAgreement = 1.000001;

constexpr double twoToThe64 = 18446744073709551616.0;

void logDebug(int line, const char* function, const char* format, const QByteArray& text)
{
    CuteMessageLogger(loggerInstance(), Logger::Debug, "fraction.cpp", line, function)
        .write(format, text.constData());
}

quint64 unsignedOrOne(QStringView text)
{
    if (const std::optional<quint64> number = plainWholeNumber(text)) {
        return *number;
    }
    bool ok = false;
    const quint64 number = text.toULongLong(&ok);
    return ok ? number : 1;
}

// The check is made in floating point: a product that rounds to 2^64 passes it and wraps.
// Old labels depend on that; the agreement test of the product then finds it.
quint64 checkedProduct(quint64 a, quint64 b)
{
    if (static_cast<double>(a) * static_cast<double>(b) > twoToThe64) {
        throw OverflowErrorException();
    }
    return a * b;
}

// Asked this way round so that an undefined quotient, zero by zero, counts as agreement:
// old labels depend on 0/1 times 1/2 staying exact.
bool agrees(double quotient)
{
    return !(quotient < lowestAgreement || quotient > highestAgreement);
}

} // namespace

Fraction::Fraction(quint64 numerator, quint64 denominator)
    : m_numerator(numerator)
    , m_denominator(denominator)
{
    reduce();
}

Fraction::Fraction(double value)
    : m_decimal(value)
{}

Fraction::Fraction(const QString& text)
{
    if (const qsizetype slash = text.indexOf(u'/'); slash >= 0) {
        readRatio(text, slash);
        return;
    }
    if (const std::optional<double> number = plainDecimal(text)) {
        m_decimal = *number;
        return;
    }
    bool ok = false;
    m_decimal = text.toDouble(&ok);
    if (!ok) {
        logDebug(__LINE__, Q_FUNC_INFO, "string \"%s\" invalid", text.toLocal8Bit());
        m_decimal = noDecimal;
    }
}

double Fraction::toDouble() const
{
    return isDecimal() ? m_decimal
                       : static_cast<double>(m_numerator) / static_cast<double>(m_denominator);
}

QString Fraction::toString() const
{
    if (isDecimal()) {
        return QString::number(m_decimal, 'g', 6);
    }
    return QString::number(m_numerator) + u'/' + QString::number(m_denominator);
}

bool Fraction::operator==(const Fraction& other) const
{
    if (isDecimal()) {
        return m_decimal == other.m_decimal;
    }
    return m_numerator == other.m_numerator && m_denominator == other.m_denominator;
}

bool Fraction::operator!=(const Fraction& other) const
{
    return !(*this == other);
}

Fraction Fraction::operator*(Fraction other) const
{
    const double product = toDouble() * other.toDouble();
    // A decimal of zero counts as decimal here, though nowhere else: old labels depend on it.
    const bool bothDecimal = m_decimal != noDecimal && other.m_decimal != noDecimal;
    if (!bothDecimal) {
        try {
            const Fraction exact = exactProduct(*this, other);
            if (agrees(exact.toDouble() / product)) {
                return exact;
            }
        } catch (const OverflowErrorException& exception) {
            logDebug(__LINE__, Q_FUNC_INFO, "exception catch: %s", exception.what());
        }
    }
    const Fraction newFraction(product);
    logDebug(__LINE__, Q_FUNC_INFO, "newFraction = %s", newFraction.toString().toLocal8Bit());
    return newFraction;
}

Fraction Fraction::operator/(Fraction other) const
{
    return *this * other.reciprocal();
}

Fraction Fraction::reciprocal() const
{
    return isDecimal() ? Fraction(1.0 / m_decimal) : Fraction(m_denominator, m_numerator);
}

bool Fraction::isDecimal() const
{
    return m_decimal > 0.0;
}

// Takes both ratios as they stand, so that a decimal operand takes part as 1/1.
Fraction Fraction::exactProduct(const Fraction& a, const Fraction& b)
{
    const quint64 denominator = checkedProduct(a.m_denominator, b.m_denominator);
    const quint64 numerator = checkedProduct(a.m_numerator, b.m_numerator);
    return {numerator, denominator};
}

void Fraction::readRatio(const QString& text, qsizetype slash)
{
    m_numerator = unsignedOrOne(QStringView(text).left(slash));
    m_denominator = unsignedOrOne(QStringView(text).mid(slash + 1));
    reduce();
}

void Fraction::reduce()
{
    const quint64 divisor = std::gcd(m_numerator, m_denominator);
    // 0/0 has the divisor 0 and stays as it is.
    if (divisor > 1) {
        m_numerator /= divisor;
        m_denominator /= divisor;
    }
}

#include "numeric/fraction.h"

#include "numeric/overflow_error_exception.h"
#include "numeric/plain_number.h"

#include <Logger.h>

#include <numeric>

namespace {

// The decimal of an exact fraction.
constexpr double NoDecimal = -1.0;

// Range of the quotient of the exact and the floating-point product.
constexpr double LowestAgreement = 0.999999;
constexpr double HighestAgreement = 1.000001;

constexpr double TwoToThe64 = 18446744073709551616.0;

void logDebug(int line, const char* function, const char* format, const QByteArray& text)
{
    CuteMessageLogger(loggerInstance(), Logger::Debug, "fraction", line, function)
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

// Checked in floating point: a product that rounds to 2^64 passes the check and wraps. Old labels
// depend on it; the comparison with the floating-point product then detects it.
quint64 checkedProduct(quint64 a, quint64 b)
{
    if (static_cast<double>(a) * static_cast<double>(b) > TwoToThe64) {
        throw OverflowErrorException();
    }
    return a * b;
}

// Negated so that an undefined quotient, zero by zero, counts as agreement: old labels depend on
// 0/1 times 1/2 being exact.
bool agrees(double quotient)
{
    return !(quotient < LowestAgreement || quotient > HighestAgreement);
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
        m_decimal = NoDecimal;
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
    // Only here, a decimal of zero counts as decimal. Old labels depend on it.
    const bool bothDecimal = m_decimal != NoDecimal && other.m_decimal != NoDecimal;
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

// Multiplies the ratios, so a decimal operand counts as 1/1.
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
    // 0/0 has the divisor 0 and remains unchanged.
    if (divisor > 1) {
        m_numerator /= divisor;
        m_denominator /= divisor;
    }
}

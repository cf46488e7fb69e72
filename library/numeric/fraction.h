#pragma once

#include <QString>
#include <QtGlobal>

/// A number that is either an exact ratio of two unsigned integers or a plain decimal value,
/// because legacy files write a size either way ("3/4" or "0.75").
///
/// A fraction is in decimal mode exactly when its decimal is above zero; in every other case
/// its value is numerator / denominator. A decimal of zero or below therefore counts as 1/1:
/// old labels depend on it, "0" and an unreadable size both mean one.
///
/// Exact fractions are always reduced. No operation throws.
class Fraction
{
public:
    /// 1/1.
    Fraction() = default;
    /// The exact ratio, reduced. A zero denominator is accepted, see toDouble().
    Fraction(quint64 numerator, quint64 denominator);
    /// The decimal value; a value that is not above zero leaves the fraction at 1/1.
    explicit Fraction(double value);
    /// Reads "N/D" as an exact ratio, where a part that is no unsigned integer becomes 1, and
    /// anything else as a decimal number. What is neither has the value 1 and is logged.
    explicit Fraction(const QString& text);

    /// The value. A zero denominator gives infinity, 0/0 gives NaN.
    [[nodiscard]] double toDouble() const;
    /// "N/D", or the decimal value with up to six significant digits.
    [[nodiscard]] QString toString() const;

    /// Compares decimals when this fraction is in decimal mode, else the reduced ratios. Only
    /// the left side's mode decides, so the comparison is not symmetric.
    bool operator==(const Fraction& other) const;
    bool operator!=(const Fraction& other) const;

    /// The exact product when both are exact and it fits, else the decimal product.
    Fraction operator*(Fraction other) const;
    /// This fraction times the other's reciprocal.
    Fraction operator/(Fraction other) const;
    /// Denominator / numerator, or one over the decimal value.
    [[nodiscard]] Fraction reciprocal() const;

private:
    [[nodiscard]] bool isDecimal() const;
    [[nodiscard]] static Fraction exactProduct(const Fraction& a, const Fraction& b);
    void readRatio(const QString& text, qsizetype slash);
    void reduce();

    quint64 m_numerator = 1;
    quint64 m_denominator = 1;
    double m_decimal = -1.0;
};

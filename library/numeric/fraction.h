#pragma once

#include <QString>
#include <QtGlobal>

/// Either an exact ratio of two unsigned integers or a decimal value, because legacy files contain
/// both kinds of sizes ("3/4" and "0.75").
///
/// A fraction is in decimal mode if its decimal is above zero; otherwise its value is numerator /
/// denominator. A decimal of zero or below therefore counts as 1/1. Old labels depend on it: "0"
/// and an unreadable size both mean one.
///
/// Exact fractions are always reduced. No operation throws.
class Fraction
{
public:
    /// 1/1.
    Fraction() = default;
    /// The exact ratio, reduced. For a zero denominator see toDouble().
    Fraction(quint64 numerator, quint64 denominator);
    /// The decimal value; 1/1 if the value is not above zero.
    explicit Fraction(double value);
    /// Reads "N/D" as an exact ratio, in which a part that is not an unsigned integer becomes 1,
    /// and any other text as a decimal number. An invalid text has the value 1 and is logged.
    explicit Fraction(const QString& text);

    /// The value. A zero denominator gives infinity, 0/0 gives NaN.
    [[nodiscard]] double toDouble() const;
    /// "N/D", or the decimal value with up to six significant digits.
    [[nodiscard]] QString toString() const;

    /// Compares the decimals if this fraction is in decimal mode, else the reduced ratios. Only the
    /// mode of the left side counts, so the comparison is not symmetric.
    bool operator==(const Fraction& other) const;
    bool operator!=(const Fraction& other) const;

    /// The exact product if both are exact and it fits, else the decimal product.
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

// Fraction texts: parsing, arithmetic, printing.

#include "numeric/fraction.h"
#include "fuzz/harness.h"

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype half = input.size() / 2;
    const Fraction a(QString::fromUtf8(input.left(half)));
    const Fraction b(QString::fromUtf8(input.mid(half)));
    const QString texts = (a * b).toString() + (a / b).toString();
    if (texts.isEmpty() || (a == b) == (a != b)) {
        qFatal("a fraction contradicts itself");
    }
}

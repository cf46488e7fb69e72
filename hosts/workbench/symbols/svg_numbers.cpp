#include "workbench/symbols/svg_numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench::symbols {

namespace {

[[nodiscard]] bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

[[nodiscard]] qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Where the number that begins here ends; an exponent counts only with its digits.
[[nodiscard]] qsizetype endOfNumber(QStringView text, qsizetype at)
{
    at = skipDigits(text, at);
    if (at < text.size() && text[at] == u'.')
        at = skipDigits(text, at + 1);
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        qsizetype exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == u'+' || text[exponent] == u'-'))
            ++exponent;
        if (exponent < text.size() && isDigit(text[exponent]))
            at = skipDigits(text, exponent);
    }
    return at;
}

[[nodiscard]] double magnitude(QStringView digits)
{
    bool ok = false;
    const double value = digits.toDouble(&ok);
    // Qt refuses a number that is too large; one that is too small comes out as 0.
    return ok || value == 0.0 ? value : std::numeric_limits<double>::infinity();
}

} // namespace

NumberSummary summarizeNumbers(QStringView text)
{
    NumberSummary summary;
    qsizetype at = 0;
    while (at < text.size()) {
        if (!isDigit(text[at]) && text[at] != u'.') {
            ++at;
            continue;
        }
        const qsizetype end = std::max(endOfNumber(text, at), at + 1);
        const double value = magnitude(text.sliced(at, end - at));
        ++summary.count;
        summary.greatest = std::max(summary.greatest, value);
        summary.sum += value;
        at = end;
    }
    return summary;
}

} // namespace workbench::symbols

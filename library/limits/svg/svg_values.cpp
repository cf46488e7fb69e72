#include "limits/svg/svg_values.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace svglimits {

namespace {

[[nodiscard]] const QRegularExpression& externalPattern()
{
    static const QRegularExpression pattern(
        uR"(\\|@import|@charset|@font-face|url\s*\(\s*["']?\s*(?!["'#\s]))"_s,
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

[[nodiscard]] QStringList capturedTexts(const QRegularExpression& pattern, const QString& text)
{
    QStringList captured;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        captured << matches.next().captured(1);
    }
    return captured;
}

struct Unit
{
    QStringView suffix;
    double userUnits;
};

// On a screen of 96 pixels per inch, with the default font of 16 pixels.
constexpr std::array<Unit, 10> Units{{
    {u"px", 1.0},
    {u"pt", 96.0 / 72.0},
    {u"pc", 16.0},
    {u"mm", 96.0 / 25.4},
    {u"cm", 96.0 / 2.54},
    {u"in", 96.0},
    {u"Q", 96.0 / 101.6},
    {u"em", 16.0},
    {u"ex", 8.0},
    {u"", 1.0},
}};

[[nodiscard]] bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

[[nodiscard]] qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

/// The end of the number that begins here; an exponent counts only with its digits.
[[nodiscard]] qsizetype endOfNumber(QStringView text, qsizetype at)
{
    at = skipDigits(text, at);
    if (at < text.size() && text[at] == u'.') {
        at = skipDigits(text, at + 1);
    }
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        qsizetype exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == u'+' || text[exponent] == u'-')) {
            ++exponent;
        }
        if (exponent < text.size() && isDigit(text[exponent])) {
            at = skipDigits(text, exponent);
        }
    }
    return at;
}

[[nodiscard]] double magnitude(QStringView digits)
{
    bool ok = false;
    const double value = digits.toDouble(&ok);
    // Qt refuses a number that is too large; one that is too small becomes 0.
    return ok || value == 0.0 ? value : std::numeric_limits<double>::infinity();
}

} // namespace

bool pointsOutside(QStringView css)
{
    return externalPattern().match(css.toString()).hasMatch();
}

QString filterDeclarations(const QString& style, const DeclarationFilter& filter)
{
    QStringList kept;
    const QStringList declarations = style.split(u';', Qt::SkipEmptyParts);
    for (const QString& declaration : declarations) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon < 0 || pointsOutside(declaration)) {
            continue;
        }
        const QString name = declaration.left(colon).trimmed().toLower();
        const QString value = filter(name, declaration.mid(colon + 1).trimmed());
        if (!value.isEmpty()) {
            kept << name + u':' + value;
        }
    }
    return kept.join(u';');
}

QString filterStyleSheet(const QString& css, bool keepDashes)
{
    if (pointsOutside(css)) {
        return {};
    }
    if (keepDashes) {
        return css;
    }
    QString solid = css;
    return solid.replace(u"stroke-dasharray"_s, u"x-dasharray"_s, Qt::CaseInsensitive);
}

QStringList dashArrays(const QString& css)
{
    static const QRegularExpression pattern(uR"(stroke-dasharray\s*:([^;}]*))"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return capturedTexts(pattern, css);
}

QStringList urlFragments(QStringView value)
{
    static const QRegularExpression pattern(uR"(url\s*\(\s*["']?\s*#([^"')\s]+))"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return capturedTexts(pattern, value.toString());
}

std::optional<SvgLength> parseSvgLength(QStringView text)
{
    text = text.trimmed();
    const bool percent = text.endsWith(u'%');
    double factor = 1.0;
    if (percent) {
        text.chop(1);
    } else {
        for (const Unit& unit : Units) {
            if (text.endsWith(unit.suffix, Qt::CaseInsensitive)) {
                text.chop(unit.suffix.size());
                factor = unit.userUnits;
                break;
            }
        }
    }
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
        return std::nullopt;
    }
    return SvgLength{value, percent, factor};
}

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

} // namespace svglimits

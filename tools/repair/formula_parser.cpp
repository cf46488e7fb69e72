#include "repair/formula_parser.h"

#include "repair/formula.h"

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

// Parentheses within one another, and work for all formulas of a shape.
constexpr int MaximumFormulaDepth = 100;
constexpr int MaximumSteps = 200'000;
// Coordinates of real shapes stay below 10,000,000.
constexpr double MaximumValue = 1e9;

} // namespace

double FormulaParser::fail()
{
    m_hasFailed = true;
    m_at = m_text.size();
    return 0.0;
}

bool FormulaParser::take(QChar character)
{
    while (m_at < m_text.size() && m_text[m_at].isSpace()) {
        ++m_at;
    }
    if (m_at < m_text.size() && m_text[m_at] == character) {
        ++m_at;
        return true;
    }
    return false;
}

std::optional<double> FormulaParser::parse()
{
    const double value = sum();
    const bool isComplete = !take(u'\0') && m_at >= m_text.size();
    const bool isUsable = isComplete && !m_hasFailed && std::abs(value) <= MaximumValue;
    return isUsable ? std::optional(value) : std::nullopt;
}

double FormulaParser::sum()
{
    double value = product();
    while (!m_hasFailed) {
        if (take(u'+')) {
            value += product();
        } else if (take(u'-')) {
            value -= product();
        } else {
            break;
        }
    }
    return value;
}

double FormulaParser::product()
{
    double value = factor();
    while (!m_hasFailed) {
        if (take(u'*')) {
            value *= factor();
        } else if (take(u'/')) {
            const double divisor = factor();
            value = divisor == 0.0 ? 0.0 : value / divisor;
        } else {
            break;
        }
    }
    return value;
}

double FormulaParser::factor()
{
    if (++m_formulas.m_steps > MaximumSteps) {
        return fail();
    }
    bool isNegative = false;
    while (take(u'-')) {
        isNegative = !isNegative;
    }
    double value = 0.0;
    if (take(u'(')) {
        value = parenthesized();
    } else if (take(u'$')) {
        value = m_formulas.m_modifiers.value(word().toInt(), 0.0);
    } else if (take(u'?')) {
        const auto found = m_formulas.equation(word().toString());
        value = found ? *found : fail();
    } else if (m_at < m_text.size() && (m_text[m_at].isDigit() || m_text[m_at] == u'.')) {
        value = literal();
    } else {
        value = named();
    }
    return isNegative ? -value : value;
}

double FormulaParser::parenthesized()
{
    if (++m_formulas.m_depth > MaximumFormulaDepth) {
        return fail();
    }
    const double value = sum();
    --m_formulas.m_depth;
    return take(u')') ? value : fail();
}

double FormulaParser::literal()
{
    const qsizetype start = m_at;
    const auto isPart = [this](qsizetype at) {
        return m_text[at].isDigit() || m_text[at] == u'.' || m_text[at] == u'e' ||
               m_text[at] == u'E' ||
               (m_text[at] == u'-' && at > 0 && m_text[at - 1].toLower() == u'e');
    };
    while (m_at < m_text.size() && isPart(m_at)) {
        ++m_at;
    }
    bool isNumber = false;
    const double value = m_text.sliced(start, m_at - start).toDouble(&isNumber);
    return isNumber ? value : fail();
}

QStringView FormulaParser::word()
{
    const qsizetype start = m_at;
    while (m_at < m_text.size() && (m_text[m_at].isLetterOrNumber() || m_text[m_at] == u'_')) {
        ++m_at;
    }
    return m_text.sliced(start, m_at - start);
}

double FormulaParser::named()
{
    const QStringView name = word();
    if (name.isEmpty()) {
        return fail();
    }
    if (take(u'(')) {
        return call(name);
    }
    const auto constant = m_formulas.constant(name);
    return constant ? *constant : fail();
}

double FormulaParser::call(QStringView name)
{
    if (++m_formulas.m_depth > MaximumFormulaDepth) {
        return fail();
    }
    QList<double> values{sum()};
    while (!m_hasFailed && values.size() < 3 && take(u',')) {
        values.append(sum());
    }
    --m_formulas.m_depth;
    if (!take(u')')) {
        return fail();
    }
    const double first = values[0];
    const double second = values.value(1);
    if (name == u"abs") {
        return std::abs(first);
    }
    if (name == u"sqrt") {
        return std::sqrt(std::max(0.0, first));
    }
    if (name == u"sin") {
        return std::sin(first);
    }
    if (name == u"cos") {
        return std::cos(first);
    }
    if (name == u"tan") {
        return std::tan(first);
    }
    if (name == u"atan") {
        return std::atan(first);
    }
    if (name == u"atan2") {
        return std::atan2(first, second);
    }
    if (name == u"min") {
        return std::min(first, second);
    }
    if (name == u"max") {
        return std::max(first, second);
    }
    if (name == u"if") {
        return first > 0.0 ? second : values.value(2);
    }
    return fail();
}

} // namespace repair

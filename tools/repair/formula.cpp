#include "repair/formula.h"

#include "repair/formula_parser.h"
#include "repair/xml_tree.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Equations that refer to one another.
constexpr int MaximumEquationDepth = 100;
// Points to 1/100 mm, the unit of logwidth.
constexpr double HundredthsPerPoint = 2540.0 / 72.0;

QList<double> numbers(const QString& text)
{
    QList<double> values;
    const QString plain = QString(text).replace(u',', u' ');
    for (const QString& part : plain.split(u' ', Qt::SkipEmptyParts)) {
        values.append(part.toDouble());
    }
    return values;
}

} // namespace

Formulas::Formulas(const Node& geometry, const QSizeF& size)
    : m_size(size)
    , m_modifiers(numbers(geometry.attribute(u"draw:modifiers")))
    , m_stretchX(geometry.attribute(u"draw:path-stretchpoint-x").toDouble())
    , m_stretchY(geometry.attribute(u"draw:path-stretchpoint-y").toDouble())
{
    const QList<double> box = numbers(geometry.attribute(u"svg:viewBox"));
    m_viewBox = box.size() == 4 ? QRectF(box[0], box[1], box[2], box[3]) : QRectF();
    m_givenSize = m_viewBox.size();
    // A box of no size is the shape itself.
    if (!(m_viewBox.width() > 0.0 && m_viewBox.height() > 0.0)) {
        m_viewBox = QRectF(QPointF(), size * HundredthsPerPoint);
    } else if (m_stretchX > 0.0 || m_stretchY > 0.0) {
        // Parts beyond the stretch point keep their proportions: the box takes the shape's.
        const double shape = size.width() / std::max(size.height(), 0.001);
        const double given = m_viewBox.width() / m_viewBox.height();
        if (m_stretchX > 0.0 && shape > given) {
            m_viewBox.setWidth(m_viewBox.height() * shape);
        } else if (m_stretchY > 0.0 && shape < given && shape > 0.0) {
            m_viewBox.setHeight(m_viewBox.width() / shape);
        }
    }
    for (const auto& child : geometry.children) {
        if (child->is(u"draw:equation")) {
            m_equations.insert(child->attribute(u"draw:name"), child->attribute(u"draw:formula"));
        }
    }
}

std::optional<double> Formulas::value(QStringView formula)
{
    return FormulaParser(*this, formula.trimmed()).parse();
}

std::optional<double> Formulas::coordinate(QStringView text, Qt::Orientation direction)
{
    const auto result = value(text);
    if (result && direction == Qt::Horizontal && *result == m_givenSize.width()) {
        return m_viewBox.right();
    }
    if (result && direction == Qt::Vertical && *result == m_givenSize.height()) {
        return m_viewBox.bottom();
    }
    return result;
}

std::optional<double> Formulas::equation(const QString& name)
{
    if (const auto known = m_known.constFind(name); known != m_known.constEnd()) {
        return *known;
    }
    const auto found = m_equations.constFind(name);
    if (found == m_equations.constEnd() || ++m_depth > MaximumEquationDepth) {
        return std::nullopt;
    }
    const auto result = value(*found);
    --m_depth;
    if (result) {
        m_known.insert(name, *result);
    }
    return result;
}

std::optional<double> Formulas::constant(QStringView name) const
{
    const struct
    {
        QStringView name;
        double value;
    } constants[] = {
        {u"left", m_viewBox.left()},
        {u"top", m_viewBox.top()},
        {u"right", m_viewBox.right()},
        {u"bottom", m_viewBox.bottom()},
        {u"width", m_viewBox.width()},
        {u"height", m_viewBox.height()},
        {u"logwidth", m_size.width() * HundredthsPerPoint},
        {u"logheight", m_size.height() * HundredthsPerPoint},
        {u"xstretch", m_stretchX},
        {u"ystretch", m_stretchY},
        {u"pi", M_PI},
        {u"hasstroke", 1.0},
        {u"hasfill", 1.0},
    };
    for (const auto& constant : constants) {
        if (constant.name == name) {
            return constant.value;
        }
    }
    return std::nullopt;
}

} // namespace repair

#include "repair/enhanced_path.h"

#include "repair/enhanced_path_parts.h"
#include "repair/formula.h"
#include "repair/lengths.h"
#include "repair/xml_tree.h"

#include <QStringList>
#include <QTransform>

#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Paths of real shapes have below 1,000 parts.
constexpr qsizetype MaximumParts = 20'000;
// Of a quarter of a circle drawn as a curve: the control points' distance per radius.
constexpr double QuarterReach = 0.5522847498;

/// Draws command by command, in the coordinates of the view box.
class Drawer
{
public:
    explicit Drawer(Formulas& formulas)
        : m_formulas(formulas)
    {}

    [[nodiscard]] bool draw(const QString& path);
    [[nodiscard]] std::vector<Outline> take();

private:
    [[nodiscard]] bool readNumbers(const QStringList& parts, qsizetype& at, int count);
    void run(QChar command);
    void runState(QChar command);
    void ellipse(bool startsSubpath);
    void arc(bool startsSubpath, bool isClockwise);
    void arcByAngles();
    void quadrant(bool startsAlongX);
    [[nodiscard]] QPointF point(int index) const
    {
        return {m_numbers[2 * index], m_numbers[2 * index + 1]};
    }

    Formulas& m_formulas;
    std::vector<Outline> m_outlines{Outline()};
    QList<double> m_numbers;
    int m_repetition = 0;
};

bool Drawer::draw(const QString& path)
{
    const QStringList parts = partsOfPath(path);
    QChar command;
    for (qsizetype at = 0; at < parts.size();) {
        const bool isCommand = parts[at].size() == 1 && parts[at][0].isUpper();
        m_repetition = isCommand ? 0 : m_repetition + 1;
        if (isCommand) {
            command = parts[at++][0];
        } else if (command == u'M') {
            command = u'L';
        }
        const int count = numbersOfCommand(command);
        if (count < 0 || (!isCommand && count == 0) || parts.size() > MaximumParts ||
            !readNumbers(parts, at, count)) {
            return false;
        }
        run(command);
    }
    return true;
}

std::vector<Outline> Drawer::take()
{
    std::erase_if(m_outlines, [](const Outline& each) { return each.path.elementCount() < 2; });
    return std::move(m_outlines);
}

bool Drawer::readNumbers(const QStringList& parts, qsizetype& at, int count)
{
    m_numbers.clear();
    for (int i = 0; i < count; ++i, ++at) {
        const auto number =
            at < parts.size()
                ? m_formulas.coordinate(parts[at], i % 2 == 0 ? Qt::Horizontal : Qt::Vertical)
                : std::nullopt;
        if (!number) {
            return false;
        }
        m_numbers.append(*number);
    }
    return true;
}

void Drawer::run(QChar command)
{
    QPainterPath& path = m_outlines.back().path;
    switch (command.unicode()) {
    case u'M':
        path.moveTo(point(0));
        break;
    case u'L':
        path.lineTo(point(0));
        break;
    case u'C':
        path.cubicTo(point(0), point(1), point(2));
        break;
    case u'Q':
        path.quadTo(point(0), point(1));
        break;
    case u'T':
    case u'U':
        ellipse(command == u'U');
        break;
    case u'A':
    case u'B':
        arc(command == u'B', false);
        break;
    case u'W':
    case u'V':
        arc(command == u'V', true);
        break;
    case u'G':
        arcByAngles();
        break;
    case u'X':
    case u'Y':
        quadrant(command == u'X');
        break;
    default:
        runState(command);
    }
}

void Drawer::runState(QChar command)
{
    if (command == u'Z') {
        m_outlines.back().path.closeSubpath();
    } else if (command == u'N') {
        m_outlines.emplace_back();
    } else if (command == u'F') {
        m_outlines.back().isFilled = false;
    } else if (command == u'S') {
        m_outlines.back().isStroked = false;
    }
}

// Center, radii, start angle, end angle; in degrees, clockwise.
void Drawer::ellipse(bool startsSubpath)
{
    const QSizeF radii(m_numbers[2], m_numbers[3]);
    const QRectF box(m_numbers[0] - radii.width(), m_numbers[1] - radii.height(),
                     2.0 * radii.width(), 2.0 * radii.height());
    const double start = m_numbers[4];
    double sweep = std::fmod(m_numbers[5] - start, 360.0);
    if (sweep <= 0.0) {
        sweep += 360.0;
    }
    QPainterPath& path = m_outlines.back().path;
    if (startsSubpath) {
        path.arcMoveTo(box, -start);
    }
    path.arcTo(box, -start, -sweep);
    if (startsSubpath && sweep == 360.0) {
        path.closeSubpath();
    }
}

double angleOf(const QRectF& box, const QPointF& point)
{
    const QPointF from = point - box.center();
    return std::atan2(-from.y() * box.width(), from.x() * box.height()) * DegreesPerRadian;
}

// The corners of the ellipse's box, then points in the directions of the arc's start and end.
void Drawer::arc(bool startsSubpath, bool isClockwise)
{
    const QRectF box = QRectF(point(0), point(1)).normalized();
    const double start = angleOf(box, point(2));
    double sweep = std::fmod(angleOf(box, point(3)) - start, 360.0);
    if (isClockwise && sweep >= 0.0) {
        sweep -= 360.0;
    } else if (!isClockwise && sweep <= 0.0) {
        sweep += 360.0;
    }
    QPainterPath& path = m_outlines.back().path;
    if (startsSubpath) {
        path.arcMoveTo(box, start);
    }
    path.arcTo(box, start, sweep);
}

// Radii, the angle of the present point, the angle to go; in degrees, clockwise.
void Drawer::arcByAngles()
{
    QPainterPath& path = m_outlines.back().path;
    const double start = m_numbers[2] / DegreesPerRadian;
    const QPointF center = path.currentPosition() -
                           QPointF(m_numbers[0] * std::cos(start), m_numbers[1] * std::sin(start));
    const QRectF box(center.x() - m_numbers[0], center.y() - m_numbers[1], 2.0 * m_numbers[0],
                     2.0 * m_numbers[1]);
    path.arcTo(box, -m_numbers[2], -m_numbers[3]);
}

// A quarter of an ellipse; further ones begin in the other direction by turns.
void Drawer::quadrant(bool startsAlongX)
{
    QPainterPath& path = m_outlines.back().path;
    const QPointF from = path.currentPosition();
    const QPointF to = point(0);
    const QPointF reach = (to - from) * QuarterReach;
    const bool alongX = startsAlongX == (m_repetition % 2 == 0);
    path.cubicTo(alongX ? from + QPointF(reach.x(), 0.0) : from + QPointF(0.0, reach.y()),
                 alongX ? to - QPointF(0.0, reach.y()) : to - QPointF(reach.x(), 0.0), to);
}

QTransform toBox(const Node& geometry, const QRectF& viewBox, const QSizeF& size)
{
    QTransform map =
        QTransform::fromTranslate(-viewBox.x(), -viewBox.y()) *
        QTransform::fromScale(size.width() / viewBox.width(), size.height() / viewBox.height());
    if (geometry.attribute(u"draw:mirror-horizontal") == "true"_L1) {
        map *= QTransform(-1.0, 0.0, 0.0, 1.0, size.width(), 0.0);
    }
    if (geometry.attribute(u"draw:mirror-vertical") == "true"_L1) {
        map *= QTransform(1.0, 0.0, 0.0, -1.0, 0.0, size.height());
    }
    return map;
}

// The first of the text areas; the box if there is none.
QRectF textAreaOf(const Node& geometry, Formulas& formulas, const QTransform& map,
                  const QSizeF& size)
{
    const QStringList parts =
        geometry.attribute(u"draw:text-areas").split(u' ', Qt::SkipEmptyParts);
    const QRectF whole(QPointF(), size);
    if (parts.size() < 4) {
        return whole;
    }
    double sides[4] = {};
    for (int i = 0; i < 4; ++i) {
        const auto side = formulas.coordinate(parts[i], i % 2 == 0 ? Qt::Horizontal : Qt::Vertical);
        if (!side) {
            return whole;
        }
        sides[i] = *side;
    }
    const QRectF area =
        map.mapRect(QRectF(QPointF(sides[0], sides[1]), QPointF(sides[2], sides[3])));
    return area.width() > 0.0 && area.height() > 0.0 ? area : whole;
}

} // namespace

std::optional<CustomShape> drawCustomShape(const Node& geometry, const QSizeF& size)
{
    if (!(size.width() > 0.0 && size.height() > 0.0)) {
        return std::nullopt;
    }
    Formulas formulas(geometry, size);
    Drawer drawer(formulas);
    if (!drawer.draw(geometry.attribute(u"draw:enhanced-path"))) {
        return std::nullopt;
    }
    const QTransform map = toBox(geometry, formulas.viewBox(), size);
    CustomShape shape{drawer.take(), textAreaOf(geometry, formulas, map, size)};
    for (Outline& outline : shape.outlines) {
        outline.path = map.map(outline.path);
    }
    return shape.outlines.empty() ? std::nullopt : std::optional(std::move(shape));
}

} // namespace repair

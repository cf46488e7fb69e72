#include "repair/svg_path.h"

#include <array>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Freehand lines of real drawings stay below 20,000.
constexpr int MaximumElements = 100'000;
constexpr double MaximumCoordinate = 1e7;

/// Reads numbers and commands as SVG writes them: "M10-5.5.5z".
class Scanner
{
public:
    explicit Scanner(QStringView text)
        : m_text(text)
    {}

    [[nodiscard]] bool atEnd()
    {
        skipSeparators();
        return m_at >= m_text.size();
    }
    /// The next character if it is a letter, else none.
    [[nodiscard]] QChar command();
    [[nodiscard]] bool read(double& value);
    /// A flag of an arc is one digit, and may be followed by a number at once.
    [[nodiscard]] bool readFlag(double& value);

private:
    void skipSeparators();
    void skipDigits();

    QStringView m_text;
    qsizetype m_at = 0;
};

void Scanner::skipSeparators()
{
    while (m_at < m_text.size() && (m_text[m_at].isSpace() || m_text[m_at] == u',')) {
        ++m_at;
    }
}

void Scanner::skipDigits()
{
    while (m_at < m_text.size() && m_text[m_at].isDigit()) {
        ++m_at;
    }
}

QChar Scanner::command()
{
    skipSeparators();
    return m_at < m_text.size() && m_text[m_at].isLetter() ? m_text[m_at++] : QChar();
}

bool Scanner::read(double& value)
{
    skipSeparators();
    const qsizetype start = m_at;
    if (m_at < m_text.size() && (m_text[m_at] == u'-' || m_text[m_at] == u'+')) {
        ++m_at;
    }
    skipDigits();
    if (m_at < m_text.size() && m_text[m_at] == u'.') {
        ++m_at;
        skipDigits();
    }
    if (m_at < m_text.size() && m_text[m_at].toLower() == u'e') {
        ++m_at;
        if (m_at < m_text.size() && (m_text[m_at] == u'-' || m_text[m_at] == u'+')) {
            ++m_at;
        }
        skipDigits();
    }
    bool isNumber = false;
    value = m_text.sliced(start, m_at - start).toDouble(&isNumber);
    return isNumber && std::abs(value) <= MaximumCoordinate;
}

bool Scanner::readFlag(double& value)
{
    skipSeparators();
    if (m_at >= m_text.size() || (m_text[m_at] != u'0' && m_text[m_at] != u'1')) {
        return false;
    }
    value = m_text[m_at++] == u'1' ? 1.0 : 0.0;
    return true;
}

/// Draws command by command.
class PathReader
{
public:
    [[nodiscard]] std::optional<QPainterPath> read(const QString& data);

private:
    [[nodiscard]] bool readCommand(Scanner& scanner, QChar command);
    void draw(QChar command, bool isRelative, const std::array<double, 7>& values);
    void drawSmooth(QChar command, const QPointF& first, const QPointF& second);

    QPainterPath m_path;
    QPointF m_at;
    QPointF m_control;
    QChar m_before;
};

int numbersOf(QChar command)
{
    switch (command.toUpper().unicode()) {
    case u'M':
    case u'L':
    case u'T':
        return 2;
    case u'H':
    case u'V':
        return 1;
    case u'C':
        return 6;
    case u'S':
    case u'Q':
        return 4;
    case u'A':
        return 7;
    case u'Z':
        return 0;
    default:
        return -1;
    }
}

bool PathReader::readCommand(Scanner& scanner, QChar command)
{
    std::array<double, 7> values = {};
    const int count = numbersOf(command);
    for (int i = 0; i < count; ++i) {
        const bool isFlag = count == 7 && (i == 3 || i == 4);
        double& value = values[std::size_t(i)];
        if (!(isFlag ? scanner.readFlag(value) : scanner.read(value))) {
            return false;
        }
    }
    draw(command.toUpper(), command.isLower(), values);
    return true;
}

void PathReader::drawSmooth(QChar command, const QPointF& first, const QPointF& second)
{
    const bool isCubic = command == u'S';
    const bool continues =
        isCubic ? m_before == u'C' || m_before == u'S' : m_before == u'Q' || m_before == u'T';
    const QPointF mirrored = continues ? 2.0 * m_at - m_control : m_at;
    if (isCubic) {
        m_path.cubicTo(mirrored, first, second);
        m_control = first;
    } else {
        m_path.quadTo(mirrored, first);
        m_control = mirrored;
    }
}

void PathReader::draw(QChar command, bool isRelative, const std::array<double, 7>& values)
{
    const QPointF origin = isRelative ? m_at : QPointF();
    const QPointF first = origin + QPointF(values[0], values[1]);
    const QPointF second = origin + QPointF(values[2], values[3]);
    const QPointF third = origin + QPointF(values[4], values[5]);
    switch (command.unicode()) {
    case u'M':
        m_path.moveTo(first);
        break;
    case u'L':
        m_path.lineTo(first);
        break;
    case u'H':
        m_path.lineTo(origin.x() + values[0], m_at.y());
        break;
    case u'V':
        m_path.lineTo(m_at.x(), origin.y() + values[0]);
        break;
    case u'C':
        m_path.cubicTo(first, second, third);
        m_control = second;
        break;
    case u'Q':
        m_path.quadTo(first, second);
        m_control = first;
        break;
    case u'S':
    case u'T':
        drawSmooth(command, first, second);
        break;
    case u'A':
        addSvgArc(m_path, {values[0], values[1]}, values[2], values[3] != 0.0, values[4] != 0.0,
                  origin + QPointF(values[5], values[6]));
        break;
    default:
        m_path.closeSubpath();
        break;
    }
    m_at = m_path.currentPosition();
    m_before = command;
}

std::optional<QPainterPath> PathReader::read(const QString& data)
{
    Scanner scanner(data);
    QChar command;
    while (!scanner.atEnd()) {
        const QChar next = scanner.command();
        if (!next.isNull()) {
            command = next;
        } else if (command.toUpper() == u'Z' || command.isNull()) {
            return std::nullopt;
        } else if (command.toUpper() == u'M') {
            // Further pairs after a move are lines.
            command = command.isLower() ? u'l' : u'L';
        }
        if (numbersOf(command) < 0 || !readCommand(scanner, command) ||
            m_path.elementCount() > MaximumElements) {
            return std::nullopt;
        }
    }
    return m_path;
}

} // namespace

std::optional<QPainterPath> parseSvgPath(const QString& data)
{
    return PathReader().read(data);
}

std::optional<QPainterPath> parsePoints(const QString& points, bool isClosed)
{
    QPainterPath path;
    Scanner scanner(points);
    while (!scanner.atEnd()) {
        QPointF point;
        if (!scanner.read(point.rx()) || !scanner.read(point.ry()) ||
            path.elementCount() > MaximumElements) {
            return std::nullopt;
        }
        if (path.elementCount() == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    if (isClosed) {
        path.closeSubpath();
    }
    return path.elementCount() > 1 ? std::optional(path) : std::nullopt;
}

} // namespace repair

#include "repair/drawing.h"

#include "repair/fill_drawing.h"
#include "repair/lengths.h"
#include "repair/svg_path.h"
#include "repair/xml_tree.h"

#include <QLineF>
#include <QList>
#include <QStringList>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <optional>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// The part of an arrow head that covers the line.
constexpr double CoveredByMarker = 0.8;
// The part by which dashes may differ from those that the pen of an item has.
constexpr double DashTolerance = 0.5;

struct Pen
{
    bool isVisible = false;
    double width = Hairline;
    QString color = u"#000000"_s;
    QString attributes;
};

double penWidth(const Properties& graphic)
{
    return std::max(toPoints(graphic.value(u"svg:stroke-width"_s)).value_or(0.0), Hairline);
}

const Node* dashOf(const Properties& graphic, const StyleTable& table)
{
    return graphic.value(u"draw:stroke"_s) == "dash"_L1
               ? table.named(u"draw:stroke-dash"_s, graphic.value(u"draw:stroke-dash"_s))
               : nullptr;
}

// Lengths of dashes and gaps may be shares of the pen's width.
double dashLength(const Node& dash, QStringView attribute, double width)
{
    const QString text = dash.attribute(attribute);
    const double length = text.endsWith(u'%') ? shareOf(text) * width : pointsOf(dash, attribute);
    return length > 0.0 ? length : width;
}

// Dashes and gaps in points.
QList<double> dashLengths(const Node& dash, double width)
{
    QList<double> lengths;
    const double gap = dashLength(dash, u"draw:distance", width);
    for (const auto& [count, length] : {std::pair{u"draw:dots1", u"draw:dots1-length"},
                                        std::pair{u"draw:dots2", u"draw:dots2-length"}}) {
        for (int i = 0; i < std::min(dash.attribute(count).toInt(), 10); ++i) {
            lengths << dashLength(dash, length, width) << gap;
        }
    }
    return lengths;
}

QString dashAttribute(const Node& dash, double width)
{
    QStringList lengths;
    for (const double length : dashLengths(dash, width)) {
        lengths << svgNumber(length);
    }
    return lengths.isEmpty() ? QString() : u" stroke-dasharray=\"%1\""_s.arg(lengths.join(u','));
}

Pen penOf(const Properties& graphic, const StyleTable& table)
{
    Pen pen;
    const QString stroke = graphic.value(u"draw:stroke"_s);
    pen.isVisible = stroke != "none"_L1;
    pen.width = penWidth(graphic);
    pen.color = colorName(graphic.value(u"svg:stroke-color"_s), pen.color);
    const Node* const dash = dashOf(graphic, table);
    if (dash != nullptr) {
        pen.attributes += dashAttribute(*dash, pen.width);
    }
    const QString join = graphic.value(u"draw:stroke-linejoin"_s);
    pen.attributes += u" stroke-linejoin=\"%1\""_s.arg(
        join == "miter"_L1 || join == "bevel"_L1 ? join : u"round"_s);
    const bool hasRoundDashes = dash != nullptr && dash->attribute(u"draw:style") == "round"_L1;
    const QString cap = hasRoundDashes ? u"round"_s : graphic.value(u"svg:stroke-linecap"_s);
    if (cap == "round"_L1 || cap == "square"_L1) {
        pen.attributes += u" stroke-linecap=\"%1\""_s.arg(cap);
    }
    if (const double opacity = shareOf(graphic.value(u"svg:stroke-opacity"_s)); opacity < 1.0) {
        pen.attributes += u" stroke-opacity=\"%1\""_s.arg(svgNumber(opacity));
    }
    return pen;
}

/// Arrow heads at one end of an open path.
struct Marker
{
    QPainterPath path; // the tip at (0, 0), pointing upwards
    double length = 0.0;
};

std::optional<Marker> markerOf(const Properties& graphic, const QString& end,
                               const StyleTable& table)
{
    const Node* const node = table.named(u"draw:marker"_s, graphic.value(u"draw:marker-"_s + end));
    const auto path = node != nullptr ? parseSvgPath(node->attribute(u"svg:d")) : std::nullopt;
    const QRectF box = path ? path->boundingRect() : QRectF();
    if (!(box.width() > 0.0 && box.height() > 0.0)) {
        return std::nullopt;
    }
    const double width = toPoints(graphic.value(u"draw:marker-%1-width"_s.arg(end))).value_or(8.5);
    const double scale = width / box.width();
    const bool isCentered = graphic.value(u"draw:marker-%1-center"_s.arg(end)) == "true"_L1;
    const double tip = isCentered ? box.center().y() : box.top();
    const QTransform map =
        QTransform::fromTranslate(-box.center().x(), -tip) * QTransform::fromScale(scale, scale);
    return Marker{map.map(*path), isCentered ? 0.0 : box.height() * scale};
}

bool isOpen(const QPainterPath& path)
{
    return path.elementCount() > 1 && QPointF(path.elementAt(0)) != path.currentPosition();
}

// Puts the marker on the end and takes back the line below it.
QPainterPath placeMarker(QPainterPath& line, const Marker& marker, bool isAtEnd)
{
    const int last = line.elementCount() - 1;
    const int index = isAtEnd ? last : 0;
    const int neighbor = isAtEnd ? last - 1 : 1;
    const QPointF tip = line.elementAt(index);
    const QLineF inward(tip, line.elementAt(neighbor));
    if (!(inward.length() > 0.0)) {
        return {};
    }
    const double taken = std::min(marker.length * CoveredByMarker, inward.length());
    const QPointF moved = inward.pointAt(taken / inward.length());
    line.setElementPositionAt(index, moved.x(), moved.y());
    const double angle = std::atan2(tip.x() - inward.x2(), -(tip.y() - inward.y2()));
    return (QTransform().rotateRadians(angle) * QTransform::fromTranslate(tip.x(), tip.y()))
        .map(marker.path);
}

QPainterPath markersOn(QPainterPath& line, const Properties& graphic, const StyleTable& table)
{
    QPainterPath heads;
    for (const bool isAtEnd : {false, true}) {
        const auto marker = markerOf(graphic, isAtEnd ? u"end"_s : u"start"_s, table);
        if (marker) {
            heads.addPath(placeMarker(line, *marker, isAtEnd));
        }
    }
    return heads;
}

/// Collects the elements of the document.
class Writer
{
public:
    Writer(const Properties& graphic, const StyleTable& table)
        : m_graphic(graphic)
        , m_table(table)
        , m_pen(penOf(graphic, table))
    {}

    void add(const PictureFill& picture);
    void add(const Outline& outline);
    [[nodiscard]] Drawing finished();

private:
    void addStroke(const QPainterPath& path);

    const Properties& m_graphic;
    const StyleTable& m_table;
    const Pen m_pen;
    FillWriter m_fills;
    QString m_body;
    bool m_hasPicture = false;
    QRectF m_bounds;
};

void Writer::add(const PictureFill& picture)
{
    m_hasPicture = true;
    m_body +=
        u"<image x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" preserveAspectRatio=\"none\" "
        "xlink:href=\"data:image/png;base64,%5\"/>"_s.arg(
            svgNumber(picture.box.x()), svgNumber(picture.box.y()), svgNumber(picture.box.width()),
            svgNumber(picture.box.height()), QString::fromLatin1(picture.png.toBase64()));
}

void Writer::add(const Outline& outline)
{
    if (outline.isFilled && !m_hasPicture) {
        m_body += m_fills.fill(outline.path, m_graphic, m_table);
    }
    m_bounds |= outline.path.boundingRect();
    if (outline.isStroked && m_pen.isVisible) {
        addStroke(outline.path);
    }
}

void Writer::addStroke(const QPainterPath& path)
{
    QPainterPath line = path;
    const QPainterPath heads = isOpen(line) ? markersOn(line, m_graphic, m_table) : QPainterPath();
    m_body += u"<path fill=\"none\" stroke=\"%1\" stroke-width=\"%2\"%3 d=\"%4\"/>"_s.arg(
        m_pen.color, svgNumber(m_pen.width), m_pen.attributes, toSvgPath(line));
    if (!heads.isEmpty()) {
        m_body +=
            u"<path stroke=\"none\" fill=\"%1\" d=\"%2\"/>"_s.arg(m_pen.color, toSvgPath(heads));
        m_bounds |= heads.boundingRect();
    }
    const double half = m_pen.width / 2.0;
    m_bounds |= path.boundingRect().adjusted(-half, -half, half, half);
}

Drawing Writer::finished()
{
    // A line without width still needs a box.
    if (m_bounds.width() < Hairline || m_bounds.height() < Hairline) {
        m_bounds.adjust(-Hairline, -Hairline, Hairline, Hairline);
    }
    const QString svg =
        u"<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
        u"width=\"%3pt\" height=\"%4pt\" "
        "viewBox=\"%1 %2 %3 %4\"><defs>%5</defs>%6</svg>"_s.arg(
            svgNumber(m_bounds.x()), svgNumber(m_bounds.y()), svgNumber(m_bounds.width()),
            svgNumber(m_bounds.height()), m_fills.definitions(), m_body);
    return {svg.toUtf8(), m_bounds};
}

} // namespace

Drawing makeDrawing(const std::vector<Outline>& outlines, const Properties& graphic,
                    const StyleTable& table, const std::optional<PictureFill>& picture)
{
    Writer writer(graphic, table);
    if (picture) {
        writer.add(*picture);
    }
    for (const Outline& outline : outlines) {
        writer.add(outline);
    }
    return writer.finished();
}

bool isPlainFill(const Properties& graphic)
{
    const QString fill = graphic.value(u"draw:fill"_s);
    return fill != "gradient"_L1 && fill != "hatch"_L1 && fill != "bitmap"_L1 &&
           (fill == "none"_L1 || !graphic.contains(u"draw:opacity-name"_s));
}

// As the reader chooses a pen by the name of the dashes. Lengths in widths of the pen.
bool isPlainPen(const Properties& graphic, const StyleTable& table)
{
    const Node* const dash = dashOf(graphic, table);
    if (dash == nullptr) {
        return true;
    }
    const QString name = graphic.value(u"draw:stroke-dash"_s).toLower();
    QList<double> shown = {1.0, 2.0};
    if (name.contains("dash"_L1)) {
        shown = name.contains("dot"_L1) ? QList<double>{4.0, 2.0, 1.0, 2.0} : QList{4.0, 2.0};
    }
    const double width = penWidth(graphic);
    const QList<double> wanted = dashLengths(*dash, width);
    return wanted.size() == shown.size() &&
           std::equal(wanted.begin(), wanted.end(), shown.begin(), [width](double a, double b) {
               return std::abs(a / width - b) <= DashTolerance * b;
           });
}

double shareOf(const QString& percent)
{
    bool isNumber = false;
    const double share =
        percent.endsWith(u'%') ? percent.chopped(1).toDouble(&isNumber) / 100.0 : 1.0;
    return isNumber ? share : 1.0;
}

} // namespace repair

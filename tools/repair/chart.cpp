#include "repair/chart.h"

#include "repair/chart_page.h"
#include "repair/chart_values.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/transform.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Points.
constexpr double TextGap = 4.0;
constexpr double NumberRoom = 40.0;
constexpr double TitleRoom = 20.0;
constexpr double AxisPen = 0.6;
constexpr double LinePen = 2.2;
const QString AxisColor = u"#b3b3b3"_s;
constexpr const char* SeriesColors[] = {"#004586", "#ff420e", "#ffd320",
                                        "#579d1c", "#7e0021", "#83caff"};

QRectF placeOf(const Node& node)
{
    return {pointsOf(node, u"svg:x"), pointsOf(node, u"svg:y"), pointsOf(node, u"svg:width"),
            pointsOf(node, u"svg:height")};
}

/// Draws one chart.
class ChartWriter
{
public:
    ChartWriter(Document& document, const Node& chart, const ChartValues& values);

    [[nodiscard]] Node::Children draw();

private:
    [[nodiscard]] QRectF plotArea(const Node& plot) const;
    void drawNumbers();
    void drawCategories();
    void drawSeries();
    void drawBar(const ChartSeries& series, int index, int bar, int bars);
    void drawLine(const ChartSeries& series);
    void drawLegend(const Node& legend);
    void drawTitles(const Node& parent, bool isVertical);
    [[nodiscard]] QString colorOf(const ChartSeries& series) const;
    [[nodiscard]] double yOf(double value) const;
    [[nodiscard]] double categoryWidth() const;
    [[nodiscard]] const Node* axis(QStringView dimension) const;

    Document& m_document;
    const Node& m_chart;
    const ChartValues& m_values;
    const Node& m_plot;
    QRectF m_area; // of bars and lines
    qsizetype m_categories = 1;
    ChartScale m_scale;
    QList<double> m_above; // where the next bar of a stack begins
    QList<double> m_below;
    ChartPage m_page;
};

ChartWriter::ChartWriter(Document& document, const Node& chart, const ChartValues& values)
    : m_document(document)
    , m_chart(chart)
    , m_values(values)
    , m_plot(*chart.child(u"chart:plot-area"))
    , m_area(plotArea(m_plot))
    , m_scale(scaleOf(values, m_area.height()))
    , m_page(document)
{
    for (const ChartSeries& series : values.series) {
        m_categories = std::max(m_categories, series.values.size());
    }
    m_above.fill(0.0, m_categories);
    m_below.fill(0.0, m_categories);
}

QRectF ChartWriter::plotArea(const Node& plot) const
{
    if (const Node* const region = plot.child(u"chartooo:coordinate-region")) {
        if (const QRectF area = placeOf(*region); !area.isEmpty()) {
            return area;
        }
    }
    QRectF area = placeOf(plot);
    if (area.isEmpty()) {
        area = {0.0, 0.0, pointsOf(m_chart, u"svg:width"), pointsOf(m_chart, u"svg:height")};
        area.adjust(0.0, TitleRoom, -area.width() / 5.0, 0.0);
    }
    return area.adjusted(NumberRoom / 2.0, TextGap, 0.0, -TitleRoom);
}

const Node* ChartWriter::axis(QStringView dimension) const
{
    const auto found =
        std::find_if(m_plot.children.begin(), m_plot.children.end(), [dimension](const auto& node) {
            return node->is(u"chart:axis") && node->attribute(u"chart:dimension") == dimension;
        });
    return found != m_plot.children.end() ? found->get() : nullptr;
}

double ChartWriter::yOf(double value) const
{
    const double share = (value - m_scale.lowest) / (m_scale.highest - m_scale.lowest);
    return m_area.bottom() - share * m_area.height();
}

double ChartWriter::categoryWidth() const
{
    return m_area.width() / static_cast<double>(m_categories);
}

QString ChartWriter::colorOf(const ChartSeries& series) const
{
    const Properties graphic = m_document.table().resolved(u"chart"_s, series.style, false).graphic;
    const QString color =
        graphic.value(series.isLine ? u"svg:stroke-color"_s : u"draw:fill-color"_s);
    const auto index = &series - m_values.series.constData();
    return color.startsWith(u'#')
               ? color
               : QString::fromLatin1(SeriesColors[index % std::ssize(SeriesColors)]);
}

void ChartWriter::drawNumbers()
{
    const Node* const vertical = axis(u"y");
    const double height = m_page.textSize(vertical) * ChartPage::LineHeight;
    const double steps = std::round((m_scale.highest - m_scale.lowest) / m_scale.step);
    const int count = static_cast<int>(steps);
    const bool hasGrid = vertical != nullptr && vertical->child(u"chart:grid") != nullptr;
    for (int i = 0; i <= count; ++i) {
        const double value = m_scale.lowest + i * m_scale.step;
        const double y = yOf(value);
        if (hasGrid || i == 0) {
            m_page.addLine({m_area.left(), y}, {m_area.right(), y}, AxisColor, AxisPen);
        }
        m_page.addText(
            QRectF(m_area.left() - NumberRoom - TextGap, y - height / 2.0, NumberRoom, height),
            QString::number(std::abs(value) < m_scale.step / 2.0 ? 0.0 : value, 'g', 10), vertical,
            u"end"_s);
    }
    m_page.addLine(m_area.topLeft(), m_area.bottomLeft(), AxisColor, AxisPen);
}

void ChartWriter::drawCategories()
{
    const Node* const horizontal = axis(u"x");
    const double width = categoryWidth();
    for (qsizetype i = 0; i < m_categories; ++i) {
        const QString text =
            m_values.categories.isEmpty() ? QString::number(i + 1) : m_values.categories.value(i);
        m_page.addText(QRectF(m_area.left() + width * static_cast<double>(i),
                              m_area.bottom() + TextGap, width,
                              m_page.textSize(horizontal) * ChartPage::LineHeight),
                       text, horizontal, u"center"_s);
    }
}

void ChartWriter::drawBar(const ChartSeries& series, int index, int bar, int bars)
{
    const double value = series.values.value(index, 0.0);
    if (!std::isfinite(value) || value == 0.0) {
        return;
    }
    // The gap between two categories is as wide as a bar.
    const double width = categoryWidth() / (bars + 1.0);
    double& start = value > 0.0 ? m_above[index] : m_below[index];
    const double from = m_values.isStacked ? start : 0.0;
    start += value;
    const double left = m_area.left() + categoryWidth() * index + width * (bar + 0.5);
    m_page.addRectangle(
        QRectF(QPointF(left, yOf(from)), QPointF(left + width, yOf(from + value))).normalized(),
        colorOf(series));
}

void ChartWriter::drawLine(const ChartSeries& series)
{
    std::optional<QPointF> last;
    for (qsizetype i = 0; i < series.values.size(); ++i) {
        const double value = series.values[i];
        if (!std::isfinite(value)) {
            last.reset();
            continue;
        }
        const QPointF point(m_area.left() + categoryWidth() * (static_cast<double>(i) + 0.5),
                            yOf(value));
        if (last) {
            m_page.addLine(*last, point, colorOf(series), LinePen);
        }
        last = point;
    }
}

void ChartWriter::drawSeries()
{
    const auto isBar = [](const ChartSeries& series) { return !series.isLine; };
    const auto count = std::count_if(m_values.series.begin(), m_values.series.end(), isBar);
    const int bars = m_values.isStacked ? 1 : static_cast<int>(count);
    int bar = 0;
    for (const ChartSeries& series : m_values.series) {
        if (series.isLine) {
            drawLine(series);
            continue;
        }
        for (int i = 0; i < series.values.size(); ++i) {
            drawBar(series, i, m_values.isStacked ? 0 : bar, bars);
        }
        ++bar;
    }
}

void ChartWriter::drawLegend(const Node& legend)
{
    const QString side = legend.attribute(u"chart:legend-position");
    const bool isRow = side == "top"_L1 || side == "bottom"_L1;
    const double width = pointsOf(m_chart, u"svg:width");
    const double height = m_page.textSize(&legend) * ChartPage::LineHeight;
    const double symbol = m_page.textSize(&legend) * 0.7;
    QPointF corner(pointsOf(legend, u"svg:x"), pointsOf(legend, u"svg:y"));
    corner += {TextGap, TextGap / 2.0};
    const double room =
        isRow ? (width - 2.0 * corner.x()) / static_cast<double>(m_values.series.size())
              : width - corner.x();
    for (const ChartSeries& series : m_values.series) {
        m_page.addRectangle({corner.x(), corner.y() + (height - symbol) / 2.0, symbol, symbol},
                            colorOf(series));
        m_page.addText(QRectF(corner.x() + symbol + TextGap, corner.y(),
                              std::max(room - symbol - TextGap, symbol), height),
                       series.name, &legend, u"start"_s);
        corner += isRow ? QPointF(room, 0.0) : QPointF(0.0, height);
    }
}

void ChartWriter::drawTitles(const Node& parent, bool isVertical)
{
    for (const QString& tag : {u"chart:title"_s, u"chart:subtitle"_s}) {
        const Node* const title = parent.child(tag);
        if (title == nullptr) {
            continue;
        }
        const double height = m_page.textSize(title) * ChartPage::LineHeight;
        const QString text = title->allText().trimmed();
        if (isVertical) {
            const QSizeF size(m_area.height(), height);
            const QTransform map =
                QTransform::fromTranslate(pointsOf(*title, u"svg:x"), m_area.bottom()).rotate(-90);
            m_page.addText({size, map}, text, title, u"center"_s);
        } else {
            m_page.addText(
                QRectF(0.0, pointsOf(*title, u"svg:y"), pointsOf(m_chart, u"svg:width"), height),
                text, title, u"center"_s);
        }
    }
}

Node::Children ChartWriter::draw()
{
    drawTitles(m_chart, false);
    drawNumbers();
    drawSeries();
    drawCategories();
    for (const QStringView dimension : {u"x", u"y"}) {
        if (const Node* const node = axis(dimension)) {
            drawTitles(*node, dimension == u"y");
        }
    }
    if (const Node* const legend = m_chart.child(u"chart:legend")) {
        drawLegend(*legend);
    }
    return m_page.take();
}

} // namespace

Node::Children drawChart(Document& document, const Node& chart)
{
    const bool hasSize =
        pointsOf(chart, u"svg:width") > 0.0 && pointsOf(chart, u"svg:height") > 0.0;
    const ChartValues values = hasSize ? readChart(document, chart) : ChartValues();
    return values.series.isEmpty() ? Node::Children() : ChartWriter(document, chart, values).draw();
}

} // namespace repair

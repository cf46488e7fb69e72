#include "repair/chart_values.h"

#include "repair/document.h"
#include "repair/table_rows.h"
#include "repair/xml_tree.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// A chart with more is not readable.
constexpr int MaximumChartSeries = 30;
constexpr int MaximumChartCategories = 200;
// Beyond, sums and steps of axes are not exact; below the least range, all values are zero.
constexpr double MaximumChartValue = 1e12;
constexpr int LettersOfColumn = 26;
// Points between two numbers of an axis.
constexpr double LeastNumberGap = 20.0;
constexpr double NumbersOfAxis = 20.0;
// Of the range: room beyond the values.
constexpr double LeastRange = 1e-9;
constexpr double RoomBeyond = 0.05;

struct Cell
{
    QString text;
    double value = std::numeric_limits<double>::quiet_NaN();
};

using Cells = QList<QList<Cell>>;

/// A part of the chart's table, with both ends.
struct CellRange
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

QList<Cell> cellsOf(const Node& row)
{
    QList<Cell> cells;
    for (const auto& node : row.children) {
        if (!node->is(u"table:table-cell")) {
            continue;
        }
        Cell cell{node->allText().trimmed()};
        bool isNumber = false;
        const double value = node->attribute(u"office:value").toDouble(&isNumber);
        if (isNumber && std::abs(value) <= MaximumChartValue) {
            cell.value = value;
        }
        const int count = repeats(*node, u"table:number-columns-repeated", MaximumColumns);
        for (int i = 0; i < count && cells.size() < MaximumColumns; ++i) {
            cells.append(cell);
        }
    }
    return cells;
}

void readCells(const Node& parent, Cells& cells, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-row") && cells.size() < MaximumRows) {
            cells.append(cellsOf(*child));
        } else if (depth < MaximumRowGroupDepth && child->name.startsWith("table:table-"_L1)) {
            readCells(*child, cells, depth + 1);
        }
    }
}

int columnNumber(const QString& letters)
{
    int number = 0;
    for (const QChar letter : letters) {
        number = number * LettersOfColumn + letter.unicode() - 'A' + 1;
    }
    return number - 1;
}

// "local-table.$B$2:.$B$5"
std::optional<CellRange> cellRange(QString address)
{
    static const QRegularExpression pattern(
        u"\\.([A-Z]{1,3})(\\d{1,5})(?::[^.]*\\.([A-Z]{1,3})(\\d{1,5}))?$"_s);
    const auto match = pattern.match(address.remove(u'$'));
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    CellRange range;
    range.left = columnNumber(match.captured(1));
    range.top = match.captured(2).toInt() - 1;
    const bool isOne = match.captured(3).isEmpty();
    range.right = isOne ? range.left : columnNumber(match.captured(3));
    range.bottom = isOne ? range.top : match.captured(4).toInt() - 1;
    const int width = range.right - range.left;
    const int height = range.bottom - range.top;
    const bool isLine = width >= 0 && height >= 0 && (width == 0 || height == 0);
    return isLine && width + height < MaximumChartCategories ? std::optional(range) : std::nullopt;
}

QList<Cell> cellsIn(const Cells& cells, const QString& address)
{
    QList<Cell> found;
    if (const std::optional<CellRange> range = cellRange(address)) {
        for (int row = range->top; row <= range->bottom; ++row) {
            for (int column = range->left; column <= range->right; ++column) {
                found.append(cells.value(row).value(column));
            }
        }
    }
    return found;
}

QString classOf(const Node& node, const QString& outer)
{
    const QString name = node.attribute(u"chart:class");
    return name.isEmpty() ? outer : name;
}

bool isTrue(const QString& value)
{
    return value == "true"_L1;
}

ChartSeries seriesOf(const Node& node, const QString& kind, const Cells& cells)
{
    ChartSeries series;
    series.style = node.attribute(u"chart:style-name");
    series.isLine = kind == "chart:line"_L1;
    const QList<Cell> label = cellsIn(cells, node.attribute(u"chart:label-cell-address"));
    series.name = label.isEmpty() ? QString() : label.constFirst().text;
    for (const Cell& cell : cellsIn(cells, node.attribute(u"chart:values-cell-range-address"))) {
        series.values.append(cell.value);
    }
    return series;
}

bool hasValue(const ChartSeries& series)
{
    return std::any_of(series.values.begin(), series.values.end(),
                       [](double value) { return std::isfinite(value); });
}

// 1, 2 or 5 times a power of ten.
double roundStep(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * 0.999) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

} // namespace

QString chartProperty(const Document& document, const Node& part, const QString& name)
{
    return statedInStyle(document, part.attribute(u"chart:style-name"), u"style:chart-properties"_s)
        .value(name);
}

ChartValues readChart(const Document& document, const Node& chart)
{
    const Node* const plot = chart.child(u"chart:plot-area");
    const Node* const table = chart.child(u"table:table");
    if (plot == nullptr || table == nullptr ||
        isTrue(chartProperty(document, *plot, u"chart:vertical"_s)) ||
        isTrue(chartProperty(document, *plot, u"chart:percentage"_s))) {
        return {};
    }
    Cells cells;
    readCells(*table, cells, 0);
    ChartValues values;
    values.isStacked = isTrue(chartProperty(document, *plot, u"chart:stacked"_s));
    for (const auto& child : plot->children) {
        if (child->is(u"chart:axis") && child->attribute(u"chart:dimension") == "x"_L1) {
            const Node* const categories = child->child(u"chart:categories");
            const QList<Cell> names = cellsIn(
                cells, categories != nullptr ? categories->attribute(u"table:cell-range-address")
                                             : QString());
            for (const Cell& cell : names) {
                values.categories.append(cell.text);
            }
        }
        if (!child->is(u"chart:series")) {
            continue;
        }
        const QString kind = classOf(*child, chart.attribute(u"chart:class"));
        const ChartSeries series = seriesOf(*child, kind, cells);
        const bool isDrawn = series.isLine || kind == "chart:bar"_L1;
        if (!isDrawn || !hasValue(series) || values.series.size() == MaximumChartSeries) {
            return {};
        }
        values.series.append(series);
    }
    return values;
}

ChartScale scaleOf(const ChartValues& values, double height)
{
    double lowest = 0.0;
    double highest = 0.0;
    qsizetype count = 0;
    for (const ChartSeries& series : values.series) {
        count = std::max(count, series.values.size());
    }
    for (qsizetype i = 0; i < count; ++i) {
        double above = 0.0;
        double below = 0.0;
        for (const ChartSeries& series : values.series) {
            const double value = series.values.value(i);
            const bool isAdded = values.isStacked && !series.isLine && std::isfinite(value);
            (value > 0.0 ? above : below) += isAdded ? value : 0.0;
            lowest = std::isfinite(value) ? std::min({lowest, value, below}) : lowest;
            highest = std::isfinite(value) ? std::max({highest, value, above}) : highest;
        }
    }
    const double range = highest - lowest > LeastRange ? highest - lowest : 1.0;
    const double steps = std::clamp(std::floor(height / LeastNumberGap), 1.0, NumbersOfAxis);
    ChartScale scale;
    scale.step = roundStep(range / steps);
    const double room = RoomBeyond * range;
    scale.lowest = lowest < 0.0 ? std::floor((lowest - room) / scale.step) * scale.step : 0.0;
    scale.highest = std::ceil((highest + (highest > 0.0 ? room : 0.0)) / scale.step) * scale.step;
    if (scale.highest <= scale.lowest) {
        scale.highest = scale.lowest + scale.step;
    }
    return scale;
}

} // namespace repair

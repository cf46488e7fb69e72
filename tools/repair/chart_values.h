#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace repair {

class Document;
class Node;

/// One series of a chart.
struct ChartSeries
{
    QString name;
    QString style;
    /// One for each category; not a number where there is none.
    QList<double> values;
    bool isLine = false;
};

/// What a chart shows.
struct ChartValues
{
    QStringList categories;
    QList<ChartSeries> series;
    bool isStacked = false;
};

/// The values of a chart with vertical bars and lines. Has no series if the chart is of another
/// kind, has no values, or more than can be seen.
[[nodiscard]] ChartValues readChart(const Document& document, const Node& chart);

/// What the style of a part of a chart states in its element with this tag.
[[nodiscard]] QString chartProperty(const Document& document, const Node& part,
                                    const QString& name);

/// The numbers of the vertical axis.
struct ChartScale
{
    double lowest = 0.0;
    double highest = 1.0;
    double step = 1.0;
};

/// Numbers that include zero and all values.
/// @param height of the axis, in points
[[nodiscard]] ChartScale scaleOf(const ChartValues& values, double height);

} // namespace repair

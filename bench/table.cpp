#include "bench/table.h"

#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace bench {

void Samples::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) {
            continue;
        }
        auto& values = m_values[QString::fromStdString(run.run_name.function_name)];
        for (const auto& [name, counter] : run.counters) {
            values[QString::fromStdString(name)].append(counter.value);
        }
    }
}

QList<double> Samples::of(const QString& benchmark, const QString& counter) const
{
    return m_values.value(benchmark).value(counter);
}

double median(QList<double> values)
{
    if (values.isEmpty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

QString spread(const QList<double>& values, int decimals)
{
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    return values.isEmpty() ? QString()
                            : QString::number(*lowest, 'f', decimals) + u'-' +
                                  QString::number(*highest, 'f', decimals);
}

void printTable(const QList<QStringList>& rows)
{
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    QTextStream out(stdout);
    for (const QStringList& row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            // The first column has words, the others numbers.
            out << (i == 0 ? row[i].leftJustified(widths[i]) : row[i].rightJustified(widths[i]))
                << (i + 1 < row.size() ? "  " : "\n");
        }
    }
}

} // namespace bench

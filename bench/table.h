#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <benchmark/benchmark.h>

namespace bench {

/// Gathers the counters of all repetitions, to be looked at when all have run. Prints nothing.
class Samples : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// All values of a counter, one for each repetition.
    [[nodiscard]] QList<double> of(const QString& benchmark, const QString& counter) const;

private:
    QHash<QString, QHash<QString, QList<double>>> m_values;
};

[[nodiscard]] double median(QList<double> values);
/// How far the values lie apart: the lowest and the highest, as "1.02-1.10".
[[nodiscard]] QString spread(const QList<double>& values, int decimals);

/// Prints rows of texts in columns as wide as they need.
void printTable(const QList<QStringList>& rows);

} // namespace bench

#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <benchmark/benchmark.h>

namespace bench {

/// Collects the counters of all repetitions for evaluation after the run. Prints nothing.
class Samples : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The values of a counter, one for each repetition.
    [[nodiscard]] QList<double> of(const QString& benchmark, const QString& counter) const;

private:
    QHash<QString, QHash<QString, QList<double>>> m_values;
};

[[nodiscard]] double median(QList<double> values);
/// The range of the values, lowest and highest, as "1.02-1.10".
[[nodiscard]] QString spread(const QList<double>& values, int decimals);

/// Prints rows of texts in columns of the necessary width.
void printTable(const QList<QStringList>& rows);

} // namespace bench

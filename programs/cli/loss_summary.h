#pragma once

#include "migration/model/file_report.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace cli {

/// The results of a run for the terminal: the number of labels of each verdict, and the labels
/// with the most losses.
class LossSummary
{
public:
    /// Labels with losses that are named; all others are only counted.
    static constexpr qsizetype WorstLabels = 5;

    /// @param namesAll names every label with losses
    explicit LossSummary(bool namesAll)
        : m_namesAll(namesAll)
    {}

    /// Counts a label, and keeps its losses if it is one of those to be named.
    void add(const migration::FileReport& report);

    /// Labels with this verdict.
    [[nodiscard]] qint64 count(migration::Verdict verdict) const;
    /// Whether every label was imported completely.
    [[nodiscard]] bool isComplete() const;
    /// "Labels imported completely: 3, with changes: 1, with losses: 2, failed: 0."
    [[nodiscard]] QString counts() const;
    /// The labels with losses, the worst first, with the most severe loss of each.
    [[nodiscard]] QStringList worst() const;
    /// How to get the rest; empty if every label was imported completely.
    /// @param reports the reports that were written
    [[nodiscard]] QString hint(const QStringList& reports) const;

private:
    struct Label
    {
        qint64 lostObjects = 0;
        qint64 problems = 0; ///< lost and changed objects
        QString text;
    };

    static bool isWorse(const Label& a, const Label& b);

    bool m_namesAll;
    std::array<qint64, migration::Verdicts> m_counts{};
    QList<Label> m_worst;
};

} // namespace cli

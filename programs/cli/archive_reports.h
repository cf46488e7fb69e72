#pragma once

#include "archive/run.h"
#include "migration/report/report_writer.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace cli {

/// The reports of one command, written file by file, and the number of labels with losses.
class ArchiveReports
{
public:
    /// @param fileNames    reports to write; may be empty
    /// @param countsLosses counts losses even without a report
    /// @param mayOverwrite overwrites files that are not reports of ours
    ArchiveReports(const QStringList& fileNames, bool countsLosses, bool mayOverwrite);

    /// Why one of the reports cannot be written, for a person; empty if none is known.
    [[nodiscard]] QString firstProblem() const;
    void add(const archive::Delivery& delivery);
    /// Moves the reports into place; returns what failed, for a person.
    [[nodiscard]] QStringList finish();

    /// Labels that were not imported completely.
    [[nodiscard]] qint64 losses() const { return m_losses; }

private:
    QStringList m_fileNames;
    bool m_isNeeded;
    bool m_mayOverwrite;
    std::vector<std::unique_ptr<migration::ReportWriter>> m_writers;
    qint64 m_losses = 0;
};

} // namespace cli

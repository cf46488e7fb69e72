#pragma once

#include "archive/run.h"
#include "cli/loss_summary.h"
#include "migration/report/report_writer.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace cli {

/// The reports of one command, written file by file, and their summary.
class ArchiveReports
{
public:
    /// @param fileNames    reports to write; may be empty
    /// @param namesAll     lists every label with losses in the summary
    /// @param mayOverwrite overwrites files that are not reports of ours
    ArchiveReports(const QStringList& fileNames, bool namesAll, bool mayOverwrite);

    /// User-visible reason why a report cannot be written; empty if none is known.
    [[nodiscard]] QString firstProblem() const;
    void add(const archive::Delivery& delivery);
    /// Moves the reports into place; returns the user-visible errors.
    [[nodiscard]] QStringList finish();

    [[nodiscard]] const LossSummary& summary() const { return m_summary; }

private:
    QStringList m_fileNames;
    bool m_mayOverwrite;
    std::vector<std::unique_ptr<migration::ReportWriter>> m_writers;
    LossSummary m_summary;
};

} // namespace cli

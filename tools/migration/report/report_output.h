#pragma once

#include "migration/model/file_report.h"

#include <QString>

#include <memory>

namespace migration {

/// A format of reports.
class ReportOutput
{
public:
    virtual ~ReportOutput() = default;

    /// A remark on the complete report, user-visible. Before finish().
    virtual void setNote(const QString& note) = 0;
    /// Adds the report of one file, after those that were added before.
    virtual void add(const FileReport& report) = 0;
    /// Replaces the file. Returns why that failed, for the user; empty on success.
    [[nodiscard]] virtual QString finish() = 0;
};

/// A report to write to this file, as JSON Lines or as a page.
[[nodiscard]] std::unique_ptr<ReportOutput> makeJsonLinesOutput(const QString& fileName);
[[nodiscard]] std::unique_ptr<ReportOutput> makeHtmlOutput(const QString& fileName);

/// The error message for a report that cannot be written.
[[nodiscard]] QString cannotWrite(const QString& fileName, const QString& reason);

} // namespace migration

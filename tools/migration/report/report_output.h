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

    virtual void setNote(const QString& note) = 0;
    virtual void add(const FileReport& report) = 0;
    /// Replaces the file. Returns why that failed, for the user; empty on success.
    [[nodiscard]] virtual QString finish() = 0;
};

[[nodiscard]] std::unique_ptr<ReportOutput> makeJsonLinesOutput(const QString& fileName);
[[nodiscard]] std::unique_ptr<ReportOutput> makeHtmlOutput(const QString& fileName);

/// The error message for a report that cannot be written.
[[nodiscard]] QString cannotWrite(const QString& fileName, const QString& reason);

} // namespace migration

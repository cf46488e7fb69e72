#pragma once

#include "migration/model/file_report.h"

#include <QString>

#include <memory>

namespace migration {

class ReportOutput;

/// Writes the report of a run to a file, file by file, in constant memory. The same
/// reports give the same bytes.
///
/// A name that ends in ".html" or ".htm" becomes an HTML page, every other name JSON Lines. The
/// file is replaced atomically by finish(); without it, the old file stays.
class ReportWriter
{
public:
    explicit ReportWriter(const QString& fileName);
    ~ReportWriter();
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    /// A line below the title of the page, such as a date.
    void setNote(const QString& note);

    /// Appends a report. finish() reports errors.
    void add(const FileReport& report);

    /// Replaces the file.
    /// @return why the report cannot be written, for the user; empty on success
    [[nodiscard]] QString finish();

private:
    std::unique_ptr<ReportOutput> m_output;
};

} // namespace migration

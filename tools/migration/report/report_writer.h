#pragma once

#include "migration/model/file_report.h"

#include <QString>

#include <memory>

namespace migration {

class ReportOutput;

/// Writes the report of a run to a file, file by file, in constant memory. The same
/// reports give the same bytes.
///
/// A name that ends in ".html" or ".htm" becomes a page for people, every other one JSON.
/// The file appears whole at the end, or what stood there before stays.
class ReportWriter
{
public:
    explicit ReportWriter(const QString& fileName);
    ~ReportWriter();
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    /// A line that the page shows below its title, such as a date; none unless it is set.
    void setNote(const QString& note);

    /// Appends a report; the order is kept. An error is kept for finish().
    void add(const FileReport& report);

    /// Puts the file in its place.
    /// @return why there is no report, in a sentence for a person; empty when there is one
    [[nodiscard]] QString finish();

private:
    std::unique_ptr<ReportOutput> m_output;
};

} // namespace migration

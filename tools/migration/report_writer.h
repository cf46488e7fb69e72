#pragma once

#include "migration/file_report.h"

#include <QString>
#include <QStringList>

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

/// Makes one report of several JSON reports, as one run over all files would have made it:
/// ordered by the names of the files.
///
/// @param inputs JSON reports; one file may stand in one of them only
/// @param output written as ReportWriter writes it
/// @return why there is none, in a sentence for a person; empty when there is one
[[nodiscard]] QString mergeReports(const QStringList& inputs, const QString& output);

} // namespace migration

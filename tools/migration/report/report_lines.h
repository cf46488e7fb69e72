#pragma once

#include "migration/model/file_report.h"

#include <QFile>
#include <QString>

#include <optional>

/// Reports as JSON Lines: one JSON object per line, UTF-8. The first line names the format, then
/// each file has a line, then come the totals. Reports may be concatenated.
namespace migration {

/// The value of "format" in the first line, and the version that is written and read.
inline constexpr char ReportFormat[] = "labelport-report";
inline constexpr int ReportVersion = 1;

/// Longest line of a report, in bytes, with its line end: what a worker may report about one file.
inline constexpr qint64 MaximumLine = 64LL * 1024 * 1024;
/// Most bytes that the parsed line may take. A file with as many data sources as a label may have
/// stays below.
inline constexpr qint64 MaximumLineTree = 512LL * 1024 * 1024;

/// Reads the next line of a report; empty if it exceeds a limit.
[[nodiscard]] QByteArray readReportLine(QIODevice& report);

/// Reads the files of a report one by one, in constant memory.
class ReportLineReader
{
public:
    explicit ReportLineReader(const QString& fileName);

    /// The report of one file, and where its line begins.
    struct Line
    {
        qint64 offset = 0; ///< bytes from the start of the report
        FileReport report;
    };
    /// The next file; nothing at the end of the report or after an error.
    [[nodiscard]] std::optional<Line> next();
    /// Why the report cannot be read, for the user; empty if it can.
    [[nodiscard]] const QString& error() const { return m_error; }

    /// Reads the line at an offset again. Opens the report again, so that of a thousand reports
    /// only one is open at a time.
    [[nodiscard]] static std::optional<FileReport> reportAt(const QString& fileName, qint64 offset);

private:
    [[nodiscard]] std::optional<Line> readLine();
    void fail(const QString& reason);

    QFile m_file;
    qint64 m_lines = 0;
    bool m_isOpen = false; ///< between a first line and the totals
    QString m_error;
};

} // namespace migration

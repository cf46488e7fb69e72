#pragma once

#include "archive/messages.h"
#include "archive/worker_loop.h"
#include "cli/job_options.h"
#include "console/file_name.h"
#include "exporting/export_findings.h"
#include "exporting/targets.h"

#include <QList>
#include <QString>

#include <functional>

namespace cli {

struct OpenedLabel;

/// The records to write, counted from 0.
struct RecordSelection
{
    qint64 first = 0;
    qint64 count = 1;
    QString error; ///< user-visible; why the records cannot be written
};

/// The records of a label that --records selects.
[[nodiscard]] RecordSelection selectRecords(const OpenedLabel& label, const RecordRange& range);

/// How outputs are made.
struct WriteOptions
{
    JobOptions job;
    int page = 1; ///< of the file; keeps the staged files of pages apart
};

/// The result of writing one output.
struct Written
{
    QList<archive::StagedFile> files;        ///< in the order in which they were written
    QString error;                           ///< why not all files were written; else empty
    exporting::ExportFindings findings = {}; ///< of a format that cannot express everything
};

/// Writes a label to a staging folder, one target after the other.
class LabelWriter
{
public:
    /// @param label   must outlive the writer
    /// @param staging an empty folder
    /// @param heartbeat   called after each file and page
    LabelWriter(OpenedLabel& label, WriteOptions options, const QString& staging,
                archive::Heartbeat heartbeat);

    /// @param output final path of the file; the files of a series of pictures
    ///        or drawings carry the record's number before the suffix, "asset-0007.png"
    [[nodiscard]] Written write(exporting::Target target, const QString& output);

private:
    using Write = std::function<QString(const QString& file)>;

    [[nodiscard]] Written writeFile(const QString& output, const Write& write);
    [[nodiscard]] Written writeRecords(exporting::Target target, const QString& output,
                                       qint64 first, qint64 count, const QString& title);
    [[nodiscard]] Written writeGlabels(const QString& output);
    [[nodiscard]] Written writeSeries(exporting::Target target, const QString& output, qint64 first,
                                      qint64 count);

    OpenedLabel& m_label;
    WriteOptions m_options;
    QString m_staging;
    console::ReachablePath m_reachable; ///< the staging folder, for Qt's file classes
    archive::Heartbeat m_heartbeat;
    int m_written = 0;
};

} // namespace cli

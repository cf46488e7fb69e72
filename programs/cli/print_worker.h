#pragma once

#include "archive/messages.h"
#include "archive/worker_loop.h"
#include "cli/job_options.h"
#include "printing/print_batch.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace cli {

/// A label to print: saved by the import, so that its file is safe to open.
struct PrintLabel
{
    QString file;
    QString shownName; ///< of the user's file, in messages
    bool operator==(const PrintLabel&) const = default;
};

/// A job that writes all labels to documents in a staging folder. The result's report has the
/// documents.
[[nodiscard]] archive::Job printJob(const QList<PrintLabel>& labels, const JobOptions& options,
                                    const QString& staging);
[[nodiscard]] bool isPrintJob(const archive::Job& job);
[[nodiscard]] QList<printing::PrintDocument> documentsOf(const archive::FileResult& result);

/// Runs such a job. If a label cannot be printed, no document is complete.
[[nodiscard]] archive::FileResult writePrintDocuments(const archive::Job& job,
                                                      const archive::Heartbeat& heartbeat);

} // namespace cli

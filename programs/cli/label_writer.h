#pragma once

#include "archive/messages.h"
#include "archive/worker_loop.h"
#include "cli/record_range.h"
#include "cli/targets.h"

#include <QList>
#include <QString>

#include <functional>

namespace cli {

struct OpenedLabel;

/// How outputs are made.
struct WriteOptions
{
    int dpi = 300;
    RecordRange records;
    bool force = false;              ///< write over whatever is there
    QList<archive::FileStamp> known; ///< outputs of an earlier command, which may be written over
};

/// What became of one output.
struct Written
{
    QList<archive::StagedFile> files; ///< what was written, in order
    QString error;                    ///< why it went no further; empty when all was written
};

/// Writes a label to a staging folder, as one target after the other.
class LabelWriter
{
public:
    /// @param label   must outlive the writer
    /// @param staging an empty folder
    /// @param alive   called whenever a file or page is done
    LabelWriter(OpenedLabel& label, WriteOptions options, const QString& staging,
                archive::SignOfLife alive);

    /// @param output where the file is to stand in the end; the files of a series of pictures
    ///        or drawings carry the record's number before the suffix, "asset-0007.png"
    [[nodiscard]] Written write(Target target, const QString& output);

private:
    using Write = std::function<QString(const QString& file)>;

    [[nodiscard]] Written writeFile(const QString& output, const Write& write);
    [[nodiscard]] Written writeDocument(const QString& output, qint64 first, qint64 count);
    [[nodiscard]] Written writeSeries(Target target, const QString& output, qint64 first,
                                      qint64 count);

    OpenedLabel& m_label;
    WriteOptions m_options;
    QString m_staging;
    archive::SignOfLife m_alive;
    int m_written = 0;
};

} // namespace cli

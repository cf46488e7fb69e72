#pragma once

#include "exporting/export_file.h"
#include "exporting/export_findings.h"
#include "printing/sheet.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace exporting {

/// A label in the format of gLabels 3.
struct GlabelsLabel
{
    QByteArray label;
    QByteArray records; ///< a CSV file; empty if no item is bound to a data source
    ExportFindings findings;
};

/// Called after each item.
using Heartbeat = std::function<void()>;

/// Where and how a label is written.
struct GlabelsOptions
{
    QString name;                         ///< of the label, which its paper gets in gLabels
    QString recordsName;                  ///< of the file with the records, next to the label
    std::optional<printing::Sheet> sheet; ///< none: paper of the label's size
};

/// Writes a label for gLabels. The canvas must show the first record.
[[nodiscard]] GlabelsLabel toGlabels(
    const workbench::Canvas& canvas, const workbench::datasources::DatasourceController& sources,
    const GlabelsOptions& options, const Heartbeat& heartbeat = [] {});

/// Writes all records of the label: a file for gLabels and, if there are records, a CSV file next
/// to it. See exportFile().
[[nodiscard]] QString writeGlabels(const ExportJob& job, const QString& fileName);

/// Whether the bytes at the beginning of a file are those of a label that was written by
/// toGlabels() and not saved by gLabels since.
[[nodiscard]] bool isUneditedGlabels(const QByteArray& head);
/// Whether records are those that toGlabels() wrote with a label, from the beginning of its file.
[[nodiscard]] bool areRecordsOf(const QByteArray& head, const QByteArray& records);

} // namespace exporting

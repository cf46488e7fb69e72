#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

/// Reports about imported labels: one for each file.
namespace migration {

/// How the import of one file ended.
enum class Status : quint8 {
    Imported,
    Failed,      ///< the file could not be read; FileReport::error says why
    Crashed,     ///< the process that read the file was killed by a signal
    TimedOut,    ///< the import exceeded its time limit
    OutOfMemory, ///< the import exceeded its memory limit
};

/// The number of items of one kind.
struct KindCount
{
    QString kind; ///< a code of workbench/items/shape_kinds.h
    qint64 count = 0;
    bool operator==(const KindCount&) const = default;
};

/// Where on the label something was lost or changed.
struct FindingPlaces
{
    QList<int> items;      ///< indices of the changed items on the canvas
    QList<QRectF> missing; ///< boxes of lost objects, in millimeters from the page's corner
    bool operator==(const FindingPlaces&) const = default;
};

/// Something that was lost or changed.
struct Finding
{
    QString code; ///< of model/loss_kinds.h
    QString text; ///< for the user
    /// How many times. For lost objects: how many of ObjectsReport::inFile.
    qint64 count = 1;
    /// Whether the count is of objects that ObjectsReport::inFile includes.
    bool countsObjects = false;
    /// Names of the shapes, fonts or fields concerned; the first few.
    QStringList details;
    /// Nothing if no place is known.
    std::optional<FindingPlaces> places = {};
    bool operator==(const Finding&) const = default;
};

/// A kind of repair that was made.
struct RepairReport
{
    QString code; ///< of tools/repair
    QString text; ///< for the user
    qint64 count = 1;
    bool operator==(const RepairReport&) const = default;
};

/// A data source of the label.
struct SourceReport
{
    int id = 0;
    QString kind;
    QStringList fields;
    QString file; ///< the file that it reads; may be empty
    bool operator==(const SourceReport&) const = default;
};

/// A warning of the import.
struct IssueReport
{
    QString text;
    int item = -1; ///< index of the item on the canvas, -1 for none
    int repeats = 1;
    bool operator==(const IssueReport&) const = default;
};

/// One item of the label. Millimeters, from the upper left corner of the page.
struct ItemReport
{
    QString kind;
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    QString content;     ///< text of a text, content of a barcode; else empty
    int datasource = -1; ///< id of the data source; -1: not bound
    bool operator==(const ItemReport&) const = default;
};

/// What became of the items of one kind in the format of another program.
struct ExportReport
{
    QString target;   ///< "glabels"
    QString fidelity; ///< "exact", "picture" or "simplified"
    QString kind;     ///< as in KindCount; "label" for the label itself
    QString text;     ///< the reason, for the user; empty if exact
    qint64 count = 1;
    bool operator==(const ExportReport&) const = default;
};

/// The page of a label.
struct PageReport
{
    double width = 0.0;  ///< millimeters
    double height = 0.0; ///< millimeters
    bool operator==(const PageReport&) const = default;
};

/// How many objects a file has, and how many of them are on the label.
struct ObjectsReport
{
    /// Counted without the reader; nothing if that is not possible, and then `unknown` says why.
    std::optional<qint64> inFile;
    qint64 imported = 0;
    QString unknown;
    bool operator==(const ObjectsReport&) const = default;
};

/// The outcome of one file's import. A default report says "failed", without a file name.
struct FileReport
{
    QString file; ///< the name that is shown
    qint64 bytes = 0;
    Status status = Status::Failed;
    QString error;  ///< why the file is not imported, for the user
    QString reader; ///< "tavrel", "orvanta", "opendocument" or "label"
    PageReport page;
    ObjectsReport objects;

    QList<KindCount> items;    ///< all items on the canvas, by kind
    QList<KindCount> complete; ///< items that were imported without a change
    QList<Finding> changed;    ///< what was imported with changes
    QList<Finding> lost;       ///< what was not imported
    /// What was repaired, and therefore is neither lost nor changed.
    QList<RepairReport> repaired;
    QList<SourceReport> datasources;
    QList<IssueReport> issues;
    QByteArray thumbnail; ///< PNG, at most 160 pixels a side; may be empty
    QByteArray preview;   ///< the document's own small picture, in the same way
    QStringList outputs;  ///< files that were written
    /// What became of the items in outputs that cannot express all of them.
    QList<ExportReport> exports;
    /// What the process that read the file was confined to: codes of sandbox/confinement.h.
    QStringList sandbox;
    QList<ItemReport> itemList; ///< all items one by one; empty in reports of archives

    bool operator==(const FileReport&) const = default;
};

/// The status as reports write it: "imported", "failed", "crashed", "timed-out",
/// "out-of-memory".
[[nodiscard]] QString statusName(Status status);
[[nodiscard]] std::optional<Status> statusOfName(const QString& name);

/// The result of one file's import in a word: the same on the command line, in the window, in the
/// exit status and in reports.
enum class Verdict : quint8 {
    Complete, ///< imported; all objects were counted, and nothing was lost or changed
    Changed,  ///< imported; the content is complete, only looks changed
    Lossy,    ///< imported; content was lost or changed, or could not be counted
    Failed,   ///< not imported
};
inline constexpr int Verdicts = 4;

/// The overall result for a file, from its status, losses and changes.
[[nodiscard]] Verdict verdictOf(const FileReport& report);
/// The verdict as reports write it: "complete", "changed", "lossy", "failed".
[[nodiscard]] QString verdictName(Verdict verdict);
/// The verdict for the user: "imported with losses".
[[nodiscard]] QString verdictText(Verdict verdict);

/// Whether the verdict is lossy or failed: then `--fail-on-loss` fails.
[[nodiscard]] bool hasLoss(const FileReport& report);

/// The number of lost objects; 0 if it is not known how many the file has.
[[nodiscard]] qint64 objectsLost(const FileReport& report);

/// "Imported 12 of 14 objects."
[[nodiscard]] QString countSentence(const FileReport& report);
/// A summary for the user: the number of objects, and what that means.
[[nodiscard]] QString summaryOf(const FileReport& report);

/// The report as an object of docs/report.schema.json.
[[nodiscard]] QJsonObject toJson(const FileReport& report);
/// Reads such an object; nothing if a field is missing or invalid. Unknown fields are ignored.
[[nodiscard]] std::optional<FileReport> fileReportFromJson(const QJsonObject& object);

} // namespace migration

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What became of old labels: one report for each file, and files of many reports.
namespace migration {

/// How the import of one file ended.
enum class Status : quint8 {
    Imported,
    Failed,      ///< the file could not be read; FileReport::error says why
    Crashed,     ///< the program that read it died
    TimedOut,    ///< it took longer than it may
    OutOfMemory, ///< it needed more memory than it may
};

/// How many of a kind.
struct KindCount
{
    QString kind; ///< as kindName() has it
    qint64 count = 0;
    bool operator==(const KindCount&) const = default;
};

/// Something that did not come over, or came over changed.
struct Finding
{
    QString code; ///< of the table in losses/loss_kinds.h
    QString text; ///< for a person
    /// How many times. For lost objects: how many objects of objectsInFile.
    qint64 count = 1;
    /// Whether the count is of objects that objectsInFile counts too.
    bool countsObjects = false;
    /// What it was about: names of shapes, fonts, fields; the first few.
    QStringList details;
    bool operator==(const Finding&) const = default;
};

/// A data source of the label.
struct SourceReport
{
    int id = 0;
    QString kind;
    QStringList fields;
    QString file; ///< the file that it reads; empty for a source that reads none
    bool operator==(const SourceReport&) const = default;
};

/// A sentence that the import has said about the label.
struct IssueReport
{
    QString text;
    int item = -1; ///< index of the item on the canvas, -1 for none
    int repeats = 1;
    bool operator==(const IssueReport&) const = default;
};

/// One item of the label. Lengths are in millimeters from the page's upper left corner.
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

/// What became of one file. A plain value; a default one says "failed" of no file.
struct FileReport
{
    QString file; ///< the name that is shown
    qint64 bytes = 0;
    Status status = Status::Failed;
    QString error;           ///< why it is not imported, in words for a person
    QString reader;          ///< "tavrel", "orvanta", "opendocument" or "label"
    double pageWidth = 0.0;  ///< millimeters
    double pageHeight = 0.0; ///< millimeters

    /// Objects that the file holds, counted apart from the reader; nothing when that is
    /// not known, and then objectsUnknown says why.
    std::optional<qint64> objectsInFile;
    QString objectsUnknown;
    /// How many of them are on the label.
    qint64 objectsImported = 0;

    QList<KindCount> items; ///< all items on the canvas, by kind
    QList<KindCount> whole; ///< those of them that came over as they were
    QList<Finding> changed; ///< what came over in another form
    QList<Finding> lost;    ///< what did not come over
    QList<SourceReport> datasources;
    QList<IssueReport> issues;
    QByteArray thumbnail;       ///< PNG, at most 160 pixels a side; may be empty
    QStringList outputs;        ///< files that were written
    QList<ItemReport> itemList; ///< every item; archives leave it empty

    bool operator==(const FileReport&) const = default;
};

/// The status as reports write it: "imported", "failed", "crashed", "timed-out",
/// "out-of-memory".
[[nodiscard]] QString statusName(Status status);
[[nodiscard]] std::optional<Status> statusOfName(const QString& name);

/// Whether something that the label says is not on the new one: the file is not imported,
/// or something did not come over, or came over changed in its content. What is changed in
/// its looks alone, such as a replaced font, is no loss.
[[nodiscard]] bool hasLoss(const FileReport& report);

/// Whether everything came over as it was: imported, nothing lost, nothing changed.
[[nodiscard]] bool isWhole(const FileReport& report);

/// Objects that did not come over; 0 where it is not known how many there are.
[[nodiscard]] qint64 objectsLost(const FileReport& report);

/// The sum of all in one sentence for a person: "12 of 14 objects came over".
[[nodiscard]] QString summaryOf(const FileReport& report);

/// The report as an object of docs/report.schema.json.
[[nodiscard]] QJsonObject toJson(const FileReport& report);
/// Reads such an object; nothing when it is none. Fields that are not known are passed over.
[[nodiscard]] std::optional<FileReport> fileReportFromJson(const QJsonObject& object);

} // namespace migration

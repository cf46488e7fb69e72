#pragma once

#include <QDataStream>
#include <QString>

/// The records before the first item, in the order of the file. A preview picture follows the
/// header.
namespace tavrel {

/// Dots per inch of the printer that a label was designed for; -1 before a file is read.
struct Resolution
{
    double x = -1.0;
    double y = -1.0;
};

/// The start of a file.
struct CanvasHeader
{
    quint32 version = 0;

    /// Whether this reader can read the version; there is no upper limit.
    [[nodiscard]] bool isSupported() const;
};

/// Reads the first values of a file. Does not check the version.
[[nodiscard]] CanvasHeader readCanvasHeader(QDataStream& stream);

/// The page: its size, its supplies and the resolution that item records refer to.
struct CanvasRecord
{
    double width = 0.0;  ///< points
    double height = 0.0; ///< points
    qint32 labelType = 0;
    qint32 ribbonType = 0;
    bool canvasFlag = false; ///< stored, of unknown meaning; the host gets it
    bool orientationFlag = false;
    Resolution resolution;
};

/// Reads the page; the version of the file selects the layout.
[[nodiscard]] CanvasRecord readCanvasRecord(QDataStream& stream, quint32 version);

/// The counter of a label. Each item that is bound to it gets a data source with these values.
struct SequenceSettings
{
    qint32 sequenceTrailingValue = 0; ///< stored, but not used
    qint32 sequenceStart = 0;
    qint32 sequenceEnd = 0;
    qint32 sequenceStep = 0;
    qint32 sequenceZeroPad = 0;
    QString sequencePrefix;
    QString sequenceSuffix;
};

/// Reads the settings of the counter; the version of the file selects the layout.
[[nodiscard]] SequenceSettings readSequenceSettings(QDataStream& stream, quint32 version);

/// Reads the list of a label's databases. The binding to them is not imported.
/// @return whether the selected entry is a file, that is, whether its path contains a slash or a
///         backslash
[[nodiscard]] bool readDatabaseList(QDataStream& stream);

} // namespace tavrel

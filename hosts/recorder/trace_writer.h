#pragma once

#include "host/kest_types.h"
#include "recorder/trace_value.h"

#include <QPointF>
#include <QString>

#include <optional>
#include <vector>

class QIODevice;

namespace recorder {

/// The state of an item after the import.
struct ItemState
{
    int number = 0; ///< from 1, in the order of creation
    KestTypes::ShapeType type{};
    bool imported = false; ///< whether the item is on the canvas
    QPointF position;
    double z = 0;
    bool movable = false;
    std::optional<QString> html; ///< content of a rich text that is not empty
};

/// Writes a trace, one JSON object on a line.
///
/// Keys are written in the order of the format's description, so that two traces can be
/// compared as text.
class TraceWriter
{
public:
    using Values = std::vector<TraceValue>;

    /// @param out receives the lines; open for writing, not owned, must outlive the writer
    explicit TraceWriter(QIODevice& out);

    /// The first line: the imported file and its reader.
    void start(const QString& fileName, const QString& reader);
    /// A call without a return value, on "canvas", "item:1" and so on.
    void call(const QString& target, const char* name, const Values& arguments);
    /// A call with the value that it returned.
    void call(const QString& target, const char* name, const Values& arguments,
              const TraceValue& returned);
    /// A signal of the importer.
    void signal(const char* name);
    /// A log record. @param source the base name of the file that wrote it
    void log(const QString& level, const QString& source, const QString& function,
             const QString& message);
    /// The final state of an item.
    void itemState(const ItemState& state);
    /// The last line. @param result whether the import succeeded
    void end(bool result);

private:
    void writeLine(const std::vector<TraceValue::Field>& fields);

    QIODevice& m_out;
};

/// The name of an item in a trace.
[[nodiscard]] QString itemTarget(int number);

} // namespace recorder

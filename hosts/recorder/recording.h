#pragma once

#include "host/kest_types.h"
#include "recorder/behavior.h"
#include "recorder/trace_writer.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QGraphicsItem;
class QIODevice;
class TalMessageBox;

namespace recorder {

/// The state of a recording: the trace and the registered items.
///
/// Shared by all objects of the recording host, including items, which may outlive the
/// host that created them.
class Recording
{
public:
    /// @param out receives the trace; null to keep none
    explicit Recording(QIODevice* out);

    /// The recording that the link-time services write to; null if there is none. They
    /// are called without a host, so there can be only one at a time.
    [[nodiscard]] static std::shared_ptr<Recording> current();
    static void setCurrent(const std::shared_ptr<Recording>& recording);

    /// Null if no trace is kept.
    [[nodiscard]] TraceWriter* trace() { return m_trace ? &*m_trace : nullptr; }
    [[nodiscard]] Behavior& behavior() { return m_behavior; }

    /// Writes a call. The arguments are converted to text only if a trace is kept.
    template <typename... Arguments>
    void call(const QString& target, const char* name, const Arguments&... arguments)
    {
        if (m_trace) {
            m_trace->call(target, name, {TraceValue(arguments)...});
        }
    }
    /// The same with the call's return value.
    template <typename Returned, typename... Arguments>
    void answer(const Returned& returned, const QString& target, const char* name,
                const Arguments&... arguments)
    {
        if (m_trace) {
            m_trace->call(target, name, {TraceValue(arguments)...}, returned);
        }
    }

    /// Clears the recording; all items must have been deleted.
    void reset();

    /// The number of the next item.
    [[nodiscard]] int nextItemNumber() const;
    /// Registers the item of this number.
    void addItem(KestTypes::ShapeType type, QGraphicsItem* item);
    void markImported(int number);
    /// Called when an item is deleted.
    void forgetItem(int number);
    [[nodiscard]] int importedCount() const;
    /// The item of this number; null once it is deleted.
    [[nodiscard]] QGraphicsItem* item(int number) const;
    /// States of the items that still exist, in the order of creation.
    [[nodiscard]] std::vector<ItemState> itemStates() const;

    /// Symbol creators that were created, and those that still exist.
    int symbolCreatorsMade = 0;
    int symbolCreators = 0;
    /// Symbol databases that still exist.
    int symbolDatabases = 0;

    /// The number for a new symbol database, from 1.
    [[nodiscard]] int addSymbolDatabase() { return ++m_symbolDatabases; }

    /// Registers a message box, which hideMessageBoxes() closes if it still exists.
    void addMessageBox(TalMessageBox* box);
    /// Closes the open message boxes, as a user would.
    void hideMessageBoxes();

private:
    struct Entry
    {
        KestTypes::ShapeType type{};
        QGraphicsItem* item = nullptr; ///< null once it is deleted
        bool imported = false;
    };

    std::optional<TraceWriter> m_trace;
    Behavior m_behavior;
    std::vector<Entry> m_items;
    int m_symbolDatabases = 0;
    QList<QPointer<TalMessageBox>> m_messageBoxes;
};

} // namespace recorder

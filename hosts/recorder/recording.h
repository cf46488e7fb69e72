#pragma once

#include "host/kest_types.h"
#include "recorder/trace_writer.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <memory>
#include <vector>

class QGraphicsItem;
class QIODevice;
class TalMessageBox;

namespace recorder {

/// The memory of a recording: the trace, and who is who in it.
///
/// Everything of the recording host shares one, items included, which may outlive the
/// host that made them.
class Recording
{
public:
    explicit Recording(QIODevice& out);

    /// The recording that the link-time services write to; null when there is none. They
    /// are called without a host at hand, so there can be only one at a time.
    [[nodiscard]] static std::shared_ptr<Recording> current();
    static void setCurrent(const std::shared_ptr<Recording>& recording);

    [[nodiscard]] TraceWriter& trace() { return m_trace; }

    /// The number that the next item will have.
    [[nodiscard]] int nextItemNumber() const;
    /// Enters the item that has this number.
    void addItem(KestTypes::ShapeType type, QGraphicsItem* item);
    void markImported(int number);
    /// The item is being deleted.
    void forgetItem(int number);
    /// States of the items that still exist, in the order of creation.
    [[nodiscard]] std::vector<ItemState> itemStates() const;

    /// The number of a symbol database that is being made, from 1.
    [[nodiscard]] int addSymbolDatabase() { return ++m_symbolDatabases; }

    void addMessageBox(TalMessageBox* box);
    /// Closes the message boxes that are open, as a user would.
    void hideMessageBoxes();

private:
    struct Entry
    {
        KestTypes::ShapeType type{};
        QGraphicsItem* item = nullptr; ///< null once it is deleted
        bool imported = false;
    };

    TraceWriter m_trace;
    std::vector<Entry> m_items;
    int m_symbolDatabases = 0;
    QList<QPointer<TalMessageBox>> m_messageBoxes;
};

} // namespace recorder

#include "recorder/recording.h"

#include "host/items/rich_text_item.h"
#include "host/services/tal_message_box.h"

#include <QGraphicsItem>
#include <QTextDocument>

#include <algorithm>
#include <functional>
#include <utility>

namespace recorder {

namespace {

std::weak_ptr<Recording>& currentRecording()
{
    static std::weak_ptr<Recording> recording;
    return recording;
}

std::optional<QString> htmlOf(const QGraphicsItem* item)
{
    const auto* text = dynamic_cast<const RichTextItem*>(item);
    if (text == nullptr || text->document()->isEmpty()) {
        return std::nullopt;
    }
    return text->toHtml();
}

} // namespace

Recording::Recording(QIODevice* out)
{
    if (out != nullptr) {
        m_trace.emplace(*out);
    }
}

std::shared_ptr<Recording> Recording::current()
{
    return currentRecording().lock();
}

void Recording::setCurrent(const std::shared_ptr<Recording>& recording)
{
    currentRecording() = recording;
}

int Recording::nextItemNumber() const
{
    return static_cast<int>(m_items.size()) + 1;
}

void Recording::addItem(KestTypes::ShapeType type, QGraphicsItem* item)
{
    m_items.push_back({type, item, false});
}

void Recording::markImported(int number)
{
    m_items.at(static_cast<std::size_t>(number - 1)).imported = true;
}

void Recording::forgetItem(int number)
{
    m_items.at(static_cast<std::size_t>(number - 1)).item = nullptr;
}

int Recording::importedCount() const
{
    return static_cast<int>(
        std::count_if(m_items.begin(), m_items.end(), std::mem_fn(&Entry::imported)));
}

QGraphicsItem* Recording::item(int number) const
{
    return m_items.at(static_cast<std::size_t>(number - 1)).item;
}

void Recording::reset()
{
    m_items.clear();
    m_symbolDatabases = 0;
    m_messageBoxes.clear();
}

std::vector<ItemState> Recording::itemStates() const
{
    std::vector<ItemState> states;
    int number = 0;
    for (const Entry& entry : m_items) {
        ++number;
        if (entry.item == nullptr) {
            continue;
        }
        states.push_back(
            {number, entry.type, entry.imported, entry.item->pos(), entry.item->zValue(),
             entry.item->flags().testFlag(QGraphicsItem::ItemIsMovable), htmlOf(entry.item)});
    }
    return states;
}

void Recording::addMessageBox(TalMessageBox* box)
{
    m_messageBoxes.append(box);
}

void Recording::hideMessageBoxes()
{
    const auto boxes = std::exchange(m_messageBoxes, {});
    for (const QPointer<TalMessageBox>& box : boxes) {
        if (box) {
            // The owner of the box may delete it during this call.
            Q_EMIT box->popupHideSignal();
        }
    }
}

} // namespace recorder

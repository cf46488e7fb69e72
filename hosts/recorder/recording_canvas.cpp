#include "recorder/recording_canvas.h"

#include "host/items/item.h"
#include "recorder/items/recorded_item.h"

#include <QGraphicsItem>

using namespace Qt::StringLiterals;

namespace recorder {

namespace {

const QString CanvasTarget = u"canvas"_s;

TraceValue itemValues(const QList<QGraphicsItem*>& items)
{
    TraceWriter::Values values;
    for (QGraphicsItem* item : items) {
        values.push_back(itemValue(item));
    }
    return TraceValue::array(values);
}

} // namespace

RecordingCanvas::RecordingCanvas(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
    , m_factory(m_recording)
{}

RecordingCanvas::~RecordingCanvas() = default;

void RecordingCanvas::importItem(Item* item)
{
    if (m_recording->trace() != nullptr) {
        m_recording->call(CanvasTarget, "importItem", itemValue(item));
    }
    if (const auto* recorded = dynamic_cast<RecordedItem*>(item)) {
        m_recording->markImported(recorded->number());
    }
    const Behavior& behavior = m_recording->behavior();
    if (behavior.onImportItem) {
        behavior.onImportItem();
    }
    if (behavior.deletesItems) {
        delete item;
    } else {
        adopt(item);
    }
}

void RecordingCanvas::importCanvasParameters(double width, double height, bool canvasFlag,
                                             bool orientation)
{
    m_recording->call(CanvasTarget, "importCanvasParameters", width, height, canvasFlag,
                      orientation);
}

void RecordingCanvas::setCanvasBackgroundColor(const QColor& color)
{
    m_recording->call(CanvasTarget, "setCanvasBackgroundColor", color);
    m_backgroundColor = color;
}

void RecordingCanvas::setCanvasDefaultPenColor(const QColor& color)
{
    m_recording->call(CanvasTarget, "setCanvasDefaultPenColor", color);
    m_defaultPenColor = color;
}

QColor RecordingCanvas::canvasBackgroundColor() const
{
    m_recording->answer(m_backgroundColor, CanvasTarget, "canvasBackgroundColor");
    return m_backgroundColor;
}

QColor RecordingCanvas::canvasDefaultPenColor() const
{
    m_recording->answer(m_defaultPenColor, CanvasTarget, "canvasDefaultPenColor");
    return m_defaultPenColor;
}

void RecordingCanvas::setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items)
{
    m_recording->call(CanvasTarget, "setReadOnlyStateOnItemsInList", readOnly, itemValues(items));
}

void RecordingCanvas::setUserBackgroundStateOnItemsInList(bool background,
                                                          QList<QGraphicsItem*> items)
{
    m_recording->call(CanvasTarget, "setUserBackgroundStateOnItemsInList", background,
                      itemValues(items));
}

void RecordingCanvas::completeCanvasLoading()
{
    m_recording->call(CanvasTarget, "completeCanvasLoading");
}

void RecordingCanvas::clear()
{
    m_items.clear();
    m_adopted.clear();
    m_backgroundColor = Qt::white;
    m_defaultPenColor = Qt::black;
}

void RecordingCanvas::adopt(Item* item)
{
    // An item that is added twice is a fault to show in the trace, not a crash.
    if (item != nullptr && !m_adopted.contains(item)) {
        m_adopted.insert(item);
        m_items.emplace_back(item);
    }
}

} // namespace recorder

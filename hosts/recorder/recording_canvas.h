#pragma once

#include "host/tal_canvas_model.h"
#include "recorder/recording.h"
#include "recorder/recording_factory.h"

#include <QColor>
#include <QSet>

#include <memory>
#include <vector>

namespace recorder {

/// A canvas that records all calls. Initially white, with a black pen.
class RecordingCanvas : public TalCanvasModel
{
public:
    explicit RecordingCanvas(std::shared_ptr<Recording> recording);
    ~RecordingCanvas() override;

    [[nodiscard]] ClassFactory* getClassFactory() override
    {
        return m_recording->behavior().hasFactory ? &m_factory : nullptr;
    }
    void importItem(Item* item) override;
    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    void setCanvasBackgroundColor(const QColor& color) override;
    void setCanvasDefaultPenColor(const QColor& color) override;
    [[nodiscard]] QColor canvasBackgroundColor() const override;
    [[nodiscard]] QColor canvasDefaultPenColor() const override;
    void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) override;
    void setUserBackgroundStateOnItemsInList(bool background, QList<QGraphicsItem*> items) override;
    void completeCanvasLoading() override;

    /// Deletes the items and resets the colors to white with a black pen.
    void clear();

private:
    void adopt(Item* item);

    std::shared_ptr<Recording> m_recording;
    RecordingFactory m_factory;
    QColor m_backgroundColor{Qt::white};
    QColor m_defaultPenColor{Qt::black};
    std::vector<std::unique_ptr<Item>> m_items;
    QSet<const Item*> m_adopted;
};

} // namespace recorder

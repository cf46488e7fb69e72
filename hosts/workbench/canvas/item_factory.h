#pragma once

#include "host/class_factory.h"

class TalCanvasModel;

namespace workbench {

/// Creates the workbench's items with the canvas's print color, each above the one before.
class ItemFactory final : public ClassFactory
{
public:
    /// The canvas is not owned and must outlive the factory.
    explicit ItemFactory(const TalCanvasModel& canvas);

    /// Null for a code without an item class.
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

private:
    const TalCanvasModel& m_canvas;
    double m_topZ = 0.0; // of the items created so far
};

} // namespace workbench

#pragma once

#include "host/class_factory.h"

class TalCanvasModel;

namespace workbench {

/// Makes the items of the workbench, in the colour of the canvas's print.
class ItemFactory final : public ClassFactory
{
public:
    /// The canvas is not owned and must outlive the factory.
    explicit ItemFactory(const TalCanvasModel& canvas);

    /// Null for a code that names no item.
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

private:
    const TalCanvasModel& m_canvas;
};

} // namespace workbench

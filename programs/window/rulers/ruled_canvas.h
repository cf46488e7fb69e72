#pragma once

#include "window/properties/length_unit.h"

#include <QWidget>

class QToolButton;

namespace window {

class CanvasView;
class Ruler;

/// The canvas with two rulers and, in their corner, the button that changes the unit.
class RuledCanvas final : public QWidget
{
    Q_OBJECT

public:
    explicit RuledCanvas(QWidget* parent = nullptr);

    [[nodiscard]] CanvasView& view() { return *m_view; }
    void setUnit(LengthUnit unit);
    void setRulersVisible(bool visible);

Q_SIGNALS:
    /// The user has clicked the unit button.
    void unitChangeRequested();

private:
    void followView();

    CanvasView* m_view;
    Ruler* m_horizontal;
    Ruler* m_vertical;
    QToolButton* m_corner;
};

} // namespace window

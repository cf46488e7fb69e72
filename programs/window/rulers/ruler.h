#pragma once

#include "window/rulers/ruler_scale.h"

#include <QWidget>

#include <optional>

namespace window {

/// A ruler along one side of the canvas, with a mark at the pointer's position.
class Ruler final : public QWidget
{
    Q_OBJECT

public:
    explicit Ruler(Qt::Orientation orientation, QWidget* parent = nullptr);

    void setUnit(LengthUnit unit);
    [[nodiscard]] LengthUnit unit() const { return m_unit; }
    /// The visible part of the canvas; the length is the ruler's own.
    void setSpan(double originPixel, double pixelsPerPoint);
    /// The pointer's position in pixels along the ruler; nothing if it is elsewhere.
    void setPointer(std::optional<double> pixel);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] RulerSpan span() const;
    [[nodiscard]] int thickness() const;
    void paintTick(QPainter& painter, const RulerTick& tick) const;
    void paintPointer(QPainter& painter) const;

    Qt::Orientation m_orientation;
    LengthUnit m_unit = LengthUnit::Millimeter;
    double m_origin = 0.0;
    double m_pixelsPerPoint = 1.0;
    std::optional<double> m_pointer;
};

} // namespace window

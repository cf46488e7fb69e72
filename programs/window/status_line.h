#pragma once

#include "window/properties/length_unit.h"

#include <QPointF>
#include <QSizeF>

#include <functional>
#include <optional>
#include <utility>

class QComboBox;
class QLabel;
class QStatusBar;

namespace window {

/// The permanent part of the status bar: pointer position, page, record, zoom.
class StatusLine
{
public:
    explicit StatusLine(QStatusBar& bar);
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    void setPointer(std::optional<QPointF> point, LengthUnit unit);
    void setPage(std::optional<QSizeF> size, LengthUnit unit);
    /// Counted from 0. A single record is not shown.
    void setRecord(qint64 record, qint64 count);
    /// Nullopt disables the box.
    void setZoom(std::optional<double> zoom);
    /// Calls this with the zoom that the user has chosen; 0 is the whole label.
    void onZoomChosen(std::function<void(double)> action) { m_zoomChosen = std::move(action); }
    [[nodiscard]] QComboBox& zoomBox() { return *m_zoom; }

private:
    void chooseZoom();

    std::function<void(double)> m_zoomChosen;
    double m_shownZoom = 1.0;
    QLabel* m_pointer;
    QLabel* m_page;
    QLabel* m_record;
    QComboBox* m_zoom;
};

} // namespace window

#pragma once

#include "window/properties/length_unit.h"

#include <QPointF>
#include <QSizeF>

#include <optional>

class QLabel;
class QStatusBar;

namespace window {

/// The permanent part of the status bar: pointer position, page, record, zoom.
class StatusLine
{
public:
    explicit StatusLine(QStatusBar& bar);

    void setPointer(std::optional<QPointF> point, LengthUnit unit);
    void setPage(std::optional<QSizeF> size, LengthUnit unit);
    /// Counted from 0. A single record is not shown.
    void setRecord(qint64 record, qint64 count);
    void setZoom(std::optional<double> zoom);

private:
    QLabel* m_pointer;
    QLabel* m_page;
    QLabel* m_record;
    QLabel* m_zoom;
};

} // namespace window

#pragma once

#include "window/properties/length_unit.h"

#include <QPointF>
#include <QSizeF>

#include <optional>

class QLabel;
class QStatusBar;

namespace window {

/// What the status bar always tells: where the pointer is, the page, the record, the zoom.
class StatusLine
{
public:
    explicit StatusLine(QStatusBar& bar);

    void setPointer(std::optional<QPointF> point, LengthUnit unit);
    void setPage(std::optional<QSizeF> size, LengthUnit unit);
    /// Counted from 0. Nothing is told of a single record.
    void setRecord(qint64 record, qint64 count);
    void setZoom(std::optional<double> zoom);

private:
    QLabel* m_pointer;
    QLabel* m_page;
    QLabel* m_record;
    QLabel* m_zoom;
};

} // namespace window

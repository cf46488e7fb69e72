#include "window/status_line.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLocale>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(window::StatusLine)
};

QLabel* makeLabel(QStatusBar& bar)
{
    auto* label = new QLabel(&bar);
    label->setContentsMargins(6, 0, 6, 0);
    bar.addPermanentWidget(label);
    return label;
}

} // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : m_pointer(makeLabel(bar))
    , m_page(makeLabel(bar))
    , m_record(makeLabel(bar))
    , m_zoom(makeLabel(bar))
{}

void StatusLine::setPointer(std::optional<QPointF> point, LengthUnit unit)
{
    m_pointer->setText(point
                           ? lengthNumber(point->x(), unit) + u"; "_s + lengthText(point->y(), unit)
                           : QString());
}

void StatusLine::setPage(std::optional<QSizeF> size, LengthUnit unit)
{
    m_page->setText(size ? areaText(size->width(), size->height(), unit) : QString());
}

void StatusLine::setRecord(qint64 record, qint64 count)
{
    m_record->setText(count > 1
                          ? Words::tr("Record %1 of %2")
                                .arg(QLocale().toString(record + 1), QLocale().toString(count))
                          : QString());
}

void StatusLine::setZoom(std::optional<double> zoom)
{
    m_zoom->setText(zoom ? Words::tr("%1 %").arg(qRound(*zoom * 100.0)) : QString());
}

} // namespace window

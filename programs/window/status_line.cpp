#include "window/status_line.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

constexpr int Percents[] = {50, 75, 100, 150, 200, 400, 800};

struct StatusLineTr
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
    , m_zoom(new QComboBox(&bar))
{
    m_zoom->setEditable(true);
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    m_zoom->setAccessibleName(StatusLineTr::tr("Zoom"));
    m_zoom->lineEdit()->setAccessibleName(m_zoom->accessibleName());
    m_zoom->setToolTip(StatusLineTr::tr("Zoom in percent of the printed size"));
    m_zoom->setFrame(false);
    m_zoom->addItem(StatusLineTr::tr("Whole label"));
    for (const int percent : Percents) {
        m_zoom->addItem(StatusLineTr::tr("%1 %").arg(percent));
    }
    bar.addPermanentWidget(m_zoom);
    QObject::connect(m_zoom, &QComboBox::activated, m_zoom, [this] { chooseZoom(); });
    QObject::connect(m_zoom->lineEdit(), &QLineEdit::returnPressed, m_zoom, [this] {
        // The box does not report typed texts.
        if (m_zoom->lineEdit()->isModified()) {
            chooseZoom();
        }
    });
}

void StatusLine::chooseZoom()
{
    const QString text = m_zoom->currentText();
    if (!m_zoomChosen) {
        return;
    }
    if (text == m_zoom->itemText(0)) {
        m_zoomChosen(0.0);
        return;
    }
    bool isNumber = false;
    const double percent =
        QLocale().toDouble(QString(text).remove(QLatin1Char('%')).trimmed(), &isNumber);
    m_zoomChosen(isNumber && percent > 0.0 ? percent / 100.0 : m_shownZoom);
}

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
                          ? StatusLineTr::tr("Record %1 of %2")
                                .arg(QLocale().toString(record + 1), QLocale().toString(count))
                          : QString());
}

void StatusLine::setZoom(std::optional<double> zoom)
{
    m_zoom->setEnabled(zoom.has_value());
    m_shownZoom = zoom.value_or(1.0);
    m_zoom->setEditText(zoom ? StatusLineTr::tr("%1 %").arg(qRound(*zoom * 100.0)) : QString());
}

} // namespace window

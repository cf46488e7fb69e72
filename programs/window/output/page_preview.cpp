#include "window/output/page_preview.h"

#include "workbench/items/units.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace window {

namespace {

using workbench::PointsPerMillimeter;
constexpr int Border = 12; // pixels around the paper

} // namespace

PagePreview::PagePreview(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Preview of the page"));
}

void PagePreview::show(std::shared_ptr<const printing::PrintBatch> batch, qint64 page)
{
    m_batch = std::move(batch);
    m_page = page;
    m_image = {};
    update();
}

QRectF PagePreview::paperRect() const
{
    const QRectF available = QRectF(rect()).adjusted(Border, Border, -Border, -Border);
    const QSizeF paper = m_batch->pageSize(m_page);
    QRectF fitted({}, paper.scaled(available.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(available.center());
    return fitted;
}

void PagePreview::renderPage(const QSize& size)
{
    Q_EMIT aboutToPaint();
    m_image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::white);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = size.width() / m_batch->pageSize(m_page).width();
    painter.scale(scale, scale);
    if (const printing::Sheet* sheet = m_batch->sheetOf(m_page)) {
        painter.setPen(QPen(Qt::lightGray, 0.0, Qt::DotLine));
        for (int position = 0; position < sheet->positions(); ++position) {
            const QRectF cell = printing::cellAt(*sheet, position);
            painter.drawRoundedRect(
                QRectF(cell.topLeft() * PointsPerMillimeter, cell.size() * PointsPerMillimeter),
                3.0, 3.0);
        }
    }
    const bool isComplete = m_batch->paint(painter, m_page);
    painter.end();
    Q_EMIT painted(isComplete);
}

void PagePreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().mid());
    if (m_batch == nullptr) {
        return;
    }
    const QRectF paper = paperRect();
    const QSize pixels = (paper.size() * devicePixelRatioF()).toSize().expandedTo({1, 1});
    if (m_image.size() != pixels) {
        renderPage(pixels);
    }
    painter.drawImage(paper, m_image);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(paper);
}

void PagePreview::mousePressEvent(QMouseEvent* event)
{
    const printing::Sheet* sheet = m_batch != nullptr ? m_batch->sheetOf(m_page) : nullptr;
    if (sheet == nullptr || event->button() != Qt::LeftButton) {
        return;
    }
    const QRectF paper = paperRect();
    const QPointF point =
        (event->position() - paper.topLeft()) * (sheet->paperSize.width() / paper.width());
    for (int position = 0; position < sheet->positions(); ++position) {
        if (printing::cellAt(*sheet, position).contains(point)) {
            Q_EMIT positionRequested(position);
            // What receives it may have replaced the batch, and with it the sheet.
            return;
        }
    }
}

} // namespace window

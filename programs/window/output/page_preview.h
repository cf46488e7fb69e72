#pragma once

#include "printing/print_batch.h"

#include <QImage>
#include <QWidget>

#include <memory>

namespace window {

/// Shows a page that will be printed, with its labels. A click on a label of a sheet selects it.
class PagePreview final : public QWidget
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget* parent = nullptr);

    /// Shows a page, which must exist; a null batch shows nothing.
    void show(std::shared_ptr<const printing::PrintBatch> batch, qint64 page);

    [[nodiscard]] QSize sizeHint() const override { return {420, 460}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 200}; }

Q_SIGNALS:
    /// The user clicked a position of the sheet, counted from 0.
    void positionRequested(int position);
    /// A page will be painted, before its first label.
    void aboutToPaint();
    /// A page was painted, or its first labels: the labels show other records now.
    void painted(bool isComplete);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QRectF paperRect() const;
    void renderPage(const QSize& size);

    std::shared_ptr<const printing::PrintBatch> m_batch;
    qint64 m_page = 0;
    QImage m_image;
};

} // namespace window

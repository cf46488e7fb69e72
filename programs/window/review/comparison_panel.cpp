#include "window/review/comparison_panel.h"

#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int SliderSteps = 100;
constexpr double Margin = 8.0;

} // namespace

ComparisonView::ComparisonView(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(120, 80);
    setAccessibleName(tr("Original and label"));
}

void ComparisonView::setPictures(const QImage& original, const QImage& label)
{
    m_original = original;
    m_label = label;
    update();
}

void ComparisonView::setShare(double share)
{
    m_share = share;
    update();
}

QRectF ComparisonView::pictureRect() const
{
    const QRectF room = QRectF(rect()).adjusted(Margin, Margin, -Margin, -Margin);
    QRectF picture({0.0, 0.0}, QSizeF(m_label.size()).scaled(room.size(), Qt::KeepAspectRatio));
    picture.moveCenter(room.center());
    return picture;
}

void ComparisonView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF picture = pictureRect();
    const double division = picture.left() + picture.width() * m_share;
    painter.fillRect(picture, Qt::white);
    painter.save();
    painter.setClipRect(QRectF(picture.topLeft(), QPointF(division, picture.bottom())));
    painter.drawImage(picture, m_original);
    painter.restore();
    painter.save();
    painter.setClipRect(QRectF(QPointF(division, picture.top()), picture.bottomRight()));
    painter.drawImage(picture, m_label);
    painter.restore();
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.drawLine(QPointF(division, 0.0), QPointF(division, height()));
}

ComparisonPanel::ComparisonPanel(QWidget* parent)
    : QWidget(parent)
    , m_none(new QLabel(tr("The original document has no preview."), this))
    , m_view(new ComparisonView(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_stack(new QStackedWidget(this))
{
    m_none->setAlignment(Qt::AlignCenter);
    m_none->setWordWrap(true);
    m_none->setForegroundRole(QPalette::PlaceholderText);
    m_slider->setRange(0, SliderSteps);
    m_slider->setValue(SliderSteps / 2);
    m_slider->setAccessibleName(tr("Share of the original"));
    auto* original = new QLabel(tr("Original"), this);
    auto* label = new QLabel(tr("Label"), this);
    auto* bar = new QHBoxLayout;
    bar->addWidget(original);
    bar->addWidget(m_slider);
    bar->addWidget(label);
    auto* comparison = new QWidget(this);
    auto* layout = new QVBoxLayout(comparison);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_view, 1);
    layout->addLayout(bar);
    m_stack->addWidget(m_none);
    m_stack->addWidget(comparison);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_stack);
    setFocusProxy(m_slider);
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        // The original is left of the handle.
        m_view->setShare(double(value) / SliderSteps);
    });
}

void ComparisonPanel::setPictures(const QImage& original, const QImage& label)
{
    m_hasOriginal = !original.isNull() && !label.isNull();
    m_view->setPictures(original, label);
    m_stack->setCurrentIndex(m_hasOriginal ? 1 : 0);
}

} // namespace window

#include "window/rulers/ruled_canvas.h"

#include "window/canvas/canvas_view.h"
#include "window/rulers/ruler.h"

#include <QGridLayout>
#include <QToolButton>

namespace window {

RuledCanvas::RuledCanvas(QWidget* parent)
    : QWidget(parent)
    , m_view(new CanvasView(this))
    , m_horizontal(new Ruler(Qt::Horizontal, this))
    , m_vertical(new Ruler(Qt::Vertical, this))
    , m_corner(new QToolButton(this))
{
    m_corner->setAutoRaise(true);
    m_corner->setFixedSize(m_horizontal->sizeHint());
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.75);
    m_corner->setFont(small);
    m_corner->setToolTip(tr("Change between millimeters and inches"));
    m_corner->setAccessibleName(tr("Unit of the rulers"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_corner, 0, 0);
    grid->addWidget(m_horizontal, 0, 1);
    grid->addWidget(m_vertical, 1, 0);
    grid->addWidget(m_view, 1, 1);
    setFocusProxy(m_view);
    connect(m_corner, &QToolButton::clicked, this, &RuledCanvas::unitChangeRequested);
    connect(m_view, &CanvasView::partChanged, this, &RuledCanvas::followView);
    connect(m_view, &CanvasView::pointerMoved, this, [this](const QPointF&, const QPoint& at) {
        m_horizontal->setPointer(at.x());
        m_vertical->setPointer(at.y());
    });
    connect(m_view, &CanvasView::pointerLeft, this, [this] {
        m_horizontal->setPointer(std::nullopt);
        m_vertical->setPointer(std::nullopt);
    });
    setUnit(LengthUnit::Millimeter);
}

void RuledCanvas::setUnit(LengthUnit unit)
{
    m_horizontal->setUnit(unit);
    m_vertical->setUnit(unit);
    m_corner->setText(unitSymbol(unit));
}

void RuledCanvas::setRulersVisible(bool visible)
{
    m_horizontal->setVisible(visible);
    m_vertical->setVisible(visible);
    m_corner->setVisible(visible);
}

void RuledCanvas::followView()
{
    const QPointF origin = m_view->pageOrigin();
    m_horizontal->setSpan(origin.x(), m_view->pixelsPerPoint());
    m_vertical->setSpan(origin.y(), m_view->pixelsPerPoint());
}

} // namespace window

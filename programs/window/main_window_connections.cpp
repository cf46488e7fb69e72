// The handlers of the main window's commands, and of the signals of its parts.

#include "window/canvas/canvas_view.h"
#include "window/edit_actions.h"
#include "window/help/manual_dialog.h"
#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/properties/property_panel.h"
#include "window/rulers/ruled_canvas.h"
#include "window/sources/source_panel.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsScene>
#include <QMenu>
#include <QStatusBar>

namespace window {

void MainWindow::connectSession()
{
    connect(m_session.get(), &LabelSession::aboutToReplaceLabel, this, &MainWindow::releaseLabel);
    connect(m_session.get(), &LabelSession::labelReplaced, this, &MainWindow::showLabel);
    connect(m_session.get(), &LabelSession::nameChanged, this, &MainWindow::refreshTitle);
    connect(m_session.get(), &LabelSession::noticeShown, this,
            [this](const QString& text) { statusBar()->showMessage(text, 10'000); });
    connect(&m_session->undoStack(), &QUndoStack::indexChanged, this, &MainWindow::refreshItems);
}

void MainWindow::connectCanvas()
{
    CanvasView& canvas = view();
    connect(&canvas, &CanvasView::zoomChanged, this,
            [this](double zoom) { m_status->setZoom(zoom); });
    m_status->onZoomChosen([&canvas](double zoom) {
        if (zoom > 0.0) {
            canvas.setZoom(zoom);
        } else {
            canvas.fitPage();
        }
        canvas.setFocus();
    });
    connect(&canvas, &CanvasView::pointerMoved, this,
            [this](const QPointF& point) { m_status->setPointer(point, m_unit); });
    connect(&canvas, &CanvasView::pointerLeft, this,
            [this] { m_status->setPointer(std::nullopt, m_unit); });
    connect(&canvas, &CanvasView::hintShown, this,
            [this](const QString& text) { statusBar()->showMessage(text, 10'000); });
    connect(&canvas, &CanvasView::itemsMoved, m_session.get(), &LabelSession::moveItems);
    connect(&canvas, &CanvasView::itemsChanged, this,
            [this](const QString& step, const QList<ItemChange>& changes) {
                m_session->undoStack().push(new ChangeItems(step, changes));
            });
    connect(&canvas, &CanvasView::menuRequested, this, &MainWindow::showContextMenu);
    connect(&canvas, &CanvasView::propertiesRequested, this,
            [this] { m_panels->goToProperties(); });
    connect(m_canvas, &RuledCanvas::unitChangeRequested, this, [this] {
        setUnit(m_unit == LengthUnit::Inch ? LengthUnit::Millimeter : LengthUnit::Inch);
    });
}

void MainWindow::connectPanels()
{
    connect(&m_panels->items(), &ItemPanel::selectionChanged, this, &MainWindow::refreshSelection);
    connect(&m_panels->items(), &ItemPanel::itemRequested, this, &MainWindow::showItem);
    connect(&m_panels->properties(), &PropertyPanel::itemsEdited, this,
            [this](const QString& step, const QList<ItemChange>& changes) {
                m_session->undoStack().push(new ChangeItems(step, changes));
            });
    connect(&m_panels->properties(), &PropertyPanel::pageEdited, this,
            [this](const workbench::PageValues& page) {
                m_session->undoStack().push(new ChangePage(*m_session->label()->canvas, page));
            });
    connect(&m_panels->sources(), &SourcePanel::recordRequested, this,
            &MainWindow::showRecordNumber);
}

void MainWindow::connectFileActions()
{
    LabelSession* session = m_session.get();
    connect(&action(ActionId::Open), &QAction::triggered, session, &LabelSession::openByDialog);
    connect(&action(ActionId::OpenAsWritten), &QAction::triggered, this,
            [this, session](bool isWanted) {
                session->readAgain(isWanted ? Reading::AsWritten : Reading::Repaired);
                refreshActions(); // the mark of the menu, if the user canceled
            });
    connect(&action(ActionId::Save), &QAction::triggered, session, &LabelSession::save);
    connect(&action(ActionId::SaveAs), &QAction::triggered, session, &LabelSession::saveAs);
    connect(&action(ActionId::Close), &QAction::triggered, session, &LabelSession::close);
    connect(&action(ActionId::Export), &QAction::triggered, this, &MainWindow::exportByDialog);
    connect(&action(ActionId::Print), &QAction::triggered, this, &MainWindow::printByDialog);
    connect(&action(ActionId::Quit), &QAction::triggered, this, &MainWindow::close);
    // Queued: the list must not change while the triggered action still runs.
    connect(session, &LabelSession::recentFilesChanged, this, &MainWindow::fillRecentMenu,
            Qt::QueuedConnection);
}

void MainWindow::connectEditActions()
{
    QUndoStack* stack = &m_session->undoStack();
    connect(&action(ActionId::Undo), &QAction::triggered, stack, &QUndoStack::undo);
    connect(&action(ActionId::Redo), &QAction::triggered, stack, &QUndoStack::redo);
    m_editActions = new EditActions(*m_actions, *m_session, view(), this);
    connect(m_editActions, &EditActions::hintShown, this,
            [this](const QString& text) { statusBar()->showMessage(text, 10'000); });
    connect(&action(ActionId::SelectAll), &QAction::triggered, this, &MainWindow::selectAll);
    connect(&action(ActionId::SelectNone), &QAction::triggered, this,
            [this] { scene()->clearSelection(); });
    connect(&action(ActionId::Manual), &QAction::triggered, this, [this] {
        auto* manual = new ManualDialog(this);
        manual->setAttribute(Qt::WA_DeleteOnClose);
        manual->show();
    });
    connect(&action(ActionId::Shortcuts), &QAction::triggered, this, &MainWindow::showShortcuts);
    connect(&action(ActionId::About), &QAction::triggered, this, &MainWindow::showAbout);
}

void MainWindow::connectViewActions()
{
    CanvasView* canvas = &view();
    connect(&action(ActionId::ZoomIn), &QAction::triggered, canvas, &CanvasView::zoomIn);
    connect(&action(ActionId::ZoomOut), &QAction::triggered, canvas, &CanvasView::zoomOut);
    connect(&action(ActionId::ZoomFit), &QAction::triggered, canvas, &CanvasView::fitPage);
    connect(&action(ActionId::ZoomTrue), &QAction::triggered, canvas,
            [canvas] { canvas->setZoom(1.0); });
    connect(&action(ActionId::ZoomSelection), &QAction::triggered, canvas,
            [canvas] { canvas->fitItems(canvas->scene()->selectedItems()); });
    connect(&action(ActionId::Rulers), &QAction::toggled, m_canvas, &RuledCanvas::setRulersVisible);
    connect(&action(ActionId::Millimeters), &QAction::triggered, this,
            [this] { setUnit(LengthUnit::Millimeter); });
    connect(&action(ActionId::Inches), &QAction::triggered, this,
            [this] { setUnit(LengthUnit::Inch); });
    connect(&action(ActionId::SystemColors), &QAction::triggered, this,
            [this] { setColors(ColorScheme::System); });
    connect(&action(ActionId::LightColors), &QAction::triggered, this,
            [this] { setColors(ColorScheme::Light); });
    connect(&action(ActionId::DarkColors), &QAction::triggered, this,
            [this] { setColors(ColorScheme::Dark); });
}

void MainWindow::connectPanelActions()
{
    connect(&action(ActionId::GoCanvas), &QAction::triggered, this,
            [this] { view().setFocus(Qt::ShortcutFocusReason); });
    connect(&action(ActionId::GoLabels), &QAction::triggered, this,
            [this] { m_panels->goToLabels(); });
    connect(&action(ActionId::GoItems), &QAction::triggered, this,
            [this] { m_panels->goToItems(); });
    connect(&action(ActionId::GoProperties), &QAction::triggered, this,
            [this] { m_panels->goToProperties(); });
    connect(&action(ActionId::GoSources), &QAction::triggered, this,
            [this] { m_panels->goToSources(); });
    connect(&action(ActionId::GoIssues), &QAction::triggered, this,
            [this] { m_panels->goToIssues(); });
    connect(&action(ActionId::GoRecord), &QAction::triggered, this,
            [this] { m_panels->goToRecord(); });
}

} // namespace window

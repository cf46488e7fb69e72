#include "window/main_window.h"

#include "window/canvas/canvas_view.h"
#include "window/edit_actions.h"
#include "window/help/shortcuts_dialog.h"
#include "window/items/item_panel.h"
#include "window/output/output_commands.h"
#include "window/properties/property_panel.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"
#include "window/rulers/ruled_canvas.h"
#include "window/sources/source_panel.h"
#include "workbench/canvas/canvas.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGraphicsItem>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

enum CenterPage { WelcomeIndex, CanvasIndex };

// Room for the title bar and the frame on small screens.
constexpr QSize FrameMargin(8, 40);

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_actions(new Actions(this))
    , m_session(std::make_unique<LabelSession>(this))
{
    setAcceptDrops(true);
    setWindowIcon(applicationIcon());
    resize(QSize(1240, 800).boundedTo(screen()->availableSize() - FrameMargin));
    buildCenter();
    m_panels = std::make_unique<WindowPanels>(*this, *m_actions);
    m_status = std::make_unique<StatusLine>(*statusBar());
    buildMenus();
    buildToolBar();
    connectSession();
    connectCanvas();
    connectPanels();
    connectReview();
    connectFileActions();
    connectEditActions();
    connectViewActions();
    connectPanelActions();
    connectRecordActions();
    restoreSettings();
    showLabel();
}

MainWindow::~MainWindow()
{
    releaseLabel();
}

bool MainWindow::openFile(const QString& fileName)
{
    if (QFileInfo(fileName).isDir()) {
        return openFolder(fileName);
    }
    const bool isOpen = m_session->openFile(fileName);
    if (isOpen) {
        m_panels->labels().setOpenFile(fileName);
    }
    return isOpen;
}

QString MainWindow::openFileQuietly(const QString& fileName)
{
    if (QFileInfo(fileName).isDir()) {
        openFolder(fileName);
        return {};
    }
    return m_session->openFileQuietly(fileName);
}

CanvasView& MainWindow::view()
{
    return m_canvas->view();
}

QGraphicsScene* MainWindow::scene()
{
    return view().scene();
}

// Removes all references to items of the label.
void MainWindow::releaseLabel()
{
    m_panels->properties().show(nullptr, {}, m_unit);
    m_panels->items().setCanvas(nullptr);
    m_panels->sources().show(nullptr, 0);
    m_panels->issues().clear();
    view().setOutlines({});
    view().setCanvas(nullptr);
}

void MainWindow::showLabel()
{
    OpenLabel* label = m_session->label();
    m_record = 0;
    // A message about the previous label.
    statusBar()->clearMessage();
    m_center->setCurrentIndex(label != nullptr ? CanvasIndex : WelcomeIndex);
    if (label != nullptr) {
        view().setCanvas(label->canvas.get());
        m_panels->items().setCanvas(label->canvas.get());
        m_panels->sources().show(label->sources.get(), 0);
        // Except from the list of labels, where the arrow keys open the next label.
        if (!m_panels->labels().isAncestorOf(focusWidget())) {
            view().setFocus();
        }
    }
    m_status->setPage(label != nullptr ? std::optional(label->canvas->page().size) : std::nullopt,
                      m_unit);
    m_status->setZoom(label != nullptr ? std::optional(view().zoom()) : std::nullopt);
    m_status->setRecord(0, recordCount());
    refreshIssues();
    refreshTitle();
    refreshActions();
    if (!m_panels->issues().issues().isEmpty()) {
        m_panels->showIssues();
    }
}

void MainWindow::refreshItems()
{
    OpenLabel* label = m_session->label();
    if (label == nullptr) {
        return;
    }
    m_panels->items().refresh();
    m_status->setPage(label->canvas->page().size, m_unit);
    refreshIssues();
}

void MainWindow::refreshSelection()
{
    OpenLabel* label = m_session->label();
    m_panels->properties().show(label != nullptr ? label->canvas.get() : nullptr,
                                m_panels->items().selectedItems(), m_unit);
    refreshActions();
}

void MainWindow::refreshTitle()
{
    const QString program = tr("LabelPort Workbench");
    const OpenLabel* label = m_session->label();
    setWindowTitle(label != nullptr ? displayName(*label) + u"[*] – "_s + program : program);
    setWindowModified(m_session->hasUnsavedChanges());
}

void MainWindow::refreshActions()
{
    const bool isOpen = m_session->label() != nullptr;
    m_actions->setLabelOpen(isOpen);
    if (isOpen) {
        m_editActions->refresh();
    }
    const OpenLabel* label = m_session->label();
    action(ActionId::OpenAsWritten).setEnabled(isOpen && label->hasOtherReading);
    action(ActionId::OpenAsWritten).setChecked(isOpen && label->isAsWritten);
    action(ActionId::PreviousLabel).setEnabled(m_panels->labels().canStep(-1));
    action(ActionId::NextLabel).setEnabled(m_panels->labels().canStep(1));
    action(ActionId::Undo).setEnabled(m_session->undoStack().canUndo());
    action(ActionId::Redo).setEnabled(m_session->undoStack().canRedo());
    action(ActionId::ZoomSelection)
        .setEnabled(scene() != nullptr && !scene()->selectedItems().isEmpty());
    const bool hasBefore = isOpen && m_record > 0;
    const bool hasAfter = isOpen && m_record + 1 < recordCount();
    action(ActionId::FirstRecord).setEnabled(hasBefore);
    action(ActionId::PreviousRecord).setEnabled(hasBefore);
    action(ActionId::NextRecord).setEnabled(hasAfter);
    action(ActionId::LastRecord).setEnabled(hasAfter);
    const bool hasSource = isOpen && !m_session->label()->sources->ids().isEmpty();
    action(ActionId::EditSource).setEnabled(hasSource);
    action(ActionId::ShowSource)
        .setEnabled(hasSource && !m_panels->items().selectedItems().isEmpty());
    action(ActionId::GoRecord).setEnabled(hasBefore || hasAfter);
}

void MainWindow::showItem(workbench::CanvasItem* item)
{
    const QRectF bounds = item->graphicsItem()->sceneBoundingRect();
    const QRectF seen = view().mapToScene(view().viewport()->rect()).boundingRect();
    if (!seen.contains(bounds)) {
        view().ensureVisible(bounds);
    }
}

void MainWindow::selectItems(const QList<workbench::CanvasItem*>& items)
{
    {
        // One change of the selection, not one for each item.
        const QSignalBlocker silence(scene());
        scene()->clearSelection();
        for (workbench::CanvasItem* item : items) {
            item->graphicsItem()->setSelected(true);
        }
    }
    Q_EMIT scene()->selectionChanged();
}

void MainWindow::selectAll()
{
    selectItems(m_session->label()->canvas->items());
}

void MainWindow::exportByDialog()
{
    const QString result = exportLabel(*m_session->label(), m_record, m_session->prompts(), this);
    statusBar()->showMessage(result, 10'000);
}

void MainWindow::printByDialog()
{
    const QString result = printLabel(*m_session->label(), m_record, m_session->prompts(), this);
    statusBar()->showMessage(result, 10'000);
}

void MainWindow::showContextMenu(const QPoint& at)
{
    if (m_session->label() != nullptr) {
        QMenu menu(this);
        m_editActions->fillMenu(menu);
        menu.exec(at);
    }
}

void MainWindow::showShortcuts()
{
    ShortcutsDialog(m_actions->shortcuts(), this).exec();
}

void MainWindow::showAbout()
{
    QMessageBox box(this);
    box.setWindowTitle(tr("About"));
    box.setIconPixmap(applicationIcon().pixmap(64));
    box.setText(tr("LabelPort Workbench %1").arg(QCoreApplication::applicationVersion()));
    box.setInformativeText(tr("Opens legacy label templates; corrects, saves, exports and "
                              "prints them."));
    box.exec();
}

} // namespace window

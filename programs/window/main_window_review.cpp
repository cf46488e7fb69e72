// The review of labels in the main window: the labels of a folder, the issues of the open one.

#include "window/canvas/canvas_view.h"
#include "window/main_window.h"
#include "window/review/comparison_panel.h"
#include "window/review/correction_commands.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"
#include "window/review/original_preview.h"
#include "workbench/canvas/canvas.h"
#include "workbench/rendering/page_image.h"

#include <QGraphicsItem>
#include <QStatusBar>

#include <algorithm>

namespace window {

namespace {

// Pixels of the label's longer side, about twice those of the panel.
constexpr double ComparisonSide = 1000.0;

} // namespace

void MainWindow::connectReview()
{
    LabelListPanel* labels = &m_panels->labels();
    connect(&action(ActionId::OpenFolder), &QAction::triggered, this,
            &MainWindow::openFolderByDialog);
    connect(&action(ActionId::PreviousLabel), &QAction::triggered, labels,
            [labels] { labels->step(-1); });
    connect(&action(ActionId::NextLabel), &QAction::triggered, labels,
            [labels] { labels->step(1); });
    connect(labels, &LabelListPanel::fileRequested, this, &MainWindow::browse);
    connect(labels, &LabelListPanel::stepsChanged, this, &MainWindow::refreshActions);
    connect(m_session.get(), &LabelSession::saved, labels, &LabelListPanel::noteSaved);
    connect(&m_panels->issues(), &IssuesPanel::issueRequested, this, &MainWindow::showIssue);
    connect(&m_panels->issues(), &IssuesPanel::correctionRequested, this, &MainWindow::correct);
    connect(&action(ActionId::GoOriginal), &QAction::triggered, this, &MainWindow::goToComparison);
    connect(m_session.get(), &LabelSession::labelReplaced, this, &MainWindow::refreshComparison);
    connect(&m_session->undoStack(), &QUndoStack::indexChanged, this,
            &MainWindow::refreshComparison);
}

bool MainWindow::openFolder(const QString& folder)
{
    if (!m_session->close()) {
        return false;
    }
    m_panels->showLabels();
    const bool isComplete = m_panels->labels().openFolder(folder);
    if (!isComplete) {
        statusBar()->showMessage(
            tr("“%1” contains too many files; the list of labels is not complete.").arg(folder));
    } else if (m_panels->labels().review().model().entries().isEmpty()) {
        statusBar()->showMessage(tr("There are no labels in “%1”.").arg(folder), 10'000);
    }
    return true;
}

void MainWindow::openFolderByDialog()
{
    const QString folder = m_session->prompts().askFolder();
    if (!folder.isEmpty()) {
        openFolder(folder);
    }
}

// Looking at a label neither asks to save it nor shows a message box.
void MainWindow::browse(const QString& fileName)
{
    const std::optional<QString> error = m_session->browse(fileName);
    if (!error) {
        const OpenLabel& label = *m_session->label();
        m_panels->labels().setOpenFile(label.fileName.isEmpty() ? label.suggestedName
                                                                : label.fileName);
    } else if (!error->isEmpty()) {
        m_panels->issues().clear(tr("Cannot open “%1”: %2").arg(fileName, *error));
        m_panels->showIssues();
    }
}

void MainWindow::refreshIssues()
{
    if (m_session->label() != nullptr) {
        m_panels->issues().setIssues(currentIssues(*m_session->label()));
    } else {
        m_panels->issues().clear();
    }
}

void MainWindow::showIssue(const Issue& issue)
{
    QList<workbench::CanvasItem*> items;
    QRectF bounds;
    for (const int index : issue.items) {
        items.append(m_session->label()->canvas->items().at(index));
        bounds |= items.constLast()->graphicsItem()->sceneBoundingRect();
    }
    for (const QRectF& box : issue.missing) {
        bounds |= box;
    }
    selectItems(items);
    view().setOutlines(issue.missing);
    const QRectF seen = view().mapToScene(view().viewport()->rect()).boundingRect();
    if (!seen.contains(bounds)) {
        view().ensureVisible(bounds);
    }
}

void MainWindow::correct(Correction correction, const Issue& issue)
{
    OpenLabel& label = *m_session->label();
    // A label that lost its database may have no data source left.
    if (correction == Correction::Bind && label.sources->ids().isEmpty()) {
        action(ActionId::ConnectCsv).trigger();
        return;
    }
    if (applyCorrection(correction, issue, label, m_session->undoStack(), this)) {
        // An item that was bound shows its record.
        showRecordNumber(m_record);
    }
}

void MainWindow::goToComparison()
{
    m_panels->goToComparison();
    refreshComparison();
}

// Reads and paints only while the panel is visible.
void MainWindow::refreshComparison()
{
    const OpenLabel* label = m_session->label();
    ComparisonPanel& panel = m_panels->comparison();
    if (label == nullptr) {
        panel.setPictures({}, {});
    } else if (panel.isVisible()) {
        const QImage original = previewOf(originalOf(*label));
        const QSizeF page = label->canvas->page().size;
        const double dpi = ComparisonSide * 72.0 / std::max({page.width(), page.height(), 1.0});
        panel.setPictures(original, original.isNull()
                                        ? QImage()
                                        : workbench::renderPage(*label->canvas, dpi).image);
    }
}

} // namespace window

#pragma once

#include "window/actions/palettes.h"
#include "window/label/label_session.h"
#include "window/properties/length_unit.h"
#include "window/review/corrections.h"
#include "window/status_line.h"
#include "window/window_panels.h"

#include <QMainWindow>

#include <memory>

class QStackedWidget;

namespace window {

class CanvasView;
class EditActions;
class RuledCanvas;
struct Issue;

/// The main window: one label, its panels, its menus.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens a saved label, imports a legacy one, or lists the labels of a folder. Shows a message
    /// box on failure.
    bool openFile(const QString& fileName);
    /// As openFile(), without a message box. Returns the reason if the file cannot be opened.
    [[nodiscard]] QString openFileQuietly(const QString& fileName);

    [[nodiscard]] LabelSession& session() { return *m_session; }
    [[nodiscard]] CanvasView& view();
    [[nodiscard]] WindowPanels& panels() { return *m_panels; }
    [[nodiscard]] QAction& action(ActionId id) { return m_actions->at(id); }
    /// The record that the label shows, counted from 0.
    [[nodiscard]] qint64 record() const { return m_record; }
    [[nodiscard]] LengthUnit unit() const { return m_unit; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildCenter();
    void buildMenus();
    void buildToolBar();
    void connectSession();
    void connectCanvas();
    void connectPanels();
    void connectReview();
    void connectFileActions();
    void connectEditActions();
    void connectViewActions();
    void connectPanelActions();
    void connectRecordActions();
    void restoreSettings();
    void storeSettings() const;

    void releaseLabel();
    void showLabel();
    void showRecordNumber(qint64 record);
    void refreshItems();
    void refreshSelection();
    void refreshIssues();
    void refreshTitle();
    void refreshActions();
    void fillRecentMenu();
    void pushSourceChange(std::unique_ptr<QUndoCommand> change);
    void setUnit(LengthUnit unit);
    void setColors(ColorScheme scheme);
    void showItem(workbench::CanvasItem* item);
    bool openFolder(const QString& folder);
    void openFolderByDialog();
    void browse(const QString& fileName);
    void showIssue(const Issue& issue);
    void correct(Correction correction, const Issue& issue);
    void goToComparison();
    void refreshComparison();
    void selectItems(const QList<workbench::CanvasItem*>& items);
    void selectAll();
    void exportByDialog();
    void printByDialog();
    void showContextMenu(const QPoint& at);
    void showShortcuts();
    void showAbout();

    [[nodiscard]] qint64 recordCount() const;
    [[nodiscard]] QGraphicsScene* scene();

    Actions* m_actions;
    std::unique_ptr<LabelSession> m_session;
    std::unique_ptr<WindowPanels> m_panels;
    std::unique_ptr<StatusLine> m_status;
    EditActions* m_editActions = nullptr;
    QStackedWidget* m_center = nullptr;
    RuledCanvas* m_canvas = nullptr;
    QMenu* m_recentMenu = nullptr;
    qint64 m_record = 0;
    LengthUnit m_unit = LengthUnit::Millimeter;
};

} // namespace window

// The construction of the main window: its parts and its menus; its events.

#include "window/canvas/canvas_view.h"
#include "window/help/welcome_page.h"
#include "window/main_window.h"
#include "window/rulers/ruled_canvas.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

// The local files of a drag; web addresses are ignored.
QStringList localFiles(const QMimeData& data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

} // namespace

void MainWindow::buildCenter()
{
    m_canvas = new RuledCanvas(this);
    m_center = new QStackedWidget(this);
    m_center->addWidget(new WelcomePage(*m_actions, m_center));
    m_center->addWidget(m_canvas);
    setCentralWidget(m_center);
}

void MainWindow::buildMenus()
{
    for (const MenuId id : {MenuId::File, MenuId::Edit, MenuId::Arrange, MenuId::View,
                            MenuId::Panels, MenuId::Record, MenuId::Help}) {
        QMenu* menu = menuBar()->addMenu(menuTitle(id));
        menu->addActions(m_actions->ofMenu(id));
        if (id == MenuId::File) {
            m_recentMenu = new QMenu(tr("Open &Recent"), this);
            menu->insertMenu(&action(ActionId::PreviousLabel), m_recentMenu);
            menu->insertSeparator(&action(ActionId::Save));
            menu->insertSeparator(&action(ActionId::Export));
            menu->insertSeparator(&action(ActionId::Close));
        } else if (id == MenuId::Edit) {
            menu->insertSeparator(&action(ActionId::Cut));
            menu->insertSeparator(&action(ActionId::EditText));
            menu->insertSeparator(&action(ActionId::SelectAll));
        } else if (id == MenuId::Arrange) {
            menu->insertSeparator(&action(ActionId::AlignLeft));
            menu->insertSeparator(&action(ActionId::DistributeHorizontally));
        } else if (id == MenuId::Record) {
            menu->insertSeparator(&action(ActionId::ConnectCsv));
            menu->insertSeparator(&action(ActionId::NewCounter));
        } else if (id == MenuId::View) {
            menu->insertSeparator(&action(ActionId::Rulers));
            menu->insertSeparator(&action(ActionId::Millimeters));
            menu->addSeparator();
            menu->addMenu(menuTitle(MenuId::Colors))->addActions(m_actions->ofMenu(MenuId::Colors));
        }
    }
    fillRecentMenu();
}

void MainWindow::buildToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(u"tools"_s);
    bar->setAccessibleName(tr("Tools"));
    bar->setIconSize({20, 20});
    const QList<QList<ActionId>> groups{
        {ActionId::Open, ActionId::Save},
        {ActionId::Export, ActionId::Print},
        {ActionId::Undo, ActionId::Redo},
        {ActionId::ZoomOut, ActionId::ZoomIn, ActionId::ZoomFit},
        {ActionId::FirstRecord, ActionId::PreviousRecord, ActionId::NextRecord,
         ActionId::LastRecord},
    };
    for (const QList<ActionId>& group : groups) {
        if (!bar->actions().isEmpty()) {
            bar->addSeparator();
        }
        for (const ActionId id : group) {
            bar->addAction(&action(id));
        }
    }
    m_actions->drawIcons(palette());
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = RecentFiles().files();
    m_recentMenu->setEnabled(!files.isEmpty());
    int number = 0;
    for (const QString& fileName : files) {
        // An ampersand in a name must not become a mnemonic.
        QString shown = QFileInfo(fileName).fileName();
        shown.replace(QLatin1Char('&'), u"&&"_s);
        QAction* entry = m_recentMenu->addAction(u"&%1  "_s.arg(++number) + shown, this,
                                                 [this, fileName] { openFile(fileName); });
        entry->setToolTip(fileName);
        entry->setStatusTip(fileName);
    }
    m_recentMenu->addSeparator();
    m_recentMenu->addAction(tr("&Clear List"), this, [this] {
        RecentFiles().clear();
        fillRecentMenu();
    });
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_session->confirmDiscard()) {
        storeSettings();
        event->accept();
    } else {
        event->ignore();
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // Deferred: a question must not block the program that the file is dragged from.
    QMetaObject::invokeMethod(
        this,
        [this, files] {
            const bool isOpened = openFile(files.constFirst());
            if (isOpened && files.size() > 1) {
                statusBar()->showMessage(
                    tr("A window holds one label: only the first file was opened."), 10'000);
            }
        },
        Qt::QueuedConnection);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_actions->drawIcons(palette());
    }
}

} // namespace window

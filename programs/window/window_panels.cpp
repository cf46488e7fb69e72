#include "window/window_panels.h"

#include "window/items/item_panel.h"
#include "window/properties/property_panel.h"
#include "window/properties/tables.h"
#include "window/review/comparison_panel.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"
#include "window/sources/source_panel.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QListView>
#include <QMainWindow>
#include <QSlider>
#include <QSpinBox>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct WindowPanelsTr
{
    Q_DECLARE_TR_FUNCTIONS(window::WindowPanels)
};

// The window's state is saved under the object name.
QDockWidget* makeDock(QMainWindow& window, Qt::DockWidgetArea area, const QString& title,
                      const QString& objectName, QWidget& panel)
{
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(objectName);
    dock->setAccessibleName(title);
    dock->setWidget(&panel);
    window.addDockWidget(area, dock);
    return dock;
}

void bringUp(QDockWidget& dock)
{
    dock.show();
    dock.raise();
}

} // namespace

WindowPanels::WindowPanels(QMainWindow& window, const Actions& actions)
    : m_window(window)
    , m_items(new ItemPanel)
    , m_properties(new PropertyPanel)
    , m_sources(new SourcePanel(actions))
    , m_issues(new IssuesPanel)
    , m_labels(new LabelListPanel)
    , m_comparison(new ComparisonPanel)
    , m_itemDock(makeDock(window, Qt::RightDockWidgetArea, WindowPanelsTr::tr("Items"), u"items"_s,
                          *m_items))
    , m_propertyDock(makeDock(window, Qt::RightDockWidgetArea, WindowPanelsTr::tr("Properties"),
                              u"properties"_s, *m_properties))
    , m_sourceDock(makeDock(window, Qt::BottomDockWidgetArea, WindowPanelsTr::tr("Data Sources"),
                            u"sources"_s, *m_sources))
    , m_issueDock(makeDock(window, Qt::BottomDockWidgetArea, WindowPanelsTr::tr("Issues"),
                           u"issues"_s, *m_issues))
    , m_labelDock(makeDock(window, Qt::LeftDockWidgetArea, WindowPanelsTr::tr("Labels"),
                           u"labels"_s, *m_labels))
    , m_comparisonDock(makeDock(window, Qt::RightDockWidgetArea, WindowPanelsTr::tr("Original"),
                                u"original"_s, *m_comparison))
{
    // For users who review many labels.
    m_labelDock->hide();
    m_comparisonDock->hide();
    // The right dock area extends to the status bar: lists of items are long.
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    // Issues need the full width: text, objects, advice.
    window.tabifyDockWidget(m_sourceDock, m_issueDock);
    m_sourceDock->raise();
    window.resizeDocks({m_itemDock, m_propertyDock}, {480, 480}, Qt::Horizontal);
    window.resizeDocks({m_sourceDock, m_issueDock}, {190, 190}, Qt::Vertical);
}

void WindowPanels::goToItems()
{
    bringUp(*m_itemDock);
    focusTable(m_items->table());
}

void WindowPanels::goToProperties()
{
    bringUp(*m_propertyDock);
    focusTable(m_properties->table());
}

void WindowPanels::goToSources()
{
    bringUp(*m_sourceDock);
    focusTable(m_sources->table());
}

void WindowPanels::goToRecord()
{
    bringUp(*m_sourceDock);
    m_sources->recordBox().setFocus(Qt::ShortcutFocusReason);
    m_sources->recordBox().selectAll();
}

void WindowPanels::goToIssues()
{
    showIssues();
    m_issues->focusIssues();
}

void WindowPanels::goToComparison()
{
    if (m_comparisonDock->isHidden()) {
        bringUp(*m_comparisonDock);
        // Details of the label must be visible: half of the height, as long as the user keeps it.
        m_window.resizeDocks({m_itemDock, m_propertyDock, m_comparisonDock}, {1, 1, 2},
                             Qt::Vertical);
    }
    bringUp(*m_comparisonDock);
    m_comparison->slider().setFocus(Qt::ShortcutFocusReason);
}

void WindowPanels::goToLabels()
{
    showLabels();
    m_labels->list().setFocus(Qt::ShortcutFocusReason);
}

void WindowPanels::showLabels()
{
    if (m_labelDock->isHidden()) {
        // The room for the list is the canvas's: the columns of the items need theirs.
        const int width = m_itemDock->width();
        bringUp(*m_labelDock);
        m_window.resizeDocks({m_labelDock, m_itemDock}, {m_labelDock->sizeHint().width(), width},
                             Qt::Horizontal);
    }
    bringUp(*m_labelDock);
}

void WindowPanels::showIssues()
{
    bringUp(*m_issueDock);
}

} // namespace window

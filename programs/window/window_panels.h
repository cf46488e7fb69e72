#pragma once

#include "window/actions/actions.h"

class QDockWidget;
class QMainWindow;

namespace window {

class ComparisonPanel;
class IssuesPanel;
class ItemPanel;
class LabelListPanel;
class PropertyPanel;
class SourcePanel;

/// The panels around the canvas, each in a dock that can be moved and hidden.
class WindowPanels
{
public:
    /// The window owns the docks.
    WindowPanels(QMainWindow& window, const Actions& actions);

    [[nodiscard]] ItemPanel& items() const { return *m_items; }
    [[nodiscard]] PropertyPanel& properties() const { return *m_properties; }
    [[nodiscard]] SourcePanel& sources() const { return *m_sources; }
    [[nodiscard]] IssuesPanel& issues() const { return *m_issues; }
    [[nodiscard]] LabelListPanel& labels() const { return *m_labels; }

    void goToItems();
    void goToProperties();
    void goToSources();
    /// Moves keyboard focus to the record number.
    void goToRecord();
    void goToIssues();
    /// Shows the issues without moving keyboard focus.
    void showIssues();
    [[nodiscard]] ComparisonPanel& comparison() const { return *m_comparison; }
    void goToComparison();
    void goToLabels();
    /// Shows the labels of the folder without moving keyboard focus.
    void showLabels();

private:
    QMainWindow& m_window;
    ItemPanel* m_items;
    PropertyPanel* m_properties;
    SourcePanel* m_sources;
    IssuesPanel* m_issues;
    LabelListPanel* m_labels;
    ComparisonPanel* m_comparison;
    QDockWidget* m_itemDock;
    QDockWidget* m_propertyDock;
    QDockWidget* m_sourceDock;
    QDockWidget* m_issueDock;
    QDockWidget* m_labelDock;
    QDockWidget* m_comparisonDock;
};

} // namespace window

#pragma once

#include "window/label/open_label.h"

#include <QList>
#include <QUndoCommand>

#include <functional>

namespace window {

/// Binds an item to a data source, or with an id of -1 to none.
struct Binding
{
    workbench::CanvasItem* item = nullptr;
    workbench::DatasourceValues source;
};

/// Changes data sources of a label and the items that show them.
class ChangeSources final : public QUndoCommand
{
public:
    /// Called after each change, to show the record again.
    using Changed = std::function<void()>;

    /// @param label must outlive the command, as its items must
    ChangeSources(const QString& text, OpenLabel& label,
                  QList<workbench::datasources::SourceValues> sources, QList<Binding> bindings,
                  Changed changed);

    void undo() override;
    void redo() override;

private:
    void apply(const QList<workbench::datasources::SourceValues>& sources,
               const QList<Binding>& bindings);

    OpenLabel& m_label;
    Changed m_changed;
    QList<workbench::datasources::SourceValues> m_sourcesBefore;
    QList<workbench::datasources::SourceValues> m_sourcesAfter;
    QList<Binding> m_bindingsBefore;
    QList<Binding> m_bindingsAfter;
};

} // namespace window

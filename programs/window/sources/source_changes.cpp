#include "window/sources/source_changes.h"

#include <utility>

namespace window {

namespace {

void bind(const Binding& binding)
{
    workbench::ItemValues values = binding.item->values();
    values.datasource = binding.source;
    binding.item->setValues(values);
    binding.item->showContent(std::nullopt); // until the record is shown again
}

} // namespace

ChangeSources::ChangeSources(const QString& text, OpenLabel& label,
                             QList<workbench::datasources::SourceValues> sources,
                             QList<Binding> bindings, Changed changed)
    : QUndoCommand(text)
    , m_label(label)
    , m_changed(std::move(changed))
    , m_sourcesBefore(label.sources->values())
    , m_sourcesAfter(std::move(sources))
    , m_bindingsAfter(std::move(bindings))
{
    for (const Binding& binding : std::as_const(m_bindingsAfter)) {
        m_bindingsBefore.append({binding.item, binding.item->datasource()});
    }
}

void ChangeSources::apply(const QList<workbench::datasources::SourceValues>& sources,
                          const QList<Binding>& bindings)
{
    if (!m_label.sources->setValues(sources)) {
        return; // not possible: the values come from this controller
    }
    for (const Binding& binding : bindings) {
        bind(binding);
    }
    m_changed();
}

void ChangeSources::undo()
{
    apply(m_sourcesBefore, m_bindingsBefore);
}

void ChangeSources::redo()
{
    apply(m_sourcesAfter, m_bindingsAfter);
}

} // namespace window

#include "workbench/import/import_observer.h"

#include "importer/legacy_template_importer.h"
#include "workbench/import/failure_text.h"

#include <QWidget>

namespace workbench {

ImportObserver::ImportObserver(const LegacyTemplateImporter& importer)
{
    connect(&importer, &LegacyTemplateImporter::popupShowSignal, this,
            &ImportObserver::noteMessage);
}

void ImportObserver::clear()
{
    m_log.clear();
    m_messages.clear();
}

QList<ImportIssue> ImportObserver::issues(const Canvas& canvas) const
{
    return collectIssues(canvas, m_log.records(), m_messages);
}

QString ImportObserver::failure() const
{
    return importFailureReason(m_log.records(), m_messages);
}

void ImportObserver::noteMessage(const QWidget* popup)
{
    // The workbench's message box returns its text as a description.
    if (popup != nullptr && !popup->accessibleDescription().isEmpty()) {
        m_messages.append(popup->accessibleDescription());
    }
}

} // namespace workbench

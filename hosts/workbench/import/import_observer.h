#pragma once

#include "workbench/import/import_log.h"
#include "workbench/import/issue_text.h"

#include <QObject>
#include <QStringList>

class LegacyTemplateImporter;
class QWidget;

namespace workbench {

class Canvas;

/// Observes the imports of one importer: collects the log records and the texts of the
/// message boxes, which are never shown.
class ImportObserver final : public QObject
{
    Q_OBJECT

public:
    explicit ImportObserver(const LegacyTemplateImporter& importer);

    /// Clears all results before the next import.
    void clear();

    [[nodiscard]] const QList<LogRecord>& log() const { return m_log.records(); }
    [[nodiscard]] const QStringList& cutSources() const { return m_log.cutSources(); }
    [[nodiscard]] const QStringList& messages() const { return m_messages; }

    /// The issues of a successful import.
    [[nodiscard]] QList<ImportIssue> issues(const Canvas& canvas) const;
    /// User-visible reason for a failed import.
    [[nodiscard]] QString failure() const;

private:
    void noteMessage(const QWidget* popup);

    ImportLog m_log;
    QStringList m_messages;
};

} // namespace workbench

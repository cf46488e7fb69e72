#pragma once

#include "workbench/import/import_log.h"
#include "workbench/import/issue_words.h"

#include <QObject>
#include <QStringList>

class LegacyTemplateImporter;
class QWidget;

namespace workbench {

class Canvas;

/// Follows the imports of one importer: collects what is logged and the texts of the
/// message boxes that it announces, which are never shown.
class ImportObserver final : public QObject
{
    Q_OBJECT

public:
    explicit ImportObserver(const LegacyTemplateImporter& importer);

    /// Forgets everything before the next import.
    void clear();

    [[nodiscard]] const QList<LogRecord>& log() const { return m_log.records(); }
    [[nodiscard]] const QStringList& cutSources() const { return m_log.cutSources(); }
    [[nodiscard]] const QStringList& messages() const { return m_messages; }

    /// The issues of an import that returned true.
    [[nodiscard]] QList<ImportIssue> issues(const Canvas& canvas) const;
    /// Why an import returned false, in words for a person.
    [[nodiscard]] QString failure() const;

private:
    void noteMessage(const QWidget* popup);

    ImportLog m_log;
    QStringList m_messages;
};

} // namespace workbench

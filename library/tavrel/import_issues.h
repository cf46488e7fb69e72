#pragma once

#include <QString>

namespace tavrel {

/// What could not be carried over from one file, collected for the one message box.
class ImportIssues
{
public:
    bool symbolErrors = false;
    bool barcodeErrors = false;
    bool databaseLinked = false;

    /// Adds a text item's note; an empty one is none.
    void addNote(const QString& note);
    /// The message, one issue to a line in a fixed order; empty when all went well.
    [[nodiscard]] QString text() const;

private:
    QString m_notes;
};

} // namespace tavrel

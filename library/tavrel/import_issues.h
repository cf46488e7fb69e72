#pragma once

#include <QString>

namespace tavrel {

/// What could not be imported from a file, collected for its message box.
class ImportIssues
{
public:
    bool symbolErrors = false;
    bool barcodeErrors = false;
    bool databaseLinked = false;

    /// Adds the note on a text item; an empty one is ignored.
    void addNote(const QString& note);
    /// The message, with the issues in a fixed order, each from a new line; empty without issues.
    [[nodiscard]] QString text() const;

private:
    QString m_notes;
};

} // namespace tavrel

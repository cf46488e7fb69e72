#include "tavrel/import_issues.h"

#include <QObject>

namespace tavrel {
namespace {

void appendPart(QString& text, const QString& part)
{
    if (!text.isEmpty()) {
        text += QLatin1Char('\n');
    }
    text += part;
}

} // namespace

void ImportIssues::addNote(const QString& note)
{
    if (!note.isEmpty()) {
        appendPart(m_notes, note);
    }
}

QString ImportIssues::text() const
{
    QString text;
    if (symbolErrors) {
        appendPart(text, QObject::tr("Errors reading symbol items.\nPlease update legacy Tavrel to "
                                     "its latest version and re-save file.",
                                     "Content of error message."));
    }
    if (barcodeErrors) {
        appendPart(text, QObject::tr("Unsupported barcode symbols.", "Content of error message."));
    }
    if (!m_notes.isEmpty()) {
        appendPart(text, m_notes);
    }
    if (databaseLinked) {
        appendPart(text, QObject::tr("Datasource not connected.", "Content of error message."));
    }
    return text;
}

} // namespace tavrel

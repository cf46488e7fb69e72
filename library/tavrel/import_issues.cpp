#include "tavrel/import_issues.h"

#include "messages/reader_messages.h"

#include <QObject>

namespace tavrel {
namespace {

QString translated(const messages::Translated& message)
{
    return QObject::tr(message.text, message.comment);
}

void appendPart(QString& text, const QString& part)
{
    if (!text.isEmpty()) {
        text += u'\n';
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
        appendPart(text, translated(messages::SymbolsUnreadable));
    }
    if (barcodeErrors) {
        appendPart(text, translated(messages::BarcodesUnsupported));
    }
    if (!m_notes.isEmpty()) {
        appendPart(text, m_notes);
    }
    if (databaseLinked) {
        appendPart(text, translated(messages::DatabaseNotConnected));
    }
    return text;
}

} // namespace tavrel

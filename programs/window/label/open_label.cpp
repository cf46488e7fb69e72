#include "window/label/open_label.h"

#include "importer/reader_choice.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace window {

QString labelSuffix()
{
    return u".label"_s;
}

QString legacyPatterns()
{
    QStringList patterns;
    for (const Reader& reader : Readers) {
        for (const QLatin1String suffix : reader.suffixes) {
            if (!suffix.isEmpty()) {
                patterns.append(u"*."_s + suffix);
            }
        }
    }
    return patterns.join(u' ');
}

bool isSavedLabel(const QString& fileName)
{
    return fileName.endsWith(labelSuffix(), Qt::CaseInsensitive);
}

QString savedNameFor(const QString& importedFile)
{
    const QFileInfo info(importedFile);
    return info.absoluteDir().filePath(info.completeBaseName() + labelSuffix());
}

QString displayName(const OpenLabel& label)
{
    return QFileInfo(label.fileName.isEmpty() ? label.suggestedName : label.fileName).fileName();
}

void showRecord(OpenLabel& label, qint64 record)
{
    const workbench::datasources::DatasourceController& sources = *label.sources;
    label.canvas->showRecord(record, [&sources](int id, qint64 number, const QStringList& fields) {
        return sources.recordText(id, number, fields);
    });
}

} // namespace window

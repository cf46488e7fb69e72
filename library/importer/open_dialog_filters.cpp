#include "importer/open_dialog_filters.h"

#include <QObject>

// Translations are from the host's catalog, in the context of QObject. The
// separators between the entries are part of the patterns.

OpenDialogFilters openDialogFilters()
{
    const QString allFiles = QObject::tr("All Legacy Files %1", "Filter for Open File dialog")
                                 .arg(QStringLiteral("(*.cnv *.roc *.qmtx *.odt *.odg)"));
    const QString openOffice = QObject::tr("OpenOffice File %1", "Filter for Open File dialog")
                                   .arg(QStringLiteral("(*.odt *.odg);;"));
    const QString orvanta = QObject::tr("Orvanta File %1", "Filter for Open File dialog")
                                .arg(QStringLiteral("(*.qmtx);;"));
    const QString tavrel = QObject::tr("Legacy Tavrel File %1", "Filter for Open File dialog")
                               .arg(QStringLiteral("(*.cnv *.roc);;"));
    return {tavrel + orvanta + openOffice + allFiles, allFiles};
}

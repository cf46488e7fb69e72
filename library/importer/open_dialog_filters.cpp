#include "importer/open_dialog_filters.h"

#include <QObject>

// Translations are those of the host's catalogue, in the context of QObject. The
// separators between the entries travel in the patterns.

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

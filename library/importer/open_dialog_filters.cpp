#include "importer/open_dialog_filters.h"

#include <QObject>

using namespace Qt::StringLiterals;

// Translations are from the host's catalog, in the context of QObject. The
// separators between the entries are part of the patterns.

OpenDialogFilters openDialogFilters()
{
    const QString allFiles = QObject::tr("All Legacy Files %1", "Filter for Open File dialog")
                                 .arg(u"(*.cnv *.roc *.qmtx *.odt *.odg)"_s);
    const QString openOffice =
        QObject::tr("OpenOffice File %1", "Filter for Open File dialog").arg(u"(*.odt *.odg);;"_s);
    const QString orvanta =
        QObject::tr("Orvanta File %1", "Filter for Open File dialog").arg(u"(*.qmtx);;"_s);
    const QString tavrel = QObject::tr("Legacy Tavrel File %1", "Filter for Open File dialog")
                               .arg(u"(*.cnv *.roc);;"_s);
    return {tavrel + orvanta + openOffice + allFiles, allFiles};
}

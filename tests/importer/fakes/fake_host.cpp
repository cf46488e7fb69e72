#include "fake_host.h"

#include "host/services/file_controller_tools.h"

#include <QSettings>

using namespace Qt::Literals::StringLiterals;

bool FakeFileController::checkSaveChanges(TalCanvasModel* canvasModel,
                                          const QString& currentFileName, bool allowDiscard)
{
    askedAbout = canvasModel;
    journal().events.append(
        u"asked about %1%2"_s.arg(currentFileName, allowDiscard ? u", may discard"_s : QString()));
    return mayGoOn;
}

void FakeFileController::saveImportedLabelAs(const QString& folder, const QString& baseName,
                                             const QString& labelType)
{
    journal().events.append(u"save '%1' in %2 as type '%3'"_s.arg(baseName, folder, labelType));
}

void FakeFileController::emitLabelTypeLoadedSignal(QString labelType)
{
    journal().folderAtLabelType = QSettings().value(u"dir/import"_s);
    journal().events.append(u"label type '%1'"_s.arg(labelType));
}

QString& defaultImportFolder()
{
    static QString folder;
    return folder;
}

QString FileControllerTools::getDefaultImportFolder()
{
    return defaultImportFolder();
}

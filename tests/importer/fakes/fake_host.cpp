#include "fake_host.h"

#include "host/services/file_controller_tools.h"

#include <QSettings>

bool FakeFileController::checkSaveChanges(TalCanvasModel* canvasModel,
                                          const QString& currentFileName, bool allowDiscard)
{
    askedAbout = canvasModel;
    journal().events.append(
        QStringLiteral("asked about %1%2")
            .arg(currentFileName, allowDiscard ? QStringLiteral(", may discard") : QString()));
    return mayGoOn;
}

void FakeFileController::saveImportedLabelAs(const QString& folder, const QString& baseName,
                                             const QString& labelType)
{
    journal().events.append(
        QStringLiteral("save '%1' in %2 as type '%3'").arg(baseName, folder, labelType));
}

void FakeFileController::emitLabelTypeLoadedSignal(QString labelType)
{
    journal().folderAtLabelType = QSettings().value(QStringLiteral("dir/import"));
    journal().events.append(QStringLiteral("label type '%1'").arg(labelType));
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

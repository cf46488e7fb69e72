#include "journal/journal.h"

#include <QFileInfo>
#include <QSettings>

#include <stdexcept>
#include <utility>

using namespace Qt::Literals::StringLiterals;

Journal& journal()
{
    static Journal instance;
    return instance;
}

void Journal::readerMade(const char* name, TalCanvasModel* canvasModel,
                         DatasourceController* datasourceController)
{
    if (nextReaderThrows) {
        nextReaderThrows = false;
        throw std::runtime_error("no reader today");
    }
    events.append(u"%1 made"_s.arg(QLatin1String(name)));
    lastCanvasModel = canvasModel;
    lastDatasourceController = datasourceController;
}

bool Journal::readerCalled(const char* name, const QString& fileName)
{
    folderAtReading = QSettings().value(u"dir/import"_s);
    events.append(u"%1 reads %2"_s.arg(QLatin1String(name), QFileInfo(fileName).fileName()));
    if (const auto nested = std::exchange(duringImport, {})) {
        nested();
    }
    return readersSucceed;
}

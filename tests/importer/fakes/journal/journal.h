#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>

class DatasourceController;
class TalCanvasModel;

/// What happened to the fakes of a test, in order, and how the fakes are to behave.
struct Journal
{
    QStringList events;
    bool readersSucceed = true;
    /// The next reader that is made throws instead.
    bool nextReaderThrows = false;
    /// Runs once, within the next import.
    std::function<void()> duringImport;
    TalCanvasModel* lastCanvasModel = nullptr;
    DatasourceController* lastDatasourceController = nullptr;
    /// The remembered folder as it was when the label type was announced.
    QVariant folderAtLabelType;
    /// The remembered folder as it was when a reader was given a file.
    QVariant folderAtReading;

    /// What a fake reader does when it is made.
    void readerMade(const char* name, TalCanvasModel* canvasModel,
                    DatasourceController* datasourceController);
    /// What a fake reader does when it is given a file.
    bool readerCalled(const char* name, const QString& fileName);
};

/// The one of the running test.
Journal& journal();

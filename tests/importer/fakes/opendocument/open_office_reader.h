#pragma once

#include "journal/journal.h"

using namespace Qt::Literals::StringLiterals;

/// Replaces the reader of the same name and interface.
class OpenOfficeReader
{
public:
    OpenOfficeReader(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    {
        journal().readerMade("opendocument", canvasModel, datasourceController);
    }
    ~OpenOfficeReader() { journal().events.append(u"opendocument destroyed"_s); }
    bool importLabelFromFile(const QString& fileName)
    {
        return journal().readerCalled("opendocument", fileName);
    }
};

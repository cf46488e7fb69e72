#pragma once

#include "journal/journal.h"

/// Replaces the reader of the same name and interface.
class LegacyOrvanta
{
public:
    LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    {
        journal().readerMade("orvanta", canvasModel, datasourceController);
    }
    ~LegacyOrvanta() { journal().events.append(QStringLiteral("orvanta destroyed")); }
    bool importLabelFromFile(const QString& fileName)
    {
        return journal().readerCalled("orvanta", fileName);
    }
};

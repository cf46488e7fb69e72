#pragma once

#include "journal/journal.h"

using namespace Qt::Literals::StringLiterals;

/// Replaces the reader of the same name and interface.
class LegacyOrvanta
{
public:
    LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    {
        journal().readerMade("orvanta", canvasModel, datasourceController);
    }
    ~LegacyOrvanta() { journal().events.append(u"orvanta destroyed"_s); }
    bool importLabelFromFile(const QString& fileName)
    {
        return journal().readerCalled("orvanta", fileName);
    }
};

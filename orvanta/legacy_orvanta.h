#pragma once

#include <QString>

class DatasourceController;
class TalCanvasModel;

class LegacyOrvanta
{
public:
    LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController);

    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

private:
    TalCanvasModel* m_canvasModel;
    DatasourceController* m_datasourceController;
};

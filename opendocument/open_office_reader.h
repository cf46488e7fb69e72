#pragma once

#include <QString>

class DatasourceController;
class TalCanvasModel;

class OpenOfficeReader
{
public:
    OpenOfficeReader(TalCanvasModel* canvasModel, DatasourceController* datasourceController);

    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

private:
    TalCanvasModel* m_canvasModel;
    DatasourceController* m_datasourceController;
};

#include "tavrel/legacy_tavrel.h"

#include <Logger.h>

LegacyTavrel::LegacyTavrel(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    : m_canvasModel(canvasModel)
    , m_datasourceController(datasourceController)
{
}

bool LegacyTavrel::importLabelFromFile(const QString& fileName)
{
    Q_UNUSED(m_canvasModel)
    Q_UNUSED(m_datasourceController)
    CuteMessageLogger(loggerInstance(), Logger::Error, "legacy_tavrel.cpp", __LINE__, Q_FUNC_INFO)
        .write("This format cannot be read yet: %s", fileName.toLocal8Bit().constData());
    return false;
}

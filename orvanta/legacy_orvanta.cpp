#include "orvanta/legacy_orvanta.h"

#include <Logger.h>

LegacyOrvanta::LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    : m_canvasModel(canvasModel)
    , m_datasourceController(datasourceController)
{
}

bool LegacyOrvanta::importLabelFromFile(const QString& fileName)
{
    Q_UNUSED(m_canvasModel)
    Q_UNUSED(m_datasourceController)
    CuteMessageLogger(loggerInstance(), Logger::Error, "legacy_orvanta.cpp", __LINE__, Q_FUNC_INFO)
        .write("This format cannot be read yet: %s", fileName.toLocal8Bit().constData());
    return false;
}

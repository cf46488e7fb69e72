#include "opendocument/open_office_reader.h"

#include <Logger.h>

OpenOfficeReader::OpenOfficeReader(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    : m_canvasModel(canvasModel)
    , m_datasourceController(datasourceController)
{
}

bool OpenOfficeReader::importLabelFromFile(const QString& fileName)
{
    Q_UNUSED(m_canvasModel)
    Q_UNUSED(m_datasourceController)
    CuteMessageLogger(loggerInstance(), Logger::Error, "open_office_reader.cpp", __LINE__, Q_FUNC_INFO)
        .write("This format cannot be read yet: %s", fileName.toLocal8Bit().constData());
    return false;
}

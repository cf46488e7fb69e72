#include "opendocument/log.h"

#include <Logger.h>

namespace opendocument {

void logDebug(int line, const char* function, const QString& message)
{
    CuteMessageLogger(loggerInstance(), Logger::Debug, "open_office_reader.cpp", line, function)
        .write("%s", message.toLocal8Bit().constData());
}

} // namespace opendocument

#include "opendocument/log.h"

#include "messages/refusals.h"

#include <Logger.h>

namespace opendocument {

void logDebug(const char* source, int line, const char* function, const QString& message,
              const char* code)
{
    CuteMessageLogger(loggerInstance(), Logger::Debug, source, line, function,
                      refusals::category(code))
        .write("%s", message.toLocal8Bit().constData());
}

} // namespace opendocument

#include "apps/cli/existing_output.h"

#include <QFileInfo>
#include <QImageReader>

namespace cli {

bool mayOverwrite(const QString& fileName)
{
    if (!QFileInfo::exists(fileName)) {
        return true;
    }
    const QImageReader reader(fileName);
    return reader.text(QStringLiteral("Software")) == QLatin1String(SoftwareMark);
}

} // namespace cli

#include "cli/existing_output.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace cli {
namespace {

bool isOurPicture(const QString& fileName)
{
    const QImageReader reader(fileName, "png");
    return reader.text(QStringLiteral("Software")) == QLatin1String(SoftwareMark);
}

/// Drawings and documents name their maker near their beginning: a document as text of two
/// bytes a letter.
bool namesUsEarly(const QString& fileName)
{
    constexpr qint64 headLength = 2048;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    QByteArray head = file.read(headLength);
    head.replace('\0', "");
    return head.contains("<desc>LabelPort</desc>") ||
           (head.startsWith("%PDF-") && head.contains("LabelPort"));
}

} // namespace

bool isOurOutput(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix();
    return suffix == QLatin1String("png") ? isOurPicture(fileName) : namesUsEarly(fileName);
}

bool mayOverwrite(const QString& fileName, const QList<archive::FileStamp>& known)
{
    const std::optional<archive::FileStamp> stamp = archive::stampOf(fileName);
    if (!stamp) {
        return !QFileInfo::exists(fileName);
    }
    return known.contains(*stamp) || isOurOutput(fileName);
}

} // namespace cli

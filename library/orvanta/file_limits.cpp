#include "orvanta/file_limits.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace orvanta {

namespace {

constexpr qint64 ChunkSize = qint64(1024) * 1024;

} // namespace

FileContent readWithinLimits(QFile& file)
{
    FileContent content;
    while (file.size() <= MaximumFileSize && content.bytes.size() <= MaximumFileSize) {
        const QByteArray chunk = file.read(ChunkSize);
        // In text mode, a chunk of only carriage returns is empty, but not the end.
        if (chunk.isEmpty() && (file.atEnd() || file.error() != QFileDevice::NoError)) {
            return content;
        }
        content.bytes += chunk;
    }
    content.bytes.clear();
    content.refusal = u"it has more than %1 bytes"_s.arg(MaximumFileSize);
    return content;
}

QString exceededLimit(const Element& controls)
{
    int count = 0;
    for (Element control = controls.firstChildElement(); !control.isNull();
         control = control.nextSiblingElement()) {
        if (++count > MaximumControls) {
            return u"it has more than %1 objects"_s.arg(MaximumControls);
        }
    }
    return {};
}

} // namespace orvanta

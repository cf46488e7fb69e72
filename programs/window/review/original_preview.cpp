#include "window/review/original_preview.h"

#include "importer/reader_choice.h"
#include "limits/image/png_chunks.h"
#include "limits/zip/zip_directory.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace window {

QImage previewOf(const QString& fileName)
{
    ziplimits::ZipDirectory package;
    if (package.open(fileName)) {
        return {}; // refused
    }
    const std::optional<QByteArray> png =
        package.read(u"Thumbnails/thumbnail.png"_s, MaximumPreviewBytes);
    const auto header = png ? imagelimits::pngHeader(*png) : std::nullopt;
    if (!header || header->pixels() > MaximumPreviewPixels) {
        return {};
    }
    return QImage::fromData(imagelimits::pixelsOnly(*png), "PNG");
}

QString originalOf(const OpenLabel& label)
{
    const QString& reported = label.report.file;
    if (label.fileName.isEmpty() && QFileInfo(reported).isAbsolute()) {
        return reported;
    }
    for (const QLatin1String suffix : readerOf(ReaderKind::OpenDocument).suffixes) {
        const QFileInfo saved(label.fileName);
        const QString original = saved.path() + u'/' + saved.completeBaseName() + u'.' + suffix;
        if (!suffix.isEmpty() && QFileInfo::exists(original)) {
            return original;
        }
    }
    return {};
}

} // namespace window

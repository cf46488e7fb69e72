#include "limits/svg/svg_embedded_image.h"

#include "limits/image/safe_picture.h"
#include "limits/svg/svg_limits.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <array>

using namespace Qt::StringLiterals;

namespace svglimits {

namespace {

struct Signature
{
    QByteArrayView bytes;
    const char* format;
};

constexpr std::array<Signature, 4> Signatures{{
    {"\x89PNG\r\n\x1a\n", "png"},
    {"\xff\xd8\xff", "jpeg"},
    {"GIF8", "gif"},
    {"BM", "bmp"},
}};

[[nodiscard]] QByteArray rasterFormat(const QByteArray& data)
{
    for (const Signature& signature : Signatures) {
        if (data.startsWith(signature.bytes)) {
            return signature.format;
        }
    }
    return {};
}

[[nodiscard]] bool isAcceptable(const QSize& size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= ImageSide &&
           size.height() <= ImageSide && qint64{size.width()} * size.height() <= ImagePixels;
}

[[nodiscard]] QByteArray base64Payload(const QString& uri)
{
    const qsizetype comma = uri.indexOf(u',');
    if (!uri.startsWith(u"data:", Qt::CaseInsensitive) || comma < 0 ||
        !uri.left(comma).endsWith(u";base64", Qt::CaseInsensitive)) {
        return {};
    }
    return QByteArray::fromBase64(QStringView(uri).sliced(comma + 1).toLatin1());
}

} // namespace

std::optional<EmbeddedImage> readEmbeddedImage(const QString& uri)
{
    QByteArray data = imagelimits::safePicture(base64Payload(uri));
    const QByteArray format = rasterFormat(data);
    if (format.isEmpty()) {
        return std::nullopt;
    }

    QBuffer buffer(&data);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!isAcceptable(size) || reader.read().isNull()) {
        return std::nullopt;
    }
    return EmbeddedImage{
        u"data:image/%1;base64,%2"_s.arg(QLatin1String(format), QLatin1String(data.toBase64())),
        qint64{size.width()} * size.height()};
}

} // namespace svglimits

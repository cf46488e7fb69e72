#include "exporting/glabels_embedding.h"

#include <QDataStream>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace exporting {

using namespace Qt::StringLiterals;

namespace {

/// A drawing's size is rounded to whole units when gLabels reads it; many units make the error
/// small.
constexpr double UnitsPerPoint = 100.0;

} // namespace

QByteArray stretched(QByteArray svg, const QSizeF& size)
{
    const auto side = [](double points) {
        return QByteArray::number(std::max(1.0, std::round(points * UnitsPerPoint)), 'f', 0);
    };
    const QByteArray head = "<svg width=\"" + side(size.width()) + "\" height=\"" +
                            side(size.height()) + "\" preserveAspectRatio=\"none\"";
    static const QRegularExpression given(u"<svg width=\"[^\"]*\" height=\"[^\"]*\""_s);
    constexpr qsizetype headLength = 600;
    const auto match = given.match(QString::fromLatin1(svg.left(headLength)));
    return match.hasMatch() ? svg.replace(match.capturedStart(), match.capturedLength(), head)
                            : svg;
}

QByteArray pixdataOf(const QImage& picture)
{
    constexpr quint32 magic = 0x47646B50;
    constexpr quint32 rawBytes = 0x01010000;
    constexpr quint32 headerSize = 24;
    const bool hasAlpha = picture.format() == QImage::Format_RGBA8888;
    const quint32 stride = static_cast<quint32>(picture.width()) * (hasAlpha ? 4 : 3);
    const quint32 size = stride * static_cast<quint32>(picture.height());
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly); // big endian
    stream << magic << headerSize + size << (rawBytes | (hasAlpha ? 2U : 1U)) << stride
           << static_cast<quint32>(picture.width()) << static_cast<quint32>(picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)), stride);
    }
    return bytes;
}

QImage embeddable(const QImage& picture)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    const double bytes = static_cast<double>(picture.width()) * picture.height() *
                         (hasAlpha ? 4.0 : 3.0) * 4.0 / 3.0;
    QImage smaller = picture;
    if (bytes > MaximumEmbedded) {
        const double scale = std::sqrt(MaximumEmbedded / bytes);
        const QSize size(std::max(1, static_cast<int>(picture.width() * scale)),
                         std::max(1, static_cast<int>(picture.height() * scale)));
        smaller = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return smaller.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
}

} // namespace exporting

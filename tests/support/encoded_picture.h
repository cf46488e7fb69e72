#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>

/// The bytes of a picture file.
inline QByteArray encoded(const QImage& image, const char* format = "PNG")
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/// A PNG of a single color: a picture of any size in a few bytes.
inline QByteArray monoPng(int width, int height)
{
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    return encoded(image);
}

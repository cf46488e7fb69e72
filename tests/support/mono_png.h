#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>

/// A PNG of a single color: a picture of any size in a few bytes.
inline QByteArray monoPng(int width, int height)
{
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

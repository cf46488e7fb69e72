#pragma once

#include <QByteArray>
#include <QImage>

/// A small landscape: sun, hills and a tree. 360 by 300 pixels.
[[nodiscard]] QImage landscapePicture();

/// A mill wheel as an SVG document.
[[nodiscard]] QByteArray millWheelSvg();

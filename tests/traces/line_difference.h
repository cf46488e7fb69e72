#pragma once

#include <QByteArray>
#include <QString>

/// Where two texts begin to differ, for a person to read: the lines around the first
/// difference, "-" before what was expected and "+" before what came. Empty when the
/// texts are equal.
[[nodiscard]] QString firstDifference(const QByteArray& expected, const QByteArray& actual);

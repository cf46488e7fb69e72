#pragma once

#include <QStringView>

#include <optional>

/// The number that a short text of nothing but digits says, such as "17" or "0.375", where a
/// decimal has digits on both sides of its point. Nothing for any other text, which may be a
/// number all the same.
///
/// Gives what QStringView::toULongLong() and toDouble() give, which took an eighth of the import
/// of a binary label: lengths are written like this, two for each item.
[[nodiscard]] std::optional<quint64> plainWholeNumber(QStringView text);
[[nodiscard]] std::optional<double> plainDecimal(QStringView text);

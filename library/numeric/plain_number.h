#pragma once

#include <QStringView>

#include <optional>

/// The number in a short text of digits, such as "17" or "0.375"; a decimal has digits on both
/// sides of its point. Nothing for any other text, which may still be a number.
///
/// Same results as QStringView::toULongLong() and toDouble(), which needed an eighth of the time of
/// importing a binary label: each item has two lengths of this form.
[[nodiscard]] std::optional<quint64> plainWholeNumber(QStringView text);
[[nodiscard]] std::optional<double> plainDecimal(QStringView text);

#pragma once

#include <QByteArray>
#include <QStringList>

/// Splits a line of a CSV file into its fields. Bytes are Latin-1.
///
/// Quotes remain part of a quoted field, a doubled quote in it becomes one, and a backslash makes
/// the next byte literal. Line ends outside quotes are removed. A trailing empty field is omitted,
/// other empty fields are not.
[[nodiscard]] QStringList csvFields(const QByteArray& line);

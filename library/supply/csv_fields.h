#pragma once

#include <QByteArray>
#include <QStringList>

/// Splits one line of a CSV file into its fields. Bytes are taken as Latin-1.
///
/// Quotes stay part of a quoted field, a doubled quote in it becomes one, and a backslash takes
/// the byte behind it as it stands. Line ends outside quotes are dropped. A trailing empty field
/// is not stored, empty fields elsewhere are.
[[nodiscard]] QStringList csvFields(const QByteArray& line);

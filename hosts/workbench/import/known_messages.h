#pragma once

#include "workbench/import/import_log.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace workbench {

/// The meaning of a log record or a line of a message box.
struct KnownMessage
{
    /// A code of messages/refusals.h or a text of messages/reader_messages.h; empty for any other
    /// message.
    QString code;
    /// The arguments of the message; empty for a refusal.
    QStringList arguments;
};

/// Identifies a log record: a refusal by its category, one of the readers' fixed messages by its
/// format.
[[nodiscard]] KnownMessage recognize(const LogRecord& record);

/// Extracts the arguments of `message` by `format`, whose placeholders are those of printf (%s,
/// %lld) or QString::arg() (%1, %2).
/// @return nothing if the message does not match the format
[[nodiscard]] std::optional<QStringList> argumentsOf(const QString& format, const QString& message);

} // namespace workbench

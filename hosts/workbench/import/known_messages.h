#pragma once

#include "workbench/import/import_log.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace workbench {

/// What a log record or a line of a message box means.
struct KnownMessage
{
    /// A code of messages/refusals.h or a text of messages/reader_messages.h; empty for a message
    /// that is neither.
    QString code;
    /// What the message was made with; empty for a refusal.
    QStringList arguments;
};

/// Recognizes a log record: a refusal by its category, one of the readers' fixed messages by the
/// constant that it was made from.
[[nodiscard]] KnownMessage recognize(const LogRecord& record);

/// The arguments that make `message` from `format`, whose placeholders are those of printf (%s,
/// %lld) or QString::arg() (%1, %2).
/// @return nothing if the message was not made from the format
[[nodiscard]] std::optional<QStringList> argumentsOf(const QString& format, const QString& message);

} // namespace workbench

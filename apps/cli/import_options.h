#pragma once

#include "apps/cli/record_range.h"
#include "apps/cli/targets.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <variant>

namespace cli {

/// What `labelport import` was asked to do.
struct ImportOptions
{
    QStringList files;
    QList<Target> targets; ///< in the order given, each once
    int dpi = 300;
    RecordRange records;
    QString outputDir; ///< the current folder when it was not given
    bool force = false;
};

/// The user asked for the command's help.
struct HelpWanted
{
    QString text;
};

/// The command line was wrong; the message says how.
struct UsageError
{
    QString message;
};

/// Least and most dots per inch that a picture may be asked for.
inline constexpr int MinimumDpi = 10;
inline constexpr int MaximumDpi = 2400;

/// Reads the arguments that follow `labelport import`.
[[nodiscard]] std::variant<ImportOptions, HelpWanted, UsageError>
parseImportArguments(const QStringList& arguments);

} // namespace cli

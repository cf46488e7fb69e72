#pragma once

#include <QString>
#include <QStringList>

namespace repair {

/// How many numbers a command of a draw:enhanced-path takes; -1 for an unknown one.
[[nodiscard]] int numbersOfCommand(QChar name);

/// The commands and numbers of a draw:enhanced-path.
[[nodiscard]] QStringList partsOfPath(const QString& path);

} // namespace repair

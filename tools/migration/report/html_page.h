#pragma once

#include <QByteArray>
#include <QString>

namespace migration {

struct Totals;

/// The page from its beginning to its first card: style, totals, the tools to sort and
/// filter, what the codes mean.
[[nodiscard]] QByteArray htmlPageHead(const Totals& totals, const QString& note);
/// The page behind its last card: the script.
[[nodiscard]] QByteArray htmlPageTail();

} // namespace migration

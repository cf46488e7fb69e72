#pragma once

#include <QString>
#include <QtGlobal>

namespace archive {

/// Superseded records that a journal may hold before it is written anew.
inline constexpr qint64 ToleratedRecords = 1'000;

/// Rewrites a journal without the records that later ones of the same file supersede, if
/// they are many and more than the others. The caller holds the folder's journals alone.
/// @param tolerated superseded records that may stay
void compactJournal(const QString& path, qint64 tolerated = ToleratedRecords);

} // namespace archive

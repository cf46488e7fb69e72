#pragma once

#include "migration/model/census.h"

#include <QByteArray>
#include <QString>

#include <algorithm>

/// Counts the objects of a file, from its bytes and without the readers.
///
/// Each format has a second, independent parser here, on purpose. A reader that skips an object
/// does not report it; only a second count can show that an object is missing on the label. It
/// shares no code with the readers, so that the same mistake cannot be in both. It builds
/// nothing and needs less of the format: which objects there are, not where and how they look.
namespace migration {

/// Most objects that are counted; every reader imports fewer.
inline constexpr qsizetype MaximumObjects = 1'000'000;
/// Largest file that is counted, in bytes: the largest size that any reader accepts.
inline constexpr qint64 MaximumFile = 256LL * 1024 * 1024;
/// Bytes of a package's members, as many as its reader takes.
inline constexpr qint64 MaximumStyles = 16LL * 1024 * 1024;
inline constexpr qint64 MaximumContent = 48LL * 1024 * 1024;
[[nodiscard]] Census countTavrel(const QByteArray& file);
[[nodiscard]] Census countOrvanta(const QByteArray& file);
[[nodiscard]] Census countOpenDocument(const QByteArray& file);
[[nodiscard]] Census countSavedLabel(const QByteArray& file);

/// Bytes that a saved label's tree may take: as many as where it is opened.
inline constexpr qint64 MaximumSavedTree = 3LL << 30;

/// Whether a table of names has this one.
template <class Names>
[[nodiscard]] bool holds(const Names& names, const QString& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The message for a file that is too large to be counted.
[[nodiscard]] QString tooLargeToCount();
/// Marks the number of objects as unknown if there are more than MaximumObjects.
void refuseTooMany(Census& census);

/// Reads a file to count its objects. Returns nothing and sets `unknown` to the reason if the file
/// is too large or cannot be read.
[[nodiscard]] QByteArray bytesToCount(const QString& fileName, QString& unknown);

} // namespace migration

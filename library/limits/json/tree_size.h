#pragma once

#include <QByteArray>

/// Estimates the memory that a JSON text takes once it is parsed, before a parser sees it.
///
/// A parser keeps every value as a node and every list as a separate block: four bytes of a file
/// become two hundred, and more in nested lists.
namespace jsonlimits {

/// The approximate bytes of the tree that Qt's parser makes of a text; for a text that is not
/// JSON, of the tree at the point where the parser stops.
///
/// Texts too short to reach `enough` are not scanned: the result is then their worst case.
///
/// @param enough counting may stop at this value
[[nodiscard]] qint64 treeBytes(const QByteArray& json, qint64 enough);

/// Whether the tree would take more bytes than this.
[[nodiscard]] inline bool isLargerThan(const QByteArray& json, qint64 bytes)
{
    return treeBytes(json, bytes) > bytes;
}

} // namespace jsonlimits

#pragma once

#include <QByteArray>

/// What a JSON text becomes in memory, found out before any parser sees it.
///
/// A parser keeps every value as a node and every list as a block of its own: four bytes of
/// a file become two hundred, and lists within lists more.
namespace jsonbounds {

/// About the bytes of the tree that Qt's parser makes of a text; of a text that is no JSON,
/// what would be there before the parser notices.
///
/// Texts too short to come near `enough` are not looked through: for them it is the most that
/// so many bytes can become.
///
/// @param enough where counting may end: what is over it is over it, by however much
[[nodiscard]] qint64 treeBytes(const QByteArray& json, qint64 enough);

/// Whether the tree would take more than so many bytes.
[[nodiscard]] inline bool isLargerThan(const QByteArray& json, qint64 bytes)
{
    return treeBytes(json, bytes) > bytes;
}

} // namespace jsonbounds

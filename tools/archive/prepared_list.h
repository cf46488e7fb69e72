#pragma once

#include "archive/inputs.h"
#include "archive/output_names.h"
#include "archive/shard.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QIODevice;

namespace archive {

/// A list of one part of an archive, made beforehand: the machine that imports the part reads
/// neither the archive's folders nor the names of the other parts.
///
/// The file is JSON Lines: a header, then a line for each input with the names of its outputs,
/// which were chosen for the complete archive. Values that are the default are left out.
struct PreparedList
{
    Shard shard;
    Inputs inputs;
    QList<OutputName> names; ///< of the outputs, for each input
    QStringList readable;    ///< files and folders of the inputs, for sandbox::Permissions
};

/// Whether a file with these first bytes is a prepared list.
[[nodiscard]] bool isPreparedList(const QByteArray& start);

/// Bytes that isPreparedList() needs.
inline constexpr qint64 PreparedListStart = 64;

/// Bytes of a line: a path, a shown name and a folder, and their escapes.
inline constexpr qint64 MaximumPreparedLine = 1LL << 20;

/// Reads a list; `error` gives the reason if it is damaged.
[[nodiscard]] PreparedList readPreparedList(QIODevice& device, QString& error);

/// The content of the list of one part.
struct PartRequest
{
    const Inputs& inputs; ///< of the complete archive
    const OutputNames& names;
    Shard shard;
};

/// Writes the list of a part. Returns false if the device fails.
[[nodiscard]] bool writePreparedList(QIODevice& device, const PartRequest& part);

} // namespace archive

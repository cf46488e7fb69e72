#pragma once

#include <QString>
#include <QStringList>

/// Where the outputs of one command go.
namespace cli {

/// One input and the output that it is to become.
struct PlannedOutput
{
    QString input;
    QString output;
    /// Another input of the same command has the same output; neither may be written.
    bool contested = false;
};

/// Plans the outputs of all inputs.
///
/// An output is named after its input, with the target's suffix in place of the input's:
/// shelf.old.cnv becomes shelf.old.png. Inputs that would meet in one name, shelf.cnv and
/// shelf.odg, keep their whole name instead: shelf.cnv.png and shelf.odg.png. What meets even
/// then, two files of one name from two folders, is contested.
///
/// The plan depends on the set of inputs only, not on their order.
///
/// @param inputs  paths as the user gave them
/// @param folder  where the outputs go
/// @param suffix  the target's suffix, without a dot
[[nodiscard]] QList<PlannedOutput> planOutputs(const QStringList& inputs, const QString& folder,
                                               const QString& suffix);

} // namespace cli

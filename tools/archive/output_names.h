#pragma once

#include "archive/input.h"

#include <QStringList>

/// Where the outputs of one command go.
namespace archive {

/// The names of all outputs of a command.
///
/// An output is named after its input, with the target's suffix in place of the input's:
/// shelf.old.cnv becomes shelf.old.png. Inputs of one folder that would meet in one name,
/// shelf.cnv and shelf.odg, keep their whole name instead: shelf.cnv.png and shelf.odg.png.
/// What meets even then, two files of one name from two folders, is contested, and so is an
/// output that would stand where the outputs of others need a folder.
///
/// The names depend on the set of inputs only, not on their order. One small number is kept
/// for each input.
class OutputNames
{
public:
    /// @param inputs   must outlive the names and stay as they are
    /// @param suffixes of all targets, without dots
    OutputNames(const QList<Input>& inputs, const QStringList& suffixes);

    /// Path below the output folder of an input's output as a target.
    [[nodiscard]] QString output(qsizetype index, const QString& suffix) const;
    /// Whether another input of the same command has the same output; neither may be written.
    [[nodiscard]] bool isContested(qsizetype index) const;

private:
    enum Naming : quint8 { Stem, WholeName, Contested };

    [[nodiscard]] QString stem(qsizetype index) const;
    void settle(Naming from, Naming to);
    void contestFolders(const QStringList& suffixes);

    const QList<Input>& m_inputs;
    QList<Naming> m_naming;
};

} // namespace archive

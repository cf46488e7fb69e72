#pragma once

#include "archive/inputs.h"

#include <QList>
#include <QSet>
#include <QStringList>

/// Where the outputs of one command go.
namespace archive {

/// How the outputs of one input are named.
struct OutputName
{
    enum Naming : quint8 { Stem, CompleteName, Conflicting };

    Naming naming = Stem;
    QString pageMark;
    /// With these suffixes the output would have the name of a folder of other outputs.
    QStringList folderSuffixes;
};

/// The names of all outputs of a command.
///
/// An output is named after its input, with the target's suffix instead of the input's:
/// shelf.old.cnv becomes shelf.old.png. Inputs of one folder that would get the same name,
/// shelf.cnv and shelf.odg, keep their complete names: shelf.cnv.png and shelf.odg.png. If complete
/// names are equal as well (two files of one name from two folders), or an output has the name of a
/// folder of other outputs, the names conflict, and none of them is written.
///
/// An output may have a table of records next to it, "shelf.glabels.csv". Its name counts, too: the
/// outputs of shelf.cnv and shelf.glabels.cnv keep their complete names.
///
/// The names depend on the set of inputs and suffixes only, not on the order of inputs.
class OutputNames
{
public:
    /// @param inputs   must outlive the names, unchanged
    /// @param suffixes of all targets and of their tables, without the first dot: "glabels",
    ///                 "glabels.csv"
    OutputNames(const Inputs& inputs, const QStringList& suffixes);
    /// With names that were chosen for a complete archive, of which the inputs are a part.
    OutputNames(const Inputs& inputs, const QStringList& suffixes, const QList<OutputName>& chosen);

    /// Path below the output folder of an input's output as a target.
    [[nodiscard]] QString output(qsizetype index, const QString& suffix) const;
    /// Whether another input of the same command has the same output; neither may be written.
    [[nodiscard]] bool isConflicting(qsizetype index) const;
    /// What separates the name of an input's output from the number of a page, so that no page of
    /// it has the name of another input's output: "-", or "-page-" if shelf.odg and shelf-2.odg
    /// are both imported.
    [[nodiscard]] QString pageMark(qsizetype index) const;
    /// How an input's outputs are named; only the suffixes of the names count as folders.
    [[nodiscard]] OutputName chosen(qsizetype index) const;

private:
    using Naming = OutputName::Naming;

    [[nodiscard]] QString stem(qsizetype index) const;
    [[nodiscard]] QStringList claims(qsizetype index) const;
    [[nodiscard]] QStringList tableParts() const;
    void resolveConflicts(Naming from, Naming to);
    void findFolders();

    const Inputs& m_inputs;
    QStringList m_suffixes;
    QList<Naming> m_naming;
    /// Every folder that contains an output, with those above it.
    QSet<QString> m_folders;
    /// Hashes of the names of outputs that end in a number, without it. If two names have one
    /// hash, a page mark is longer than it must be.
    QSet<std::size_t> m_numbered;
    QList<QString> m_pageMarks; ///< if the names were chosen before
};

} // namespace archive

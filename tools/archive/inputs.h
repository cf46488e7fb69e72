#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace archive {

/// One file to import. Names and paths are file names as console/file_name.h describes them.
struct Input
{
    QString path;      ///< the file to open
    QString shownName; ///< its name in messages and reports; its outputs are named after it
    /// Folder below the output folder that its outputs go to, "a/b"; empty for none.
    QString folder;
    bool operator==(const Input&) const = default;
};

/// The files of a command, up to many millions: the files of a folder share its name. Takes 16
/// bytes for a file, and its name without the folder.
class Inputs
{
public:
    Inputs() = default;
    explicit Inputs(const QList<Input>& inputs);

    /// Adds an input at the end. Inputs of one folder should follow one another, to share its name.
    void append(const Input& input);
    [[nodiscard]] Input at(qsizetype index) const;
    [[nodiscard]] qsizetype size() const { return m_entries.size(); }
    [[nodiscard]] bool isEmpty() const { return m_entries.isEmpty(); }

    /// By shown name, then by path.
    void sort();
    /// Keeps the inputs whose index is set.
    void keep(const std::vector<bool>& isKept);

private:
    /// The common part of the inputs of a folder.
    struct Folder
    {
        QString path;      ///< up to the last slash, included
        QString shownName; ///< the same part of the shown names
        QString folder;
        bool operator==(const Folder&) const = default;
        friend std::size_t qHash(const Folder& key, std::size_t seed = 0)
        {
            return qHashMulti(seed, key.path, key.shownName, key.folder);
        }
    };

    struct Entry
    {
        qint64 begin = 0; ///< in m_names
        quint32 size = 0;
        quint32 folder = 0; ///< in m_folders
    };

    [[nodiscard]] quint32 indexOf(const Folder& folder);
    [[nodiscard]] QStringView name(const Entry& entry) const;
    [[nodiscard]] bool isBefore(const Entry& a, const Entry& b) const;

    QList<Folder> m_folders;
    QHash<Folder, quint32> m_folderIndexes;
    QString m_names; ///< one after the other
    QList<Entry> m_entries;
};

/// Indexes by the hash of a text, 16 bytes each. The texts are compared by the caller.
class HashedIndexes
{
public:
    using Entry = std::pair<std::size_t, quint32>;

    void reserve(qsizetype size) { m_entries.reserve(static_cast<std::size_t>(size)); }
    /// Adds an index, which must fit in 32 bits, under the hash of a text.
    void add(const QString& text, qsizetype index);
    /// Must be called after the last add() and before the functions below.
    void sort();
    /// The indexes of texts with this one's hash, in order.
    [[nodiscard]] QList<qsizetype> find(const QString& text) const;
    /// The indexes of texts that have one hash, in order, for each hash of several texts.
    [[nodiscard]] QList<QList<qsizetype>> groups() const;

private:
    std::vector<Entry> m_entries;
};

/// Finds inputs by their absolute path.
class PathIndex
{
public:
    /// @param inputs must outlive the index, unchanged
    explicit PathIndex(const Inputs& inputs);

    /// The last input with this path.
    [[nodiscard]] std::optional<qsizetype> find(const QString& absolutePath) const;
    /// The inputs that have one path, in order, for each path of several inputs.
    [[nodiscard]] QList<QList<qsizetype>> duplicates() const;

private:
    const Inputs& m_inputs;
    HashedIndexes m_indexes;
};

} // namespace archive

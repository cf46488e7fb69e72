#pragma once

#include <QStringList>

namespace window {

/// The files that were opened last, kept in the user's settings.
///
/// Windows that are open at the same time share the list: it is read anew each time.
class RecentFiles
{
public:
    static constexpr int MaximumCount = 9;

    /// Absolute names, the latest first.
    [[nodiscard]] QStringList files() const;
    /// Puts a file first; the one that is over goes.
    void add(const QString& fileName);
    void remove(const QString& fileName);
    void clear();
};

} // namespace window

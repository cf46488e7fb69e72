#pragma once

#include <QStringList>

namespace window {

/// The files that were opened last, stored in the user's settings.
///
/// Windows that are open at the same time share the list: it is read again each time.
class RecentFiles
{
public:
    static constexpr int MaximumCount = 9;

    /// Absolute names, the latest first.
    [[nodiscard]] QStringList files() const;
    /// Moves a file to the front; the last one is removed if there are too many.
    void add(const QString& fileName);
    void remove(const QString& fileName);
    void clear();
};

} // namespace window

#pragma once

#include "migration/losses/item_losses.h"
#include "migration/losses/log_losses.h"
#include "migration/losses/paged_texts.h"
#include "migration/losses/searched_objects.h"
#include "migration/model/census.h"
#include "migration/model/file_report.h"

#include <QSet>

namespace migration {

/// Adds numbers of items by their kind.
void addCounts(QList<KindCount>& sums, const QList<KindCount>& counts);

/// Fills in what is lost and changed of a document whose pages were repaired, and then imported
/// one by one.
///
/// The number of objects is that of the original. A loss that a repair can avoid counts only if
/// it is found again in the repaired document; all others count as they do without repair.
class RepairedLosses
{
public:
    explicit RepairedLosses(const Census& original);

    /// Compares the next page, repaired, with the label that it became.
    void addPage(Census repaired, const LabelFacts& label, const LogLosses& log);
    /// The next pages become no labels.
    void leaveOutPages(int count);
    /// Embedded documents and charts whose content repair laid out again.
    void addRedrawn(qint64 count) { m_redrawn += count; }
    /// The number of pages that were added or left out.
    [[nodiscard]] int lastPage() const { return m_lastPage; }
    void fill(FileReport& report) const;

private:
    void addMissingPictures(qint64 unreadable, QList<Finding>& lost) const;
    void addTo(QList<Finding>& sums, const QList<Finding>& findings) const;
    [[nodiscard]] QList<Finding> remaining(const QList<Finding>& original,
                                           const QList<Finding>& repaired) const;
    void addPagesLeftOut(QList<Finding>& lost) const;

    const Census& m_original;
    SearchedObjects m_searched;
    FileReport m_pages; ///< the sums over all pages
    int m_lastPage = 0;
    QSet<int> m_pagesLeftOut; ///< their numbers
    QStringList m_pageRanges; ///< the same for the user: "201–204"
    PagedTexts m_texts;
    qint64 m_textsOnOneSide = 0;
    qint64 m_redrawn = 0;
};

} // namespace migration

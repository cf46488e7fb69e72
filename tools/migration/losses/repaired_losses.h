#pragma once

#include "migration/losses/item_losses.h"
#include "migration/losses/log_losses.h"
#include "migration/model/census.h"
#include "migration/model/file_report.h"

#include <QMap>

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

    /// Compares a repaired page with the label that it became.
    void addPage(Census repaired, const LabelFacts& label, const LogLosses& log);
    /// @param allPages whether each page of the document was added
    void fill(FileReport& report, bool allPages) const;

private:
    void addTo(QList<Finding>& sums, const QList<Finding>& findings) const;
    [[nodiscard]] QList<Finding> remaining(const QList<Finding>& original,
                                           const QList<Finding>& repaired, bool allPages) const;

    void findHeaders(const LabelFacts& label);
    void findTexts(const LabelFacts& label);
    [[nodiscard]] QList<Finding> missingTexts(bool allPages) const;
    [[nodiscard]] Census withoutShownHeaders() const;

    const Census& m_original;
    /// Indices of the texts of headers and footers that no label shows yet.
    QList<qsizetype> m_missingHeaders;
    FileReport m_pages; ///< the sums over all pages
    qint64 m_pageCount = 0;
    /// On how many pages each text is missing, and what all pages show.
    QMap<QString, qint64> m_missingTexts;
    QString m_shownText;
};

} // namespace migration

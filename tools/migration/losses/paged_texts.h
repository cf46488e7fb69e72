#pragma once

#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

#include <QMap>
#include <QString>

namespace migration {

/// The texts of a document, compared with all its labels. Each page is compared with the complete
/// document: what is on one page is missing on all others.
class PagedTexts
{
public:
    void addPage(const LabelFacts& label);
    /// The texts of the document that are on no label, if all its pages were added.
    [[nodiscard]] Tally missing(const Census& document) const;
    /// How many pieces of the running text are on pages that were left out.
    [[nodiscard]] qint64 leftOut(const Census& document) const;

private:
    int m_pages = 0;
    QMap<QString, qint64> m_missing; ///< on how many pages each text is missing
    QString m_shown;                 ///< what all pages show
};

} // namespace migration

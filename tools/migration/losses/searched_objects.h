#pragma once

#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

#include <QList>

namespace migration {

/// Objects of headers, footers and texts. Repair shows them in various forms, so that their texts
/// are searched for on all labels.
class SearchedObjects
{
public:
    /// @param document must outlive this object
    explicit SearchedObjects(const Census& document);

    void addPage(const LabelFacts& label);
    /// The document without the objects that were found.
    /// @param unreadable pictures whose loss is reported by itself
    [[nodiscard]] Census withoutShown(qint64 unreadable) const;
    /// How many pictures of the document no label shows, wherever they are.
    [[nodiscard]] qint64 missingPictures(qint64 unreadable) const;

private:
    [[nodiscard]] bool isShown(qsizetype object, bool hasAllPictures) const;
    [[nodiscard]] qint64 pictures() const;

    [[nodiscard]] static bool isOn(const LabelFacts& label, const Appearance& appearance,
                                   const QString& shown);

    const Census& m_document;
    QList<qsizetype> m_missing; ///< indices of the objects that no label shows yet
    qint64 m_pictures = 0;      ///< on all labels
};

} // namespace migration

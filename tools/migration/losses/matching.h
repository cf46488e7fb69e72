#pragma once

#include "migration/losses/compared_text.h"
#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

#include <QList>

namespace migration {

/// An item of the label and what the document shows of the same object.
struct Pair
{
    qsizetype item = -1;
    const Appearance* appearance = nullptr;
    /// The text that the item should show; several runs may share an item.
    QString text = {};
    /// Whether the pair is certain: only then a difference is one.
    bool isExact = true;
};

/// The objects of a page and their items, in both readings of a document.
struct Matching
{
    QList<Pair> shapes; ///< also lines and pictures
    QList<Pair> texts;
    /// Objects whose text is a part of an item's text.
    QList<const Appearance*> parts;
    /// Texts of the document that no item shows.
    QStringList missingTexts;
    /// Whether the label is too large to compare all of it.
    bool isCut = false;
};

/// Finds the item of each object by its place and by its text, not by its number: repair may make
/// other items of an object than the reader does.
///
/// @param page  of a drawing, from 1; 0 for all objects
/// @param scale of the label: 100 if millimeters were enlarged
/// @param expectsAll whether objects that the reader leaves out should be on the label
[[nodiscard]] Matching matchItems(const Census& census, const LabelFacts& label, int page,
                                  double scale, bool expectsAll);

} // namespace migration

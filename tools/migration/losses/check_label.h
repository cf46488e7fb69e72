#pragma once

#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

namespace workbench {
class Canvas;
}

namespace migration {

/// How a document was imported.
struct Reading
{
    /// The page of a drawing that the label shows, from 1; 0 for all of a text document.
    int page = 1;
    /// Whether objects that the reader leaves out should be on the label after repair.
    bool isRepaired = false;
};

/// Compares the items of a label with the original OpenDocument file, as it was imported or
/// repaired, and adds what differs to the facts: place and size, texts, fonts, colors, pens, and
/// items that cover each other.
void checkLabel(const Census& original, const workbench::Canvas& canvas, const Reading& reading,
                LabelFacts& label);

} // namespace migration

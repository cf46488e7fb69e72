#pragma once

#include "host/kest_types.h"

class Item;

/// Creates the host's items.
class ClassFactory
{
public:
    virtual ~ClassFactory() = default;

    /// Creates an item of the class that KestTypes::ShapeType gives for the code.
    ///
    /// The caller owns it until it passes it to TalCanvasModel::importItem(). A host that cannot
    /// create the item returns null; the importer then omits it.
    [[nodiscard]] virtual Item* create(KestTypes::ShapeType type) = 0;
};

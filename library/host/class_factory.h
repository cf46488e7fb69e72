#pragma once

#include "host/kest_types.h"

class Item;

/// Makes the host's items.
class ClassFactory
{
public:
    virtual ~ClassFactory() = default;

    /// Makes a new item of the class that KestTypes::ShapeType names for the code.
    ///
    /// The caller owns it until it hands it to TalCanvasModel::importItem(). A host
    /// that cannot make the item returns null; the importer then leaves it out.
    [[nodiscard]] virtual Item* create(KestTypes::ShapeType type) = 0;
};

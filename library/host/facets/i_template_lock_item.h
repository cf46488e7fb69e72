#pragma once

/// The lock of an item in a template, for hosts that have one. Importers do not call it: legacy
/// labels lock items by QGraphicsItem::ItemIsMovable.
class ITemplateLockItem
{
public:
    virtual ~ITemplateLockItem() = default;
};

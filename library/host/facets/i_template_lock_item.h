#pragma once

/// The lock of an item within a template. The importer calls nothing on it: legacy
/// labels lock items by QGraphicsItem::ItemIsMovable. It is the place for a host's
/// own template lock.
class ITemplateLockItem
{
public:
    virtual ~ITemplateLockItem() = default;
};

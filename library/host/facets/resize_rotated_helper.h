#pragma once

/// Marks an item that a host's editor may resize while it is rotated. Importers do not call it.
class ResizeRotatedHelper
{
public:
    virtual ~ResizeRotatedHelper() = default;
};

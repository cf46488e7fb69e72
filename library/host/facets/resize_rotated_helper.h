#pragma once

/// Marks an item that a host's editor may resize while it is rotated. The importer
/// calls nothing on it.
class ResizeRotatedHelper
{
public:
    virtual ~ResizeRotatedHelper() = default;
};

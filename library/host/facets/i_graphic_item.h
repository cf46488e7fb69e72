#pragma once

/// Graphic properties of a picture (brightness, dithering and the like). The importer
/// sets none of them; legacy labels keep pictures as they are.
class IGraphicItem
{
public:
    virtual ~IGraphicItem() = default;
};

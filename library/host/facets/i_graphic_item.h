#pragma once

/// Graphic properties of a picture, such as brightness and dithering. Importers do not set them,
/// because legacy labels do not store them.
class IGraphicItem
{
public:
    virtual ~IGraphicItem() = default;
};

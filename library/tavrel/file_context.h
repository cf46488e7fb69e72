#pragma once

#include <QtGlobal>

namespace tavrel {

/// Dots per inch of the printer that a label was made for; -1 until a file tells.
struct Resolution
{
    double x = -1.0;
    double y = -1.0;
};

/// What the item records of a file need to know of the records before them.
struct FileContext
{
    quint32 version = 0;
    Resolution resolution;
};

} // namespace tavrel

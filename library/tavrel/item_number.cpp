#include "tavrel/item_number.h"

namespace tavrel {

qint64 takeItemNumber()
{
    static qint64 next = 0;
    return next++;
}

} // namespace tavrel

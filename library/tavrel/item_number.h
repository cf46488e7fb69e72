#pragma once

#include <QtGlobal>

namespace tavrel {

/// The number of the next item. One counter for the process, from 0 and never reset, so
/// that items of a later import stand in front of those of an earlier one. To be called
/// from one thread, as all of this reader.
[[nodiscard]] qint64 takeItemNumber();

} // namespace tavrel

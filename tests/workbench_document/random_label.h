#pragma once

#include "workbench/document/saved_label.h"

#include <rapidcheck.h>

/// Labels with arbitrary values, of any type and with any groups.
[[nodiscard]] rc::Gen<workbench::document::SavedLabel> anyLabel();

namespace rc {

inline void showValue(const workbench::document::SavedLabel& label, std::ostream& os)
{
    os << "a label of " << label.items.size() << " items and " << label.datasources.size()
       << " data sources";
}

} // namespace rc

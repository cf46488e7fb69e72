#pragma once

#include "tavrel/item_building.h"
#include "tavrel/text_record.h"

namespace tavrel {

class DatasourceBinder;

struct TextOutcome
{
    BuildResult result = BuildResult::NoItem;
    bool scaled = false; ///< the text was stored stretched, which it could not keep
};

TextOutcome buildText(const HostCanvas& host, const TextRecord& record,
                      const DatasourceBinder& binder);

/// The note on a text that was stored stretched: its words and its font size.
[[nodiscard]] QString scaledTextNote(const QString& content, int fontSize);

} // namespace tavrel

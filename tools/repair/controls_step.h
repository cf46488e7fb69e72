#pragma once

namespace repair {

class Document;

/// Replaces form controls by boxes with the text that they show: labels, values, selected options.
/// @return how many there were
int showControls(Document& document);

} // namespace repair

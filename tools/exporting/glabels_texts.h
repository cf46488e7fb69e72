#pragma once

#include "exporting/export_findings.h"
#include "exporting/glabels_document.h"
#include "exporting/label_walk.h"

namespace exporting {

/// The characters of a text item; not its background and frame.
///
/// @param field  the column of the records that a bound item shows; else empty
/// @param longest the longest text of that column
/// @return false, and nothing is added, if gLabels cannot express the text
[[nodiscard]] bool addTextItem(GlabelsDocument& document, ExportFindings& findings,
                               const WalkedItem& item, const QString& field,
                               const QString& longest);

/// A text that stays within its box, on one line.
void addCaption(GlabelsDocument& document, const QRectF& box, const QTransform& toPage,
                const QString& text, const QString& field, const QFont& font, double size,
                const QColor& color, Qt::Alignment alignment);

} // namespace exporting

#pragma once

#include "exporting/export_findings.h"
#include "exporting/glabels_document.h"
#include "exporting/glabels_metrics.h"
#include "exporting/label_walk.h"

#include <QLineF>

/// What plain and rich texts have in common.
namespace exporting {

/// The box, wide enough for a line of this width in gLabels. It grows away from the aligned edge.
[[nodiscard]] QRectF widened(const QRectF& box, double width, Qt::Alignment alignment);

/// Changes the size of a text by up to one percent, if its lines then are as wide as we paint them:
/// where gLabels rounds the advances of letters by half a point, they are rounded down instead of
/// up, or up instead of down.
///
/// @param ours the width of all lines together, as we paint them
void fitSize(GlabelsText& text, double ours);

/// How gLabels measures the text.
[[nodiscard]] GlabelsMetrics metricsOf(const GlabelsText& text);

/// A line below characters, because gLabels has no underlined text.
void addUnderline(GlabelsDocument& document, const QTransform& toPage, const QLineF& line,
                  const GlabelsPen& pen);

/// A text in several formats. Returns false, and adds nothing, if gLabels cannot express it.
[[nodiscard]] bool addRichText(GlabelsDocument& document, ExportFindings& findings,
                               const WalkedItem& item);

} // namespace exporting

#pragma once

#include "exporting/glabels_document.h"
#include "exporting/glabels_texts.h"
#include "workbench/items/text_layout.h"

#include <QRawFont>

namespace exporting {

/// Lines in one format, as we paint them.
struct FormattedLines
{
    QRawFont font;
    QColor color;
    bool isUnderlined = false;
    Qt::Alignment alignment;
    QRectF box; ///< in which the lines are aligned
    QList<workbench::TextLine> lines;
};

/// Adds the lines as one text. Returns it.
GlabelsText addLines(GlabelsDocument& document, const QTransform& toPage,
                     const FormattedLines& text, const GlabelsField& field);

/// A line as its words, at the places where we paint them, if gLabels would print some of its
/// letters noticeably elsewhere; otherwise the line.
[[nodiscard]] QList<FormattedLines> wordsOf(const FormattedLines& run);

} // namespace exporting

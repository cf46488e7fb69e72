#pragma once

#include "exporting/glabels_document.h"
#include "exporting/glabels_texts.h"
#include "workbench/items/text_layout.h"

#include <QFont>
#include <QList>
#include <QRawFont>

namespace exporting {

/// Sets family, size and style of a text to those of a font.
void setFont(GlabelsText& text, const QRawFont& font);

/// How gLabels measures a font. It rounds the advance of each glyph to whole points, but not the
/// height of lines; our own layout does the opposite. Lengths are in points.
class GlabelsFont
{
public:
    explicit GlabelsFont(const GlabelsText& text);

    /// From the upper edge of a line to its baseline.
    [[nodiscard]] double ascent() const { return m_ascent; }
    /// Of a line.
    [[nodiscard]] double height() const { return m_height; }
    [[nodiscard]] double width(const QString& line) const;
    /// The width before advances are rounded.
    [[nodiscard]] double exactWidth(const QString& line) const;

private:
    [[nodiscard]] QList<double> advances(const QString& line) const;

    QFont m_large; ///< in a size in which nothing is rounded
    double m_scale;
    double m_ascent;
    double m_height;
};

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

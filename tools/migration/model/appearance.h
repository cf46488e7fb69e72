#pragma once

#include <QChar>
#include <QColor>
#include <QPolygonF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

namespace migration {

/// In a text: the value of a variable.
inline constexpr QChar VariableText = QChar::ObjectReplacementCharacter;

/// What a document shows of an object, to compare with the label. Lengths are in points.
struct Appearance
{
    /// The corners on the page; the two ends of a line. Empty if the place is unknown. Of the
    /// text of a shape: the corners of the shape.
    QPolygonF outline;
    /// 0 if unknown. Also of an object whose place follows from the text around it.
    QSizeF size;
    /// Of a text: as it is read, lines separated by line breaks.
    QString text;
    /// The fonts that the text asks for.
    QStringList families;
    /// Invalid if it is automatic, or if there are several.
    QColor textColor;
    /// Of a text: whether its color was looked up. That of lost texts is not.
    bool isColorKnown = false;
    /// Of a shape, or of the shape that the text belongs to. Invalid if it is not one color.
    QColor fill;
    /// Whether it has a fill of any kind; unknown if the document leaves that open.
    std::optional<bool> isFilled;
    /// Nothing if it has no pen. 0: the thinnest line.
    std::optional<double> penWidth;
    /// Later objects are above earlier ones.
    qint64 order = 0;
    /// Of a drawing, from 1; 0 in a text document.
    int page = 0;
    /// Of running text, from 1: Census::paragraphs has its text. 0 for all other objects.
    int paragraph = 0;
    /// Of a run: whether there is a blank between it and the run before it.
    bool followsBlank = false;
    /// Of a text: whether it belongs to a shape or a text box.
    bool isInShape = false;
    /// Whether other objects may be above or below it.
    bool mayOverlap = true;
    /// Whether its height follows from its text.
    bool grows = false;
    /// Whether a part of its text is an object of its own that readers leave out.
    bool hasLostParts = false;
};

} // namespace migration

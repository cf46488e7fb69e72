#pragma once

#include <QColor>
#include <QtGlobal>

/// The outline of a shape, the stroke of a line, the frame of a text.
///
/// Styles are numbers of Qt's enumerations. They come from files, which may contain any number:
/// treat unknown ones as a solid line, a flat cap or a beveled join.
class PenItem
{
public:
    virtual ~PenItem() = default;

    /// May be translucent. An invalid color changes nothing.
    virtual void setPenColor(const QColor& color) = 0;
    /// Width in points; 0 is the thinnest line that the output can show.
    virtual void setPenWidth(quint16 width) = 0;
    /// A Qt::PenStyle; Qt::NoPen (0) hides the outline.
    virtual void setPenStyle(int style) = 0;
    /// A Qt::PenCapStyle.
    virtual void setCapStyle(int style) = 0;
    /// A Qt::PenJoinStyle.
    virtual void setJoinStyle(int style) = 0;
};

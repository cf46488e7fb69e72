#include "recorder/items/recorded_items.h"

#include "recorder/svg_document.h"

#include <algorithm>

namespace recorder {

void RecordedRoundedRectangle::setCornerRadius(double radius)
{
    record("setCornerRadius", radius);
}

void RecordedLine::setLineLength(double length)
{
    record("setLineLength", length);
}

void RecordedLine::setLineStartPoint(const QPointF& point)
{
    record("setLineStartPoint", point.x(), point.y());
}

void RecordedLine::setLineEndPoint(const QPointF& point)
{
    record("setLineEndPoint", point.x(), point.y());
}

void RecordedLine::setLineStartMarker(int marker)
{
    record("setLineStartMarker", marker);
}

void RecordedLine::setLineEndMarker(int marker)
{
    record("setLineEndMarker", marker);
}

void RecordedSimpleText::setTextBoxSize(const QSizeF& size)
{
    record("setTextBoxSize", size.width(), size.height());
}

void RecordedSimpleText::setOptionA(bool on)
{
    record("setOptionA", on);
}

void RecordedSimpleText::setOptionB(bool on)
{
    record("setOptionB", on);
}

void RecordedSimpleText::applyTextOptions()
{
    record("applyTextOptions");
}

void RecordedSimpleText::importTextProperties(const QString& text, int fontSize, bool flag1,
                                              bool flag2, bool flag3,
                                              const QFlags<Qt::AlignmentFlag>& alignment)
{
    record("importTextProperties", text, fontSize, flag1, flag2, flag3, alignment);
}

void RecordedSimpleText::setItemSizeLimiting(signed char mode)
{
    record("setItemSizeLimiting", mode);
}

void RecordedRichText::setText(const QString& text)
{
    RecordedText::setText(text);
    m_characters = text.size();
}

void RecordedRichText::adjustBoxSizeToContent(double width)
{
    // The height of one line, whatever the text: a real one would depend on the installed fonts.
    constexpr double fixedHeight = 12;
    record("adjustBoxSizeToContent", width);
    const double textWidth = behavior().characterWidth * static_cast<double>(m_characters);
    adoptSize({textWidth > 0 ? std::min(textWidth, width) : width, fixedHeight});
}

void RecordedBarcode::setBarcodeType(int code)
{
    record("setBarcodeType", code);
}

void RecordedBarcode::importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                              int textAlignment, int moduleWidth, bool flag1,
                                              bool flag2, int option, int number, int value)
{
    record("importBarcodeProperties", symbology, content, flag3, textAlignment, moduleWidth, flag1,
           flag2, option, number, value);
}

void RecordedPixMap::pixmapImportActions(const QPixmap& pixmap)
{
    record("pixmapImportActions", pixmap);
    adoptSize(pixmap.size());
}

void RecordedSymbol::loadItemFromData(const QByteArray& data)
{
    record("loadItemFromData", data);
    adoptSize(behavior().symbolSize ? *behavior().symbolSize : SvgDocument(data).defaultSize());
}

} // namespace recorder

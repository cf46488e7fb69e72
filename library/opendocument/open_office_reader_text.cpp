// Text: the flow of a text document, and the text of shapes.

#include "numeric/saturation.h"
#include "opendocument/item_builder.h"
#include "opendocument/log.h"
#include "opendocument/numbers.h"
#include "opendocument/open_office_reader.h"
#include "opendocument/opendocument_limits.h"

#include "host/items/rich_text_item.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

constexpr double SpaceWidth = 3.0;   // points
constexpr double TabWidth = 12.0;    // points
constexpr double AboveShape = 0.001; // of z

bool isTooLong(qsizetype length)
{
    if (length <= limits::TextCharacters) {
        return false;
    }
    logDebug("open_office_reader_text", __LINE__, Q_FUNC_INFO,
             u"A text of %1 characters is left out: it is longer than %2"_s.arg(length).arg(
                 limits::TextCharacters),
             refusals::TextTooLong);
    return true;
}

} // namespace

TextStyling OpenOfficeReader::styling() const
{
    return {m_textStyles, m_defaultTextStyle, m_pointsPerPixel};
}

void OpenOfficeReader::readParagraph(const xmllimits::Element& paragraph)
{
    const OOTextStyle style = styling().styleOf(paragraph, m_defaultTextStyle);
    advanceFlow(style.margins.above);
    if (!paragraph.hasChildNodes()) {
        advanceFlow(style.fontSize + style.margins.below);
        return;
    }
    ParagraphFlow flow(m_pageWidth);
    readParagraphFrames(paragraph, flow);
    advanceFlow(flow.blockOffset());
    for (xmllimits::Node node = paragraph.firstChild(); !node.isNull(); node = node.nextSibling()) {
        readParagraphNode(node.toElement(), node.isText() ? node.nodeValue() : QString(), style,
                          flow);
    }
    advanceFlow(flow.lineHeight());
}

// Frames are read first, wherever they are in the paragraph: its text flows around all of them.
void OpenOfficeReader::readParagraphFrames(const xmllimits::Element& paragraph, ParagraphFlow& flow)
{
    const QString tag = u"draw:frame"_s;
    for (xmllimits::Element frame = paragraph.firstChildElement(tag); !frame.isNull();
         frame = frame.nextSiblingElement(tag)) {
        flow.passFrame(readFrame(frame));
    }
}

// One node of a paragraph: an element, or a text if the element is null.
void OpenOfficeReader::readParagraphNode(const xmllimits::Element& element, const QString& text,
                                         const OOTextStyle& style, ParagraphFlow& flow)
{
    if (!text.isEmpty()) {
        readRun(text, style, flow);
    } else if (element.tagName() == "text:s"_L1) {
        flow.moveBy(SpaceWidth * element.attribute(u"text:c"_s).toInt());
    } else if (element.tagName() == "text:tab"_L1) {
        flow.moveBy(TabWidth);
    } else if (holdsText(element)) {
        readRun(element.text(), styling().styleOf(element, style), flow);
    }
}

void OpenOfficeReader::readRun(const QString& text, const OOTextStyle& style, ParagraphFlow& flow)
{
    if (isTooLong(text.size())) {
        return;
    }
    // Before each run, not after each node: a frame has the same effect before and after the text.
    advanceFlow(flow.takeFullLine());
    const QSizeF size =
        placeTextRun(text, style, flow.availableWidth(), flow.cursor(), flow.takeRunZ());
    flow.passRun(size, style.margins.below);
}

QSizeF OpenOfficeReader::placeTextRun(const QString& text, const OOTextStyle& style,
                                      double availableWidth, double cursor, double z)
{
    NewItem<RichTextItem> run = makeItem<RichTextItem>(m_classFactory, KestTypes::RichText);
    if (!run) {
        return {0, 0};
    }
    run->setZValue(z);
    if (!handOver(*m_canvasModel, std::move(run.owned))) {
        return {0, 0};
    }
    run->setText(text);
    run->setFontFamily(style.fontFamily);
    run->setFontBold(style.bold);
    run->setFontItalic(style.italic);
    run->setFontUnderline(style.underline);
    run->setFontPointSize(saturatedToInt(style.fontSize));
    run->adjustBoxSizeToContent(availableWidth);
    const double width = run->getItemWidth();
    if (style.hasAlignment()) {
        run->setTextAlignment(style.alignment);
    }
    setPosition(*run.item, {runX(style, m_pageWidth, width) + cursor, m_flowOffsetY});
    return {width, run->getItemHeight()};
}

void OpenOfficeReader::buildRichText(const xmllimits::Element& shape, const Geometry& geometry)
{
    const RichText text = toRichText(shape, styling());
    if (text.isBlank || isTooLong(text.length)) {
        return;
    }
    NewItem<RichTextItem> item = makeItem<RichTextItem>(m_classFactory, KestTypes::RichText);
    if (!item) {
        return;
    }
    item->setHtml(text.html);
    item->adjustBoxSizeToContent(geometry.size.width());
    if (geometry.hasZ()) {
        item->setZValue(geometry.z + AboveShape);
    }
    QPointF position = geometry.position;
    if (geometry.hasRotation()) {
        position = positionInRotatedBox(geometry, {item->getItemWidth(), item->getItemHeight()});
    }
    setPosition(*item.item, position);
    const bool isKept = handOver(*m_canvasModel, std::move(item.owned));
    if (isKept && geometry.hasRotation()) {
        item->setItemRotation(geometry.rotation);
    }
}

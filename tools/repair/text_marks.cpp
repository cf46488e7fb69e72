#include "repair/text_marks.h"

#include "repair/item_plan.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

namespace repair {

namespace {

Mark markAt(const QTextDocument& document, const QTextBlock& block, const QTextFragment& fragment)
{
    const QTextImageFormat format = fragment.charFormat().toImageFormat();
    const int inBlock = fragment.position() - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(inBlock);
    const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
    Mark mark;
    mark.number = format.name().sliced(MarkPrefix.size()).toInt();
    mark.paragraph = block.blockNumber();
    mark.top = corner.y();
    if (line.isValid()) {
        mark.top += line.y();
        mark.corner =
            corner + QPointF(line.cursorToX(inBlock), line.y() + line.ascent() - format.height());
    }
    return mark;
}

} // namespace

QList<Mark> marksOf(workbench::CanvasItem& item)
{
    const auto* const text = dynamic_cast<const ::RichTextItem*>(item.contractItem());
    QList<Mark> marks;
    if (text == nullptr) {
        return marks;
    }
    const QTextDocument& document = *text->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat() && format.toImageFormat().name().startsWith(MarkPrefix)) {
                marks.append(markAt(document, block, it.fragment()));
            }
        }
    }
    return marks;
}

} // namespace repair

#include "repair/text_marks.h"

#include "repair/item_plan.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/label_document.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <algorithm>

namespace repair {

namespace {

// Points: heights of lines are rounded.
constexpr double RoundingTolerance = 1.0;

bool isMark(const QTextCharFormat& format)
{
    return format.isImageFormat() && format.toImageFormat().name().startsWith(MarkPrefix);
}

// Whether lines are beside it; it is not a character of a line then.
bool isBesideLines(const QTextCharFormat& format)
{
    return isMark(format) && format.objectIndex() >= 0;
}

int numberOf(const QTextCharFormat& format)
{
    return format.toImageFormat().name().sliced(MarkPrefix.size()).toInt();
}

// The first line that an object beside the paragraph meets; -1 if it meets none.
int lineBeside(const QTextLayout& layout, double top)
{
    for (int number = 0; number < layout.lineCount(); ++number) {
        const QTextLine line = layout.lineAt(number);
        if (line.y() + line.height() > top + RoundingTolerance) {
            return number;
        }
    }
    return -1;
}

/// A mark that was taken out of its paragraph.
struct TakenMark
{
    int number = 0;
    int paragraph = 0;
    QTextImageFormat format;
    QTextFrameFormat::Position side = QTextFrameFormat::FloatLeft;
};

TakenMark takeMark(QTextDocument& document, const QTextBlock& block)
{
    TakenMark mark;
    mark.format = block.begin().fragment().charFormat().toImageFormat();
    mark.number = numberOf(mark.format);
    mark.paragraph = block.blockNumber();
    if (const auto* frame = qobject_cast<QTextFrame*>(document.objectForFormat(mark.format))) {
        mark.side = frame->frameFormat().position();
    }
    QTextCursor cursor(block);
    cursor.deleteChar();
    return mark;
}

// Where lines begin to be beside the object. Returns whether that is below the first line.
bool putMark(QTextDocument& document, TakenMark mark, double top)
{
    const QTextBlock block = document.findBlockByNumber(mark.paragraph);
    const int number = lineBeside(*block.layout(), top);
    QTextCursor cursor(block);
    if (number > 0) {
        const QTextLine line = block.layout()->lineAt(number);
        cursor.setPosition(block.position() + line.textStart());
        mark.format.setHeight(std::max(1.0, mark.format.height() - line.y()));
    }
    cursor.insertImage(mark.format, mark.side);
    return number > 0;
}

// Qt keeps the room of marks that are no longer there.
void layOutAgain(::RichTextItem& text)
{
    const double width = text.document()->textWidth();
    text.setHtml(workbench::documentHtml(*text.document()));
    text.document()->setTextWidth(width);
    (void)text.document()->documentLayout()->documentSize();
}

Mark markAt(const QTextDocument& document, const QTextBlock& block, const QTextFragment& fragment)
{
    const QTextImageFormat format = fragment.charFormat().toImageFormat();
    const int inBlock = fragment.position() - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(inBlock);
    const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
    Mark mark;
    mark.number = numberOf(format);
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
            if (isMark(format)) {
                marks.append(markAt(document, block, it.fragment()));
            }
        }
    }
    return marks;
}

QHash<int, double> lowerMarks(workbench::CanvasItem& item,
                              const std::function<double(int number)>& topOf)
{
    auto* const text = dynamic_cast<::RichTextItem*>(item.contractItem());
    QList<TakenMark> taken;
    QHash<int, double> lowered;
    if (text == nullptr) {
        return lowered;
    }
    QTextDocument& document = *text->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        // Marks are at the start of their paragraph.
        const QTextBlock::iterator it = block.begin();
        const bool isBeside = !it.atEnd() && isBesideLines(it.fragment().charFormat());
        if (isBeside &&
            topOf(numberOf(it.fragment().charFormat())) > block.layout()->lineAt(0).height()) {
            taken.append(takeMark(document, block));
        }
    }
    if (taken.isEmpty()) {
        return lowered;
    }
    layOutAgain(*text);
    while (!taken.isEmpty()) {
        const TakenMark mark = taken.takeLast();
        if (putMark(*text->document(), mark, topOf(mark.number))) {
            lowered.insert(mark.number, 0.0);
        }
    }
    layOutAgain(*text);
    for (const Mark& mark : marksOf(item)) {
        if (lowered.contains(mark.number)) {
            const QTextBlock block = text->document()->findBlockByNumber(mark.paragraph);
            lowered[mark.number] =
                mark.top - text->document()->documentLayout()->blockBoundingRect(block).top();
        }
    }
    return lowered;
}

int marksBehind(const QTextBlock& block, int character)
{
    int count = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const bool isBehind = fragment.position() - block.position() >= character;
        count += isBehind && isBesideLines(fragment.charFormat()) ? fragment.length() : 0;
    }
    return count;
}

} // namespace repair

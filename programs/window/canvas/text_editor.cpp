#include "window/canvas/text_editor.h"

#include "window/edit/geometry.h"
#include "workbench/items/label_document.h"
#include "workbench/items/text_layout.h"

#include <QGraphicsScene>
#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

#include <algorithm>
#include <limits>

namespace window {

namespace {

// Share of a line's height that its characters take, for a text that is scaled to its box.
constexpr double CharacterShare = 0.8;

int fontSize(const workbench::ItemValues& values)
{
    const workbench::FontValues font = values.font.value_or(workbench::FontValues());
    if (font.sized || values.type != KestTypes::SimpleText) {
        return font.pointSize;
    }
    const auto lines = values.text->text.count(QLatin1Char('\n')) + 1;
    return std::max(1, int(values.box.size.height() / double(lines) * CharacterShare));
}

bool wraps(const workbench::ItemValues& values)
{
    return values.type == KestTypes::RichText ||
           (values.textLabel && values.font && values.font->sized &&
            (values.textLabel->limiting & 1) != 0);
}

bool isFormatKey(const QKeyEvent& event)
{
    return event.modifiers() == Qt::ControlModifier &&
           (event.key() == Qt::Key_B || event.key() == Qt::Key_I || event.key() == Qt::Key_U);
}

} // namespace

bool TextEditor::canEdit(const workbench::ItemValues& values)
{
    return values.text && !values.placement.readOnly;
}

TextEditor::TextEditor(workbench::CanvasItem& item)
    : m_item(item)
    , m_before(item.values())
    , m_isRich(!m_before.text->html.isEmpty())
{
    const workbench::TextStyleValues style =
        m_before.textStyle.value_or(workbench::TextStyleValues());
    auto* content = new workbench::LabelDocument(this);
    content->setUndoRedoEnabled(true);
    content->setDefaultFont(
        workbench::toFont(m_before.font.value_or(workbench::FontValues()), fontSize(m_before)));
    QTextOption option((style.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setUseDesignMetrics(true);
    option.setWrapMode(wraps(m_before) ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                       : QTextOption::ManualWrap);
    content->setDefaultTextOption(option);
    if (m_isRich) {
        content->setHtml(m_before.text->html);
    } else {
        content->setPlainText(m_before.text->text);
    }
    setDocument(content);
    setDefaultTextColor(style.color);
    const QRectF box = localBox(m_before);
    setTextWidth(wraps(m_before) ? box.width() : std::max(box.width(), content->idealWidth()));
    QTransform place = toCanvas(m_before);
    place.translate(
        0.0, std::max(0.0, workbench::verticalOffset(style.alignment,
                                                     box.height() - content->size().height())));
    setTransform(place);
    setZValue(std::numeric_limits<double>::max());
    setTextInteractionFlags(Qt::TextEditorInteraction);
    item.graphicsItem()->setOpacity(0.0);
    item.graphicsItem()->scene()->addItem(this);
    setFocus();
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::Document);
    setTextCursor(cursor);
    content->setModified(false);
}

TextEditor::~TextEditor()
{
    m_item.graphicsItem()->setOpacity(1.0);
}

ItemChange TextEditor::change() const
{
    ItemChange change{&m_item, m_before, m_before};
    if (!document()->isModified()) {
        return change;
    }
    if (m_isRich) {
        change.after.text->html = workbench::documentHtml(*document());
        change.after.text->text.clear();
    } else {
        change.after.text->text = toPlainText();
    }
    // A document without characters is not a document.
    if (document()->isEmpty()) {
        change.after.text = workbench::TextValues();
    }
    return change;
}

bool TextEditor::isTextKey(const QKeyEvent& event)
{
    constexpr QKeySequence::StandardKey Keys[] = {QKeySequence::Undo,
                                                  QKeySequence::Redo,
                                                  QKeySequence::Cut,
                                                  QKeySequence::Copy,
                                                  QKeySequence::Paste,
                                                  QKeySequence::SelectAll,
                                                  QKeySequence::SelectNextWord,
                                                  QKeySequence::SelectPreviousWord,
                                                  QKeySequence::DeleteEndOfWord,
                                                  QKeySequence::DeleteStartOfWord,
                                                  QKeySequence::MoveToNextWord,
                                                  QKeySequence::MoveToStartOfDocument,
                                                  QKeySequence::MoveToEndOfDocument,
                                                  QKeySequence::SelectStartOfDocument,
                                                  QKeySequence::SelectEndOfDocument,
                                                  QKeySequence::MoveToPreviousWord};
    const bool isCommand = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0 ||
                           (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35);
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return !isCommand || isEnter || isFormatKey(event) ||
           std::any_of(std::begin(Keys), std::end(Keys),
                       [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

void TextEditor::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT finished(false);
    } else if (isEnter && event->modifiers().testFlag(Qt::ControlModifier)) {
        Q_EMIT finished(true);
    } else if (!changeFormat(*event)) {
        QGraphicsTextItem::keyPressEvent(event);
    }
}

bool TextEditor::changeFormat(const QKeyEvent& event)
{
    // A text of a single format has no formats of characters.
    if (!isFormatKey(event) || m_before.type != KestTypes::RichText) {
        return false;
    }
    QTextCursor cursor = textCursor();
    QTextCharFormat format;
    if (event.key() == Qt::Key_B) {
        const bool isBold = cursor.charFormat().fontWeight() >= QFont::Bold;
        format.setFontWeight(isBold ? QFont::Normal : QFont::Bold);
    } else if (event.key() == Qt::Key_I) {
        format.setFontItalic(!cursor.charFormat().fontItalic());
    } else {
        format.setFontUnderline(!cursor.charFormat().fontUnderline());
    }
    if (!m_isRich) {
        // From now on, the document must contain the formats that it inherited from the item.
        QTextCursor all(document());
        all.select(QTextCursor::Document);
        QTextBlockFormat block;
        block.setAlignment(document()->defaultTextOption().alignment() & Qt::AlignHorizontal_Mask);
        all.mergeBlockFormat(block);
        m_isRich = true;
    }
    cursor.mergeCharFormat(format);
    setTextCursor(cursor);
    return true;
}

} // namespace window

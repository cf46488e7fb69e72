#include "workbench/items/label_document.h"

#include "workbench/items/font_families.h"
#include "workbench/items/item_limits.h"

#include <QChildEvent>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextFragment>
#include <QTextFrame>
#include <QVariant>

#include <memory>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

bool isBounded(double size)
{
    return size <= MaximumFontSize;
}

struct Stretch
{
    int begin;
    int end;
};

void boundStretch(QTextDocument& document, const Stretch& stretch)
{
    QTextCursor cursor(&document);
    cursor.setPosition(stretch.begin);
    cursor.setPosition(stretch.end, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setFontPointSize(MaximumFontSize);
    cursor.mergeCharFormat(format);
}

// A parsed document states the plain page that it would have anyway. Written, it would be a table,
// in which Qt reads an empty first paragraph as two.
void forgetPlainPage(QTextDocument& document)
{
    const QTextFrameFormat page = document.rootFrame()->frameFormat();
    const bool isPlain = page.border() == 0.0 && page.padding() == 0.0 && page.topMargin() == 0.0 &&
                         page.bottomMargin() == 0.0 && page.leftMargin() == 0.0 &&
                         page.rightMargin() == 0.0 &&
                         page.width().type() == QTextLength::VariableLength &&
                         page.height().type() == QTextLength::VariableLength;
    if (!isPlain) {
        return;
    }
    document.setDocumentMargin(0.0); // not part of a copy
    QTextFrameFormat plain;
    plain.setMargin(0.0);
    if (page.hasProperty(QTextFormat::BackgroundBrush)) {
        plain.setBackground(page.background());
    }
    document.rootFrame()->setFrameFormat(plain);
}

// In a page with a format of its own, Qt reads an empty first paragraph as two.
void writeOneParagraphLess(const QTextDocument& document, QString& html)
{
    static constexpr QLatin1String Page("-qt-table-type: root"); // no translation: a style in HTML
    const QTextBlock first = document.firstBlock();
    const bool isRead = html.contains(Page) && first.text().isEmpty() && first.next().isValid() &&
                        first.next().text().isEmpty();
    const qsizetype begin = html.indexOf("<p style=\"-qt-paragraph-type:empty"_L1);
    const qsizetype end = html.indexOf("</p>"_L1, begin);
    if (isRead && begin >= 0 && end > begin) {
        html.remove(begin, end + 4 - begin);
    }
}

/// What a document gets instead of a resource.
QVariant emptyResource(int type)
{
    // An empty answer is not enough: the layout would then open the picture's name as a file.
    if (type == QTextDocument::ImageResource) {
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
    return QByteArray();
}

} // namespace

LabelDocument::LabelDocument(QObject* parent)
    : QTextDocument(parent)
{
    prepareDocument(*this);
}

QVariant LabelDocument::loadResource(int type, const QUrl& name)
{
    Q_UNUSED(name)
    return emptyResource(type);
}

ResourceBlocker::ResourceBlocker(QObject& control)
{
    control.installEventFilter(this);
}

QVariant ResourceBlocker::loadResource(int type, const QUrl& name)
{
    Q_UNUSED(name)
    return emptyResource(type);
}

bool ResourceBlocker::eventFilter(QObject* control, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded) {
        static_cast<QChildEvent*>(event)->child()->setParent(this);
    }
    return QObject::eventFilter(control, event);
}

void prepareDocument(QTextDocument& document)
{
    installSubstitutes();
    document.setDocumentMargin(0.0);
    document.setUseDesignMetrics(true);
    document.setUndoRedoEnabled(false);
}

void boundFontSizes(QTextDocument& document)
{
    QList<Stretch> oversized;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!isBounded(fragment.charFormat().fontPointSize())) {
                oversized.append({fragment.position(), fragment.position() + fragment.length()});
            }
        }
    }
    for (const Stretch& stretch : oversized) {
        boundStretch(document, stretch);
    }
}

// A placeholder font that no text uses replaces the item's.
QString documentHtml(const QTextDocument& document)
{
    QFont placeholder(u"-"_s);
    placeholder.setPixelSize(1);
    placeholder.setWeight(QFont::Weight(1));
    const std::unique_ptr<QTextDocument> copy(document.clone());
    copy->setDefaultFont(placeholder);
    forgetPlainPage(*copy);
    static const QRegularExpression bodyStyle(u"<body style=\"[^\"]*\""_s);
    // The page of a parsed document has its own border, of width 0.
    QString html = copy->toHtml()
                       .replace(bodyStyle, u"<body"_s)
                       .replace(u"<table border=\"0\" style=\"-qt-table-type: root;"_s,
                                u"<table style=\"-qt-table-type: root;"_s);
    writeOneParagraphLess(*copy, html);
    return html;
}

QString textOfHtml(const QString& html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().remove(
        QChar::ObjectReplacementCharacter);
}

QString formattedHtml(const QString& html, const QTextCharFormat& format)
{
    LabelDocument document(nullptr);
    document.setHtml(html);
    QList<Stretch> stretches;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const int begin = it.fragment().position();
            stretches.append({begin, begin + it.fragment().length()});
        }
    }
    for (const Stretch& stretch : stretches) {
        QTextCursor cursor(&document);
        cursor.setPosition(stretch.begin);
        cursor.setPosition(stretch.end, QTextCursor::KeepAnchor);
        QTextCharFormat merged = cursor.charFormat();
        if (format.hasProperty(QTextFormat::FontPixelSize)) {
            merged.clearProperty(QTextFormat::FontPointSize);
            merged.clearProperty(QTextFormat::FontSizeAdjustment);
        }
        merged.merge(format);
        cursor.setCharFormat(merged);
    }
    return documentHtml(document);
}

QTextCharFormat sizeFormat(int size)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, size);
    return format;
}

QString alignedHtml(const QString& html, Qt::Alignment alignment)
{
    LabelDocument document(nullptr);
    document.setHtml(html);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    QTextBlockFormat format;
    format.setAlignment(alignment & Qt::AlignHorizontal_Mask);
    cursor.mergeBlockFormat(format);
    return documentHtml(document);
}

} // namespace workbench

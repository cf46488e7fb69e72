#include "workbench/items/label_document.h"

#include "workbench/items/font_families.h"
#include "workbench/items/item_limits.h"

#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QVariant>

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

} // namespace

LabelDocument::LabelDocument(QObject* parent)
    : QTextDocument(parent)
{
    installStandIns();
    setDocumentMargin(0.0);
    setUseDesignMetrics(true);
    setUndoRedoEnabled(false);
}

QVariant LabelDocument::loadResource(int type, const QUrl& name)
{
    Q_UNUSED(name)
    // An empty answer is not enough: the layout would then open the picture's name as a file.
    if (type == QTextDocument::ImageResource) {
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
    return QByteArray();
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

} // namespace workbench

#pragma once

#include <QObject>
#include <QTextCharFormat>
#include <QTextDocument>

namespace workbench {

/// A document for the HTML of a rich text: without margins, laid out in sizes that do not depend on
/// the output. It never loads external resources: HTML is from files, and a file must
/// not make the program open another one.
class LabelDocument final : public QTextDocument
{
public:
    explicit LabelDocument(QObject* parent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

/// Keeps the document that a QGraphicsTextItem creates for itself from loading resources.
///
/// The item creates it in a text control, on the first call that needs one, and setHtml() is such a
/// call and not virtual: no code of ours runs before the HTML is parsed. A document asks its parent
/// before it opens a file; this object becomes the parent before the document is complete.
class ResourceBlocker final : public QObject
{
    Q_OBJECT

public:
    /// @param control the new child of the item, which has no document yet
    explicit ResourceBlocker(QObject& control);

    /// Called by QTextDocument::loadResource().
    Q_INVOKABLE QVariant loadResource(int type, const QUrl& name);

protected:
    bool eventFilter(QObject* control, QEvent* event) override;
};

/// Sets the margins and the layout of a LabelDocument.
void prepareDocument(QTextDocument& document);

/// Reduces font sizes above the largest that is painted.
void boundFontSizes(QTextDocument& document);

/// The document as HTML, without the formats that it inherits from the item's font: read again,
/// they would be explicit.
[[nodiscard]] QString documentHtml(const QTextDocument& document);

/// The characters of a document's HTML, without its pictures.
[[nodiscard]] QString textOfHtml(const QString& html);

/// The HTML of a document with a format added to all its characters.
[[nodiscard]] QString formattedHtml(const QString& html, const QTextCharFormat& format);

/// The format of characters of this size in points.
[[nodiscard]] QTextCharFormat sizeFormat(int size);

/// The HTML of a document with all paragraphs aligned horizontally.
[[nodiscard]] QString alignedHtml(const QString& html, Qt::Alignment alignment);

} // namespace workbench

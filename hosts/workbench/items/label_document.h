#pragma once

#include <QTextCharFormat>
#include <QTextDocument>

namespace workbench {

/// The document of a rich text: without margins, laid out in sizes that do not depend on
/// the output. It never loads external resources: HTML is from files, and a file must
/// not make the program open another one.
class LabelDocument final : public QTextDocument
{
public:
    explicit LabelDocument(QObject* parent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

/// Reduces font sizes above the largest that is painted.
void boundFontSizes(QTextDocument& document);

/// The document as HTML, without the formats that it inherits from the item's font: read again,
/// they would be explicit.
[[nodiscard]] QString documentHtml(const QTextDocument& document);

/// The HTML of a document with a format added to all its characters.
[[nodiscard]] QString formattedHtml(const QString& html, const QTextCharFormat& format);

/// The format of characters of this size in points.
[[nodiscard]] QTextCharFormat sizeFormat(int size);

/// The HTML of a document with all paragraphs aligned horizontally.
[[nodiscard]] QString alignedHtml(const QString& html, Qt::Alignment alignment);

} // namespace workbench

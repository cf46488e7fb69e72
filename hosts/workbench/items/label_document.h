#pragma once

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

} // namespace workbench

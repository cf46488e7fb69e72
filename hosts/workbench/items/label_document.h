#pragma once

#include <QTextDocument>

namespace workbench {

/// The document of a rich text: without margins, laid out in sizes that do not depend on
/// the output, and deaf to everything that its HTML refers to. HTML comes from files, and
/// a file must not make us open another.
class LabelDocument final : public QTextDocument
{
public:
    explicit LabelDocument(QObject* parent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

/// Brings font sizes that no label has down to the largest that is painted.
void boundFontSizes(QTextDocument& document);

} // namespace workbench

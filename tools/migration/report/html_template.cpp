#include "migration/report/html_template.h"

#include <QFile>

namespace migration {

using namespace Qt::StringLiterals;

QByteArray pageResource(const QString& name)
{
    QFile file(u":/migration/"_s + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TemplateData templateText(const QString& text)
{
    QString allowed = text;
    for (QChar& c : allowed) {
        const bool isControl = c.unicode() < 0x20 && c != u'\n' && c != u'\t';
        if (isControl || c.unicode() == 0x7F) {
            c = QChar::ReplacementCharacter;
        }
    }
    return TemplateData(allowed.toStdString());
}

HtmlTemplate::HtmlTemplate(const QString& name)
    : m_template(pageResource(name).toStdString())
{
    if (!m_template.is_valid()) {
        qFatal("The template %s is damaged: %s", qPrintable(name),
               m_template.error_message().c_str());
    }
}

QByteArray HtmlTemplate::filled(const TemplateData& data)
{
    return QByteArray::fromStdString(m_template.render(data));
}

} // namespace migration

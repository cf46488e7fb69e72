#pragma once

#include <QByteArray>
#include <QString>

#include <kainjow/mustache.hpp>

namespace migration {

using TemplateData = kainjow::mustache::data;
using TemplateList = kainjow::mustache::list;

/// A file that is compiled in next to the templates.
[[nodiscard]] QByteArray pageResource(const QString& name);

/// A text of any origin for a template. Templates escape it; characters that HTML does not allow
/// are replaced here.
[[nodiscard]] TemplateData templateText(const QString& text);

/// A template of the HTML report, parsed once.
class HtmlTemplate
{
public:
    /// @param name of a file that is compiled in, "card.html"
    explicit HtmlTemplate(const QString& name);

    [[nodiscard]] QByteArray filled(const TemplateData& data);

private:
    kainjow::mustache::mustache m_template;
};

} // namespace migration

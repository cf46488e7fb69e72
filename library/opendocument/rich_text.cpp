#include "opendocument/rich_text.h"

#include "opendocument/style_fragments.h"

#include <algorithm>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

// The beginning of QTextDocument::toHtml(), so that texts equal those that the host writes.
const QString Document =
    u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
    "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
    "<html><head><meta name=\"qrichtext\" content=\"1\" /><meta charset=\"utf-8\" />"
    "<style type=\"text/css\">\n"
    "p, li { white-space: pre-wrap; }\n"
    "hr { height: 1px; border-width: 0; }\n"
    "li.unchecked::marker { content: \"\\2610\"; }\n"
    "li.checked::marker { content: \"\\2612\"; }\n"
    "</style></head><body %1>%2</body></html>"_s;
const QString Paragraph = u"<p%1%2>"_s;
const QString Span = u"<span%1>"_s;
const QString StyleAttribute = u" style=\"%3%4%5%6%7\""_s;
const QString ZeroMargins =
    u" margin-top:0pt; margin-bottom:0pt; margin-left:0pt; margin-right:0pt;"_s;
const QString EndOfSpan = u"</span>"_s;
const QString EndOfParagraph = u"</p>"_s;

constexpr QLatin1StringView TextTags[] = {"text:span"_L1, "text:h"_L1, "text:p"_L1, "text:date"_L1,
                                          "text:time"_L1};

/// Writes the paragraphs of one shape.
class HtmlWriter
{
public:
    explicit HtmlWriter(const TextStyling& styling)
        : m_styling(styling)
    {}

    void writeParagraph(const xmllimits::Element& paragraph);
    [[nodiscard]] RichText finished() const;

private:
    [[nodiscard]] StyleFragments fragments(const OOTextStyle& style, const OOTextStyle& base) const;
    [[nodiscard]] QString bodyAttribute() const;
    [[nodiscard]] QString paragraphTag(const OOTextStyle& style) const;
    [[nodiscard]] QString spanTag(const OOTextStyle& style, const OOTextStyle& base) const;
    void writeNode(const xmllimits::Node& node, const OOTextStyle& paragraphStyle);
    void writeSpan(const QString& tag, const QString& text);

    const TextStyling& m_styling;
    QString m_paragraphs;
    bool m_isBlank = true;
    qsizetype m_length = 0;
};

StyleFragments HtmlWriter::fragments(const OOTextStyle& style, const OOTextStyle& base) const
{
    return {style, base, m_styling.pointsPerPixel};
}

QString HtmlWriter::bodyAttribute() const
{
    OOTextStyle none;
    none.fontFamily.clear();
    const StyleFragments css(m_styling.defaultStyle, none, m_styling.pointsPerPixel,
                             Fragment::Always);
    return StyleAttribute.arg(css.family(), css.size(), css.weight(), css.slant(),
                              css.decoration());
}

// A paragraph's underline is not written to its tag; only spans show it. Old labels depend on it.
QString HtmlWriter::paragraphTag(const OOTextStyle& style) const
{
    const StyleFragments css = fragments(style, m_styling.defaultStyle);
    const QString attribute =
        StyleAttribute.arg(ZeroMargins, css.family(), css.size(), css.weight(), css.slant());
    return Paragraph.arg(css.alignmentAttribute(), attribute);
}

QString HtmlWriter::spanTag(const OOTextStyle& style, const OOTextStyle& base) const
{
    const StyleFragments css = fragments(style, base);
    return Span.arg(
        StyleAttribute.arg(css.family(), css.size(), css.weight(), css.slant(), css.decoration()));
}

void HtmlWriter::writeSpan(const QString& tag, const QString& text)
{
    m_isBlank = m_isBlank && QStringView(text).trimmed().isEmpty();
    m_length += text.size();
    m_paragraphs += tag + text.toHtmlEscaped() + EndOfSpan;
}

void HtmlWriter::writeNode(const xmllimits::Node& node, const OOTextStyle& paragraphStyle)
{
    const xmllimits::Element element = node.toElement();
    if (node.isText()) {
        writeSpan(Span.arg(QString()), node.nodeValue());
    } else if (element.tagName() == "text:tab"_L1) {
        m_paragraphs += u'\t';
    } else if (element.tagName() == "text:span"_L1) {
        const OOTextStyle& style = m_styling.styleOf(element, paragraphStyle);
        writeSpan(spanTag(style, paragraphStyle), element.text());
    }
}

void HtmlWriter::writeParagraph(const xmllimits::Element& paragraph)
{
    const OOTextStyle& style = m_styling.styleOf(paragraph, m_styling.defaultStyle);
    m_paragraphs += paragraphTag(style);
    for (xmllimits::Node node = paragraph.firstChild(); !node.isNull(); node = node.nextSibling()) {
        writeNode(node, style);
    }
    m_paragraphs += EndOfParagraph;
}

RichText HtmlWriter::finished() const
{
    // Both in one call: a label's text may contain a placeholder such as "%1".
    return {m_isBlank ? QString() : Document.arg(bodyAttribute(), m_paragraphs), m_isBlank,
            m_length};
}

} // namespace

const OOTextStyle& TextStyling::styleOf(const xmllimits::Element& element,
                                        const OOTextStyle& otherwise) const
{
    const auto found = styles.constFind(element.attribute(u"text:style-name"_s));
    return found != styles.constEnd() ? *found : otherwise;
}

RichText toRichText(const xmllimits::Element& shape, const TextStyling& styling)
{
    HtmlWriter writer(styling);
    for (xmllimits::Element child = shape.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (holdsText(child)) {
            writer.writeParagraph(child);
        }
    }
    return writer.finished();
}

bool holdsText(const xmllimits::Element& element)
{
    const QString tag = element.tagName();
    return std::any_of(std::begin(TextTags), std::end(TextTags),
                       [&tag](QLatin1StringView name) { return tag == name; });
}

} // namespace opendocument

#include "repair/html.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/drawing.h"
#include "repair/item_plan.h"
#include "repair/lengths.h"
#include "repair/line_distance.h"
#include "repair/page_notes.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr double DefaultFontSize = 12.0;
// Raised and lowered text; the share of the size if the document gives none.
constexpr double DefaultRaisedShare = 0.58;
// Below this luminance of their ground, from 0 to 255, automatic texts are white.
constexpr int DarkLuminance = 62;

int luminance(const QColor& color)
{
    return (color.blue() * 29 + color.green() * 151 + color.red() * 76) >> 8;
}

QColor automaticColor(const QColor& ground)
{
    const bool isDark = ground.isValid() && luminance(ground) <= DarkLuminance;
    return isDark ? Qt::white : Qt::black;
}

QString cssNumber(double value)
{
    return QString::number(value, 'f', 2);
}

// Fractions of a pixel are only understood in points.
double pointsPerPixel()
{
    const QFontInfo info(QGuiApplication::font());
    return info.pixelSize() > 0 ? info.pointSizeF() / info.pixelSize() : 1.0;
}

/// Writes one text.
class HtmlWriter
{
public:
    HtmlWriter(Document& document, const QColor& ground)
        : m_document(document)
        , m_ground(ground)
        , m_pointsPerPixel(pointsPerPixel())
    {}

    void writeParagraph(const Node& paragraph);
    [[nodiscard]] QString finished() const;

private:
    [[nodiscard]] QString spanStyle(const Properties& text, const QColor& below) const;
    [[nodiscard]] QString paragraphStyle(const Properties& paragraph, double spacing);
    [[nodiscard]] double lineSpacing(const Node& node, const Properties& paragraph);
    [[nodiscard]] Properties textOf(const Node& node, const QString& family) const;

    Document& m_document;
    QColor m_ground;
    double m_pointsPerPixel;
    double m_spaceBefore = 0.0; // points, below the paragraph before
    QString m_html;
};

double sizeOf(const Properties& text)
{
    return toPoints(text.value(u"fo:font-size"_s)).value_or(DefaultFontSize);
}

bool isBold(const Properties& text)
{
    const QString weight = text.value(u"fo:font-weight"_s);
    return weight == "bold"_L1 || weight.toInt() >= 600;
}

// The color behind characters or a paragraph; the one below if theirs is "transparent".
QColor textGround(const Properties& properties, const QColor& below = {})
{
    const QString name = properties.value(u"fo:background-color"_s);
    const QColor own(name);
    return own.isValid() && name.startsWith(u'#') ? own : below;
}

QString groundStyle(const Properties& properties)
{
    const QColor ground = textGround(properties);
    return ground.isValid() ? u"background-color:%1;"_s.arg(ground.name()) : QString();
}

// "super 58%", "sub 58%", "33% 58%"; nothing for text on the line.
QString raisedStyle(const QString& position, double& size)
{
    const QStringList parts = position.split(u' ', Qt::SkipEmptyParts);
    if (parts.isEmpty() || parts[0] == "0%"_L1) {
        return {};
    }
    size *= parts.size() > 1 ? shareOf(parts[1]) : DefaultRaisedShare;
    const bool isLowered = parts[0] == "sub"_L1 || parts[0].startsWith(u'-');
    // Qt shrinks raised text to two thirds itself.
    size *= 1.5;
    return isLowered ? u"vertical-align:sub;"_s : u"vertical-align:super;"_s;
}

QString HtmlWriter::spanStyle(const Properties& text, const QColor& below) const
{
    double size = sizeOf(text);
    QString style = raisedStyle(text.value(u"style:text-position"_s), size);
    style += u"font-size:%1pt;"_s.arg(cssNumber(size * m_pointsPerPixel));
    const QString family = text.value(u"style:font-name"_s);
    if (!family.isEmpty()) {
        style += u"font-family:'%1';"_s.arg(family.toHtmlEscaped());
    }
    style += u"font-weight:%1;"_s.arg(isBold(text) ? 700 : 400);
    if (const QString slant = text.value(u"fo:font-style"_s);
        slant == "italic"_L1 || slant == "oblique"_L1) {
        style += u"font-style:italic;"_s;
    }
    QString decoration;
    const QString underline = text.value(u"style:text-underline-style"_s);
    const QString strike = text.value(u"style:text-line-through-style"_s);
    if (!underline.isEmpty() && underline != "none"_L1) {
        decoration += u" underline"_s;
    }
    if (!strike.isEmpty() && strike != "none"_L1) {
        decoration += u" line-through"_s;
    }
    if (!decoration.isEmpty()) {
        style += u"text-decoration:%1;"_s.arg(decoration);
    }
    const bool isAutomatic = text.value(u"style:use-window-font-color"_s) == "true"_L1;
    const QColor color(isAutomatic ? QString() : text.value(u"fo:color"_s));
    style += u"color:%1;"_s.arg(
        (color.isValid() ? color : automaticColor(textGround(text, below))).name());
    style += groundStyle(text);
    if (text.value(u"fo:font-variant"_s) == "small-caps"_L1) {
        style += u"font-variant:small-caps;"_s;
    }
    if (const QString change = text.value(u"fo:text-transform"_s);
        change == "uppercase"_L1 || change == "lowercase"_L1 || change == "capitalize"_L1) {
        style += u"text-transform:%1;"_s.arg(change);
    }
    if (const auto spacing = toPoints(text.value(u"fo:letter-spacing"_s))) {
        style += u"letter-spacing:%1px;"_s.arg(cssNumber(*spacing));
    }
    return style;
}

double HtmlWriter::lineSpacing(const Node& node, const Properties& paragraph)
{
    Properties largest = textOf(node, u"paragraph"_s);
    // The largest font, and of several the one with most characters.
    double size = 0.0;
    qsizetype length = 0;
    for (const auto& span : node.children) {
        const Properties text = textOf(*span, u"text"_s);
        const qsizetype characters = span->allText().size();
        if (sizeOf(text) > size || (sizeOf(text) == size && characters > length)) {
            largest = text;
            size = sizeOf(text);
            length = characters;
        }
    }
    const QString height = paragraph.value(u"fo:line-height"_s);
    const double wanted = height.endsWith(u'%') ? shareOf(height) : 1.0;
    return 100.0 * wanted *
           exactLineShare(largest.value(u"style:font-name"_s), isBold(largest), sizeOf(largest),
                          m_pointsPerPixel, m_document.spaces.inLines);
}

// The spaces between two paragraphs add up, where Qt takes the larger one.
QString HtmlWriter::paragraphStyle(const Properties& paragraph, double spacing)
{
    const auto length = [&paragraph](const QString& name) {
        return toPoints(paragraph.value(name)).value_or(0.0);
    };
    const double above = length(u"fo:margin-top"_s) + m_spaceBefore;
    m_spaceBefore = length(u"fo:margin-bottom"_s);
    return u"white-space:pre-wrap;margin-top:%1px;margin-bottom:0px;margin-left:%2px;"
           "margin-right:%3px;text-indent:%4px;line-height:%5%;"_s.arg(
               cssNumber(above), cssNumber(length(u"fo:margin-left"_s)),
               cssNumber(length(u"fo:margin-right"_s)), cssNumber(length(u"fo:text-indent"_s)),
               cssNumber(spacing)) +
           groundStyle(paragraph);
}

QString textAlignmentOf(const Properties& paragraph)
{
    const QString align = paragraph.value(u"fo:text-align"_s);
    if (align == "center"_L1 || align == "justify"_L1) {
        return align;
    }
    return align == "end"_L1 || align == "right"_L1 ? u"right"_s : u"left"_s;
}

Properties HtmlWriter::textOf(const Node& node, const QString& family) const
{
    return m_document.table().resolved(family, node.attribute(u"text:style-name"), false).text;
}

// Invisible pictures that keep the room of objects.
QString marksHtml(const Node& node)
{
    QString html;
    for (const QString& mark : node.attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts)) {
        const QStringList parts = mark.split(u' ');
        if (parts.size() == 4 && takesRoom(mark)) {
            const QString side = parts[3];
            const QString style = side == "none"_L1 || side == NoteSide
                                      ? QString()
                                      : u" style=\"float:%1;\""_s.arg(side);
            html += u"<img src=\"%1%2\" width=\"%3\" height=\"%4\"%5 />"_s.arg(
                MarkPrefix, parts[0], parts[1], parts[2], style);
        }
    }
    return html;
}

// A line with an object is higher than its font.
bool hasMarkInLine(const Node& paragraph)
{
    const auto isInLine = [](const Node& node) {
        return node.attribute(MarksAttribute).contains(" none"_L1);
    };
    return isInLine(paragraph) ||
           std::any_of(paragraph.children.begin(), paragraph.children.end(),
                       [&isInLine](const auto& span) { return isInLine(*span); });
}

void HtmlWriter::writeParagraph(const Node& paragraph)
{
    const StyleProperties style =
        m_document.table().resolved(u"paragraph"_s, paragraph.attribute(u"text:style-name"), false);
    const bool isEmpty = paragraph.children.empty();
    const QColor ground = textGround(style.paragraph, m_ground);
    m_html += u"<p align=\"%1\" style=\"%2%3%4\">"_s.arg(
        textAlignmentOf(style.paragraph), isEmpty ? u"-qt-paragraph-type:empty;"_s : QString(),
        paragraphStyle(style.paragraph,
                       hasMarkInLine(paragraph) ? 100.0 : lineSpacing(paragraph, style.paragraph)),
        isEmpty ? spanStyle(style.text, ground) : QString());
    if (isEmpty) {
        m_html += u"<br />"_s;
    }
    for (const auto& span : paragraph.children) {
        m_html += marksHtml(*span);
        if (!span->hasAttribute(HolderAttribute)) {
            m_html += u"<span style=\"%1\">%2</span>"_s.arg(
                spanStyle(textOf(*span, u"text"_s), ground), span->allText().toHtmlEscaped());
        }
    }
    m_html += marksHtml(paragraph) + u"</p>"_s;
}

QString HtmlWriter::finished() const
{
    return u"<html><head><meta charset=\"utf-8\" /></head><body>%1</body></html>"_s.arg(m_html);
}

} // namespace

QString toHtml(Document& document, const Node& container, const QColor& ground)
{
    HtmlWriter writer(document, ground);
    for (const auto& child : container.children) {
        if (child->is(u"text:p")) {
            writer.writeParagraph(*child);
        }
    }
    return writer.finished();
}

} // namespace repair

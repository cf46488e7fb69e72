#include "limits/svg/svg_sanitizer.h"

#include "limits/svg/svg_embedded_image.h"
#include "limits/svg/svg_limits.h"
#include "limits/svg/svg_references.h"
#include "limits/svg/svg_values.h"
#include "limits/xml/xml_limits.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace svglimits {

namespace {

constexpr QStringView SvgNamespace = u"http://www.w3.org/2000/svg";
constexpr QStringView XLinkNamespace = u"http://www.w3.org/1999/xlink";
constexpr QStringView XmlNamespace = u"http://www.w3.org/XML/1998/namespace";

/// Elements that are left out with their content: scripts, animations, foreign content.
constexpr std::array<QStringView, 12> Forbidden{
    u"script", u"foreignObject",    u"animate", u"animateColor", u"animateMotion",
    u"set",    u"animateTransform", u"handler", u"listener",     u"video",
    u"audio",  u"font-face-uri"};
/// Elements that are left out if their reference is.
constexpr std::array<QStringView, 5> NeedReference{u"image", u"use", u"feImage", u"tref", u"mpath"};
/// Attributes of the outermost element that SvgRoot holds.
constexpr std::array<QStringView, 4> RootSizes{u"width", u"height", u"viewBox",
                                               u"preserveAspectRatio"};

[[nodiscard]] QString attributeText(QStringView name, const QString& value)
{
    QString escaped = value.toHtmlEscaped();
    escaped.replace(u'\n', u"&#10;"_s).replace(u'\t', u"&#9;"_s);
    return u' ' + name.toString() + u"=\""_s + escaped + u'"';
}

class SvgSanitizer
{
public:
    SvgSanitizer(const QByteArray& svg, LengthUnits units, bool keepDashes)
        : m_reader(svg)
        , m_filter(units, keepDashes)
    {}

    [[nodiscard]] bool run();
    [[nodiscard]] SafeSvg result() const { return {m_root, m_body}; }
    [[nodiscard]] double dashes() const { return m_filter.dashes(); }

private:
    [[nodiscard]] bool readRoot();
    [[nodiscard]] bool isWithinLimits() const;
    [[nodiscard]] bool isAllowed() const;
    void readElement();
    void writeElement(const QString& target);
    void writeAttributes();
    void endElement();
    void readText();
    [[nodiscard]] QString reference();
    [[nodiscard]] QStringList targets(const QString& reference) const;

    QXmlStreamReader m_reader;
    SvgAttributeFilter m_filter;
    SvgRoot m_root;
    QString m_body;
    SvgReferences m_references;
    QStringList m_open;
    int m_elements = 0;
    qsizetype m_styleText = 0;
    qint64 m_imagePixels = 0;
};

bool SvgSanitizer::isAllowed() const
{
    const QStringView space = m_reader.namespaceUri();
    return (space.isEmpty() || space == SvgNamespace) && !contains(Forbidden, m_reader.name()) &&
           SvgAttributeFilter::hasCoordinatesWithinLimits(m_reader.attributes());
}

bool SvgSanitizer::readRoot()
{
    if (!m_reader.readNextStartElement() || m_reader.name() != u"svg" || !isAllowed()) {
        return false;
    }
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_root = {attributes.value(QLatin1String("width")).toString(),
              attributes.value(QLatin1String("height")).toString(),
              attributes.value(QLatin1String("viewBox")).toString(),
              attributes.value(QLatin1String("preserveAspectRatio")).toString()};
    m_references.beginElement(attributes.value(QLatin1String("id")).toString(), {});
    m_open << u"svg"_s;
    writeAttributes();
    m_body += u'>';
    return true;
}

bool SvgSanitizer::run()
{
    if (!readRoot()) {
        return false;
    }
    while (!m_open.isEmpty() && !m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            readElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            readText();
            break;
        default: // comments, processing instructions, document type
            break;
        }
        if (!isWithinLimits()) {
            return false;
        }
    }
    return m_open.isEmpty() && !m_reader.hasError() && m_references.isWithinLimits();
}

bool SvgSanitizer::isWithinLimits() const
{
    return m_open.size() <= Depth && m_elements <= Elements && m_styleText <= StyleText;
}

void SvgSanitizer::readElement()
{
    ++m_elements;
    if (!isAllowed()) {
        m_reader.skipCurrentElement();
        return;
    }
    const QString target = reference();
    if (target.isEmpty() && contains(NeedReference, m_reader.name())) {
        m_reader.skipCurrentElement();
    } else {
        writeElement(target);
    }
}

void SvgSanitizer::writeElement(const QString& target)
{
    const QString name = m_reader.name().toString();
    const QString id = m_reader.attributes().value(QLatin1String("id")).toString();
    m_references.beginElement(id, targets(target));
    m_open << name;
    m_body += u'<' + name;
    writeAttributes();
    if (!target.isEmpty()) {
        m_body += attributeText(u"xlink:href", target);
    }
    m_body += u'>';
}

void SvgSanitizer::endElement()
{
    m_body += u"</"_s + m_open.takeLast() + u'>';
    m_references.endElement();
}

void SvgSanitizer::readText()
{
    const QString text = m_reader.text().toString();
    if (m_open.last() == u"style") {
        m_styleText += text.size();
        m_body += m_filter.styleSheet(text).toHtmlEscaped();
    } else {
        m_body += text.toHtmlEscaped();
    }
}

/// The element's reference if its target is inside the document, else nothing.
QString SvgSanitizer::reference()
{
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        if (attribute.name() != u"href") {
            continue;
        }
        const QString value = attribute.value().toString().trimmed();
        if (m_reader.name() != u"image") {
            return value.startsWith(u'#') && value.size() > 1 ? value : QString();
        }
        const std::optional<EmbeddedImage> image = readEmbeddedImage(value);
        if (!image || m_imagePixels + image->pixels > AllImagePixels) {
            return {};
        }
        m_imagePixels += image->pixels;
        return image->uri;
    }
    return {};
}

/// The elements that the current one draws in addition to its own children.
QStringList SvgSanitizer::targets(const QString& reference) const
{
    QStringList names;
    if (reference.startsWith(u'#') && m_reader.name() != u"a") {
        names << reference.mid(1);
    }
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        names << urlFragments(attribute.value());
    }
    return names;
}

void SvgSanitizer::writeAttributes()
{
    const bool isRoot = m_open.size() == 1;
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        const QStringView space = attribute.namespaceUri();
        if (space == XmlNamespace && attribute.name() == u"space") {
            m_body += attributeText(u"xml:space", attribute.value().toString());
        }
        if (!space.isEmpty() || (isRoot && contains(RootSizes, attribute.name()))) {
            continue;
        }
        const QString value = m_filter.valueOf(attribute);
        if (!value.isEmpty()) {
            m_body += attributeText(attribute.name(), value);
        }
    }
}

} // namespace

QByteArray SafeSvg::document() const
{
    QString sizes;
    const std::array<const QString*, RootSizes.size()> values{&root.width, &root.height,
                                                              &root.viewBox, &root.aspectRatio};
    for (std::size_t i = 0; i < RootSizes.size(); ++i) {
        sizes += values[i]->isEmpty() ? QString() : attributeText(RootSizes[i], *values[i]);
    }
    return document(sizes);
}

QByteArray SafeSvg::document(const QString& sizeAttributes) const
{
    return u"<svg xmlns=\"%1\" xmlns:xlink=\"%2\""_s.arg(SvgNamespace, XLinkNamespace)
        .append(sizeAttributes)
        .append(body)
        .toUtf8();
}

std::optional<SafeSvg> sanitizeSvg(const QByteArray& svg, LengthUnits units)
{
    if (svg.isEmpty() || svg.size() > DocumentBytes ||
        xmllimits::exceededLimit(svg, TreeBytes, xmllimits::DomCosts)) {
        return std::nullopt;
    }
    for (const bool keepDashes : {true, false}) {
        SvgSanitizer sanitizer(svg, units, keepDashes);
        if (!sanitizer.run()) {
            return std::nullopt;
        }
        // Dashes far smaller than their outline would be drawn one by one.
        if (!keepDashes || sanitizer.dashes() <= Dashes) {
            return sanitizer.result();
        }
    }
    return std::nullopt;
}

} // namespace svglimits

#include "workbench/symbols/svg_sanitizer.h"

#include "workbench/symbols/svg_css.h"
#include "workbench/symbols/svg_embedded_image.h"
#include "workbench/symbols/svg_length.h"
#include "workbench/symbols/svg_limits.h"
#include "workbench/symbols/svg_numbers.h"
#include "workbench/symbols/svg_references.h"
#include "limits/xml/markup_scanner.h"
#include "limits/xml/readings.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>

namespace workbench::symbols {

namespace {

constexpr QStringView SvgNamespace = u"http://www.w3.org/2000/svg";
constexpr QStringView XLinkNamespace = u"http://www.w3.org/1999/xlink";
constexpr QStringView XmlNamespace = u"http://www.w3.org/XML/1998/namespace";

/// Elements that are left out with all that stands in them: a label neither runs nor moves.
constexpr std::array<QStringView, 12> Forbidden{
    u"script", u"foreignObject",    u"animate", u"animateColor", u"animateMotion",
    u"set",    u"animateTransform", u"handler", u"listener",     u"video",
    u"audio",  u"font-face-uri"};
/// Elements that are nothing without what they refer to.
constexpr std::array<QStringView, 5> NeedReference{u"image", u"use", u"feImage", u"tref", u"mpath"};
/// Attributes that hold coordinates.
constexpr std::array<QStringView, 20> Geometry{
    u"x",  u"y",  u"width", u"height", u"x1",        u"y1",          u"x2",
    u"y2", u"cx", u"cy",    u"dx",     u"dy",        u"r",           u"rx",
    u"ry", u"d",  u"fx",    u"points", u"transform", u"stroke-width"};
/// Attributes that hold one length, whose unit the renderer would take for 1/90 inch.
constexpr std::array<QStringView, 19> Lengths{
    u"x",  u"y",  u"width", u"height", u"x1", u"y1", u"x2", u"y2",           u"cx",       u"cy",
    u"dx", u"dy", u"r",     u"rx",     u"ry", u"fx", u"fy", u"stroke-width", u"font-size"};

template <std::size_t Size>
[[nodiscard]] bool contains(const std::array<QStringView, Size>& names, QStringView name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

[[nodiscard]] QString plainNumber(double value)
{
    return QString::number(value, 'g', 12);
}

/// A length with a unit becomes a plain number; everything else stays as it is.
[[nodiscard]] QString inUserUnits(QStringView name, const QString& value)
{
    if (!contains(Lengths, name))
        return value;
    const std::optional<SvgLength> length = parseSvgLength(value);
    if (!length || length->percent)
        return value;
    if (name == u"font-size")
        return plainNumber(std::clamp(length->inUserUnits(), 0.0, limits::FontSize));
    return plainNumber(length->inUserUnits());
}

class SvgSanitizer
{
public:
    SvgSanitizer(const QByteArray& svg, bool keepDashes)
        : m_reader(svg)
        , m_keepDashes(keepDashes)
    {}

    [[nodiscard]] bool run();
    [[nodiscard]] SafeSvg result() const { return {m_root, m_body}; }
    /// About as many dashes as the drawing's outlines may have.
    [[nodiscard]] double dashes() const
    {
        return m_dashPeriod > 0.0 ? m_coordinates * m_greatest / m_dashPeriod : 0.0;
    }

private:
    [[nodiscard]] bool readRoot();
    [[nodiscard]] bool isBounded() const;
    void readElement();
    void writeElement(const QString& target);
    void writeAttributes();
    void endElement();
    void readText();
    [[nodiscard]] bool isWanted() const;
    [[nodiscard]] QString attributeValue(const QXmlStreamAttribute& attribute);
    [[nodiscard]] QString styleValue(const QString& name, const QString& value);
    [[nodiscard]] QString reference();
    [[nodiscard]] QStringList targets(const QString& reference) const;
    void measure(QStringView name, QStringView value);
    void measureDashes(const QString& value);
    void writeAttribute(QStringView name, const QString& value);

    QXmlStreamReader m_reader;
    bool m_keepDashes;
    SvgRoot m_root;
    QString m_body;
    SvgReferences m_references;
    QStringList m_open;
    int m_elements = 0;
    qsizetype m_styleText = 0;
    qint64 m_imagePixels = 0;
    double m_coordinates = 0.0;
    double m_greatest = 0.0;
    double m_dashPeriod = 0.0;
};

[[nodiscard]] bool hasTamedNumbers(const QXmlStreamAttributes& attributes)
{
    return std::all_of(attributes.begin(), attributes.end(), [](const QXmlStreamAttribute& each) {
        return !contains(Geometry, each.name()) ||
               summarizeNumbers(each.value()).greatest <= limits::Coordinate;
    });
}

bool SvgSanitizer::isWanted() const
{
    const QStringView space = m_reader.namespaceUri();
    return (space.isEmpty() || space == SvgNamespace) && !contains(Forbidden, m_reader.name()) &&
           hasTamedNumbers(m_reader.attributes());
}

bool SvgSanitizer::readRoot()
{
    if (!m_reader.readNextStartElement() || m_reader.name() != u"svg" || !isWanted())
        return false;
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_root = {attributes.value(QLatin1String("width")).toString(),
              attributes.value(QLatin1String("height")).toString(),
              attributes.value(QLatin1String("viewBox")).toString(),
              attributes.value(QLatin1String("preserveAspectRatio")).toString()};
    m_references.beginElement(attributes.value(QLatin1String("id")).toString(), {});
    m_open << QStringLiteral("svg");
    writeAttributes();
    m_body += u'>';
    return true;
}

bool SvgSanitizer::run()
{
    if (!readRoot())
        return false;
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
        default: // comments, processing instructions, document type: left out
            break;
        }
        if (!isBounded())
            return false;
    }
    return m_open.isEmpty() && !m_reader.hasError() && m_references.isBounded();
}

bool SvgSanitizer::isBounded() const
{
    return m_open.size() <= limits::Depth && m_elements <= limits::Elements &&
           m_styleText <= limits::StyleText;
}

void SvgSanitizer::readElement()
{
    ++m_elements;
    if (!isWanted()) {
        m_reader.skipCurrentElement();
        return;
    }
    const QString target = reference();
    if (target.isEmpty() && contains(NeedReference, m_reader.name()))
        m_reader.skipCurrentElement();
    else
        writeElement(target);
}

void SvgSanitizer::writeElement(const QString& target)
{
    const QString name = m_reader.name().toString();
    const QString id = m_reader.attributes().value(QLatin1String("id")).toString();
    m_references.beginElement(id, targets(target));
    m_open << name;
    m_body += u'<' + name;
    writeAttributes();
    if (!target.isEmpty())
        writeAttribute(u"xlink:href", target);
    m_body += u'>';
}

void SvgSanitizer::endElement()
{
    m_body += QStringLiteral("</") + m_open.takeLast() + u'>';
    m_references.endElement();
}

void SvgSanitizer::readText()
{
    const QString text = m_reader.text().toString();
    const bool sheet = m_open.last() == u"style";
    if (sheet) {
        m_styleText += text.size();
        for (const QString& dashes : dashArrays(text))
            measureDashes(dashes);
    }
    m_body += (sheet ? filterStyleSheet(text, m_keepDashes) : text).toHtmlEscaped();
}

/// The element's reference if it stays inside the document, else nothing.
QString SvgSanitizer::reference()
{
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        if (attribute.name() != u"href")
            continue;
        const QString value = attribute.value().toString().trimmed();
        if (m_reader.name() != u"image")
            return value.startsWith(u'#') && value.size() > 1 ? value : QString();
        const std::optional<EmbeddedImage> image = readEmbeddedImage(value);
        if (!image || m_imagePixels + image->pixels > limits::AllImagePixels)
            return {};
        m_imagePixels += image->pixels;
        return image->uri;
    }
    return {};
}

/// The elements that the present one draws beside its own children.
QStringList SvgSanitizer::targets(const QString& reference) const
{
    QStringList names;
    if (reference.startsWith(u'#') && m_reader.name() != u"a")
        names << reference.mid(1);
    for (const QXmlStreamAttribute& attribute : m_reader.attributes())
        names << urlFragments(attribute.value());
    return names;
}

void SvgSanitizer::writeAttributes()
{
    static constexpr std::array<QStringView, 4> sizes{u"width", u"height", u"viewBox",
                                                      u"preserveAspectRatio"};
    const bool root = m_open.size() == 1;
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        const QStringView space = attribute.namespaceUri();
        if (space == XmlNamespace && attribute.name() == u"space")
            writeAttribute(u"xml:space", attribute.value().toString());
        if (!space.isEmpty() || (root && contains(sizes, attribute.name())))
            continue;
        const QString value = attributeValue(attribute);
        if (!value.isEmpty())
            writeAttribute(attribute.name(), value);
    }
}

QString SvgSanitizer::attributeValue(const QXmlStreamAttribute& attribute)
{
    const QString name = attribute.name().toString();
    const QString value = attribute.value().toString();
    if (name == u"href" || name == u"src" || name.startsWith(u"on", Qt::CaseInsensitive))
        return {};
    if (name == u"style")
        return filterDeclarations(value, [this](const QString& property, const QString& text) {
            return styleValue(property, text);
        });
    return pointsOutside(value) ? QString() : styleValue(name, value);
}

QString SvgSanitizer::styleValue(const QString& name, const QString& value)
{
    if (name == u"stroke-dasharray") {
        measureDashes(value);
        return m_keepDashes ? value : QString();
    }
    measure(name, value);
    return inUserUnits(name, value);
}

void SvgSanitizer::measure(QStringView name, QStringView value)
{
    if (!contains(Geometry, name) || name == u"transform")
        return;
    const NumberSummary numbers = summarizeNumbers(value);
    m_coordinates += static_cast<double>(numbers.count);
    m_greatest = std::max(m_greatest, numbers.greatest);
}

void SvgSanitizer::measureDashes(const QString& value)
{
    const double period = summarizeNumbers(value).sum;
    if (period > 0.0)
        m_dashPeriod = m_dashPeriod > 0.0 ? std::min(m_dashPeriod, period) : period;
}

void SvgSanitizer::writeAttribute(QStringView name, const QString& value)
{
    QString escaped = value.toHtmlEscaped();
    escaped.replace(u'\n', QStringLiteral("&#10;")).replace(u'\t', QStringLiteral("&#9;"));
    m_body += u' ' + name.toString() + QStringLiteral("=\"") + escaped + u'"';
}

/// The parser itself is slow for some documents: it compares every attribute of an element
/// with every other.
[[nodiscard]] bool exceedsMarkupBounds(const QByteArray& svg)
{
    const QList<QByteArray> readings = xmlbounds::readingsOf(svg);
    return std::any_of(readings.begin(), readings.end(), [](const QByteArray& reading) {
        return xmlbounds::findExcess(reading, limits::TreeBytes).has_value();
    });
}

} // namespace

QByteArray SafeSvg::document(const QString& sizeAttributes) const
{
    return QStringLiteral("<svg xmlns=\"%1\" xmlns:xlink=\"%2\"")
        .arg(SvgNamespace, XLinkNamespace)
        .append(sizeAttributes)
        .append(body)
        .toUtf8();
}

std::optional<SafeSvg> sanitizeSvg(const QByteArray& svg)
{
    if (svg.isEmpty() || svg.size() > limits::DocumentBytes || exceedsMarkupBounds(svg))
        return std::nullopt;
    for (const bool keepDashes : {true, false}) {
        SvgSanitizer sanitizer(svg, keepDashes);
        if (!sanitizer.run())
            return std::nullopt;
        // Dashes far smaller than what they are on would be drawn one by one.
        if (!keepDashes || sanitizer.dashes() <= limits::Dashes)
            return sanitizer.result();
    }
    return std::nullopt;
}

} // namespace workbench::symbols

#include "opendocument/style_fragments.h"

#include "host/services/basic_conversions.h"

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

constexpr double SameSize = 0.0005;

} // namespace

StyleFragments::StyleFragments(const OOTextStyle& style, const OOTextStyle& base,
                               double pointsPerPixel, Fragment when)
    : m_style(style)
    , m_base(base)
    , m_pointsPerPixel(pointsPerPixel)
    , m_always(when == Fragment::Always)
{}

// A family is never repeated, even if forced: the document's own is compared with none.
QString StyleFragments::family() const
{
    if (m_style.fontFamily == m_base.fontFamily) {
        return {};
    }
    return u" font-family:'%1';"_s.arg(m_style.fontFamily.toHtmlEscaped());
}

QString StyleFragments::size() const
{
    if (!m_always && BasicConversions::almostEqual(m_style.fontSize, m_base.fontSize, SameSize)) {
        return {};
    }
    return u" font-size:%1pt;"_s.arg(QString::number(m_style.fontSize * m_pointsPerPixel, 'f', 2));
}

QString StyleFragments::weight() const
{
    if (!m_always && m_style.bold == m_base.bold) {
        return {};
    }
    return m_style.bold ? u" font-weight:700;"_s : u" font-weight:400;"_s;
}

QString StyleFragments::slant() const
{
    if (!m_always && m_style.italic == m_base.italic) {
        return {};
    }
    return m_style.italic ? u" font-style:italic;"_s : u" font-style:normal;"_s;
}

QString StyleFragments::decoration() const
{
    if (!m_always && m_style.underline == m_base.underline) {
        return {};
    }
    return m_style.underline ? u" text-decoration:underline;"_s : u" text-decoration:none;"_s;
}

QString StyleFragments::alignmentAttribute() const
{
    if (!m_always && m_style.alignment == m_base.alignment) {
        return {};
    }
    if (m_style.alignment == Qt::AlignRight) {
        return u" align=\"right\""_s;
    }
    if (m_style.alignment == Qt::AlignHCenter) {
        return u" align=\"center\""_s;
    }
    return m_always || m_style.alignment == Qt::AlignLeft ? u" align=\"left\""_s : QString();
}

} // namespace opendocument

#include "migration/census/open_document_styles_reader.h"

#include <algorithm>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

bool hasMargins(const QXmlStreamAttributes& attributes)
{
    const QString margins = attributes.value("fo:margin"_L1).toString() +
                            attributes.value("fo:margin-top"_L1).toString() +
                            attributes.value("fo:margin-left"_L1).toString();
    return std::any_of(margins.begin(), margins.end(),
                       [](QChar c) { return c >= u'1' && c <= u'9'; });
}

bool isHeaderOrFooter(const QString& name)
{
    return name.startsWith("style:header"_L1) || name.startsWith("style:footer"_L1);
}

} // namespace

void StylesReader::open(const QString& name, const QXmlStreamAttributes& attributes)
{
    ++m_depth;
    if (m_masterDepth == 0) {
        openOutside(name, attributes);
    } else if (m_skipDepth == 0) {
        openOnMasterPage(name, attributes);
    }
}

void StylesReader::openOutside(const QString& name, const QXmlStreamAttributes& attributes)
{
    m_styles.book.take(name, attributes);
    m_isInLayout = name == "style:page-layout"_L1 || (m_isInLayout && name != "style:style"_L1);
    if (name == "style:page-layout"_L1) {
        m_styles.layouts.append({attributes.value("style:name"_L1).toString(), {}, {}});
    } else if (name == "style:page-layout-properties"_L1 && !m_styles.layouts.isEmpty()) {
        m_styles.layouts.last().width = attributes.value("fo:page-width"_L1).toString();
        m_styles.layouts.last().height = attributes.value("fo:page-height"_L1).toString();
        m_styles.layouts.last().isSizeAssumed = attributes.hasAttribute("labelport:assumed"_L1);
        m_styles.layouts.last().hasMargins = hasMargins(attributes);
        const QStringView shadow = attributes.value("style:shadow"_L1);
        m_styles.layouts.last().hasShadow = !shadow.isEmpty() && shadow != "none"_L1;
    } else if (m_isInLayout && name == "style:columns"_L1) {
        m_styles.layouts.last().hasColumns = attributes.value("fo:column-count"_L1).toInt() > 1;
    } else if (name == "style:master-page"_L1) {
        m_masterDepth = m_depth;
        m_styles.masterPages.append({attributes.value("style:name"_L1).toString(),
                                     attributes.value("style:page-layout-name"_L1).toString(),
                                     {}});
    }
}

void StylesReader::openOnMasterPage(const QString& name, const QXmlStreamAttributes& attributes)
{
    if (attributes.value("presentation:placeholder"_L1) == "true"_L1) {
        m_skipDepth = m_depth; // not printed
        return;
    }
    if (m_walkDepth == 0) {
        m_walkDepth = m_depth;
        m_walker.emplace(m_styles.masterPages.last().census, m_styles.book, QString());
        m_walker->startLost(isHeaderOrFooter(name) ? LossKind::HeaderOrFooter
                                                   : LossKind::MasterPageObject);
    }
    m_walker->open(name, attributes);
}

void StylesReader::text(QStringView characters)
{
    if (m_walkDepth != 0 && m_skipDepth == 0) {
        m_walker->text(characters);
    }
}

void StylesReader::close()
{
    if (m_walkDepth != 0 && m_skipDepth == 0) {
        m_walker->close();
    }
    m_skipDepth = m_depth == m_skipDepth ? 0 : m_skipDepth;
    m_walkDepth = m_depth == m_walkDepth ? 0 : m_walkDepth;
    m_masterDepth = m_depth == m_masterDepth ? 0 : m_masterDepth;
    --m_depth;
}

} // namespace migration

#include "repair/paragraph_spaces.h"

#include "repair/document.h"
#include "repair/flow_step.h"
#include "repair/lengths.h"
#include "repair/page_end.h"
#include "repair/shape_place.h"

#include <QHash>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 SettingsBytes = 4LL << 20; // of the tree; real ones have some hundred values
const QString Above = u"fo:margin-top"_s;
const QString Below = u"fo:margin-bottom"_s;

double spaceOf(const Properties& paragraph, const QString& side)
{
    return toPoints(paragraph.value(side)).value_or(0.0);
}

} // namespace

SpaceRules readSpaceRules(const Document& document)
{
    QHash<QString, bool> values;
    if (const auto settings = parseTree(document.readMember(u"settings.xml"_s), SettingsBytes)) {
        forEachElement(*settings, [&values](const Node& node) {
            if (node.is(u"config:config-item")) {
                values.insert(node.attribute(u"config:name"), node.allText() != "false"_L1);
            }
        });
    }
    return {values.value(u"AddParaTableSpacing"_s, true),
            values.value(u"AddParaTableSpacingAtStart"_s, true),
            values.value(u"AddParaSpacingToTableCells"_s, true),
            values.value(u"AddExternalLeading"_s, true)};
}

ParagraphSpaces::ParagraphSpaces(Document& document, const Node& frame)
    : m_document(document)
    , m_isJoined(document.wasText)
    , m_isAtStart(!frame.hasAttribute(FlowsAttribute) || frame.attribute(RowAttribute).toInt() == 1)
    , m_isCell(frame.hasAttribute(FillsRowAttribute))
    , m_flows(frame.hasAttribute(FlowsAttribute))
{}

void ParagraphSpaces::takeBackBelow()
{
    m_shown.paragraph.insert(Below, toInches(0.0));
    written(*m_paragraph, m_shown);
}

void ParagraphSpaces::join(const QString& styleName, Properties& paragraph, const QMarginsF& insets)
{
    if (!m_isJoined) {
        return;
    }
    const QString named = m_document.table().namedStyle(styleName);
    const bool isContextual = paragraph.value(u"style:contextual-spacing"_s) == "true"_L1;
    double above = spaceOf(paragraph, Above);
    if (m_paragraph == nullptr) {
        above = m_isAtStart && !m_document.spaces.atStart ? 0.0 : above;
    } else {
        const bool isSame = named == m_named;
        if (isSame && m_isContextual) {
            takeBackBelow();
        }
        above = isSame && isContextual ? 0.0 : above;
        if (!m_document.spaces.addUp) {
            above = std::max(0.0, above - spaceOf(m_shown.paragraph, Below));
        }
    }
    paragraph.insert(Above, toInches(above));
    m_named = named;
    m_insets = insets;
    m_isContextual = isContextual;
}

void ParagraphSpaces::written(Node& paragraph, const StyleProperties& shown)
{
    m_paragraph = &paragraph;
    m_shown = shown;
    StyleProperties inset = shown;
    const auto widen = [&inset](const QString& side, double points) {
        if (points > 0.0) {
            inset.paragraph.insert(side, toInches(spaceOf(inset.paragraph, side) + points));
        }
    };
    widen(u"fo:margin-left"_s, m_insets.left());
    widen(u"fo:margin-right"_s, m_insets.right());
    widen(Above, m_insets.top());
    widen(Below, m_insets.bottom());
    paragraph.setAttribute(u"text:style-name"_s, m_document.styleFor(u"paragraph"_s, inset));
}

void ParagraphSpaces::finish()
{
    if (m_isJoined && m_paragraph != nullptr && !m_flows &&
        !(m_isCell && m_document.spaces.inCells)) {
        takeBackBelow();
    }
}

} // namespace repair

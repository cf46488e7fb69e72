#include "repair/document.h"

#include <QStringList>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

QString canonical(const Properties& properties)
{
    QStringList lines;
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        lines.append(it.key() + u'=' + it.value());
    }
    lines.sort();
    return lines.join(u'\n');
}

void appendProperties(Node& style, const QString& tag, const Properties& properties)
{
    if (properties.isEmpty()) {
        return;
    }
    Node& element = style.append(Node::element(tag));
    QStringList names = properties.keys();
    names.sort();
    for (const QString& name : names) {
        element.attributes.append({name, properties.value(name)});
    }
}

} // namespace

Document::Document(std::unique_ptr<Node> stylesRoot, std::unique_ptr<Node> contentRoot,
                   MemberReader memberReader)
    : styles(std::move(stylesRoot))
    , content(std::move(contentRoot))
    , readMember(std::move(memberReader))
{}

Node* Document::body() const
{
    const Node* const body = content->child(u"office:body");
    return body != nullptr ? body->firstElement() : nullptr;
}

Node* Document::page() const
{
    Node* const inside = body();
    return inside != nullptr && inside->is(u"office:drawing") ? inside->child(u"draw:page")
                                                              : nullptr;
}

bool Document::isText() const
{
    const Node* const inside = body();
    return inside != nullptr && inside->is(u"office:text");
}

Document Document::withPage(std::unique_ptr<Node> onlyPage, int number) const
{
    Document copy(styles->clone(), content->clone(), readMember);
    copy.newMembers = newMembers;
    copy.m_madeStyles = m_madeStyles;
    copy.m_made = m_made;
    copy.wasText = wasText;
    copy.spaces = spaces;
    copy.hasMasterStyles = hasMasterStyles;
    copy.pageNumber = number;
    Node& inside = *copy.body();
    inside.children.clear();
    inside.append(std::move(onlyPage));
    return copy;
}

const StyleTable& Document::table()
{
    if (!m_table) {
        m_table = std::make_unique<StyleTable>(*styles, *content);
    }
    return *m_table;
}

QString Document::styleFor(const QString& family, const StyleProperties& properties)
{
    const QString key = family + u'\n' + canonical(properties.graphic) + u'\n' +
                        canonical(properties.paragraph) + u'\n' + canonical(properties.text);
    QString& name = m_madeStyles[key];
    if (name.isEmpty()) {
        name = u"labelport-%1"_s.arg(++m_made);
        auto style = Node::element(u"style:style"_s);
        style->attributes = {{u"style:name"_s, name}, {u"style:family"_s, family}};
        appendProperties(*style, u"style:graphic-properties"_s, properties.graphic);
        appendProperties(*style, u"style:paragraph-properties"_s, properties.paragraph);
        appendProperties(*style, u"style:text-properties"_s, properties.text);
        content->childOrNew(u"office:automatic-styles"_s).append(std::move(style));
        if (m_table) {
            m_table->add(family, name, properties);
        }
    }
    return name;
}

QString Document::addDrawing(const QByteArray& svg)
{
    const QString name = u"Pictures/labelport-%1.svg"_s.arg(newMembers.size() + 1);
    newMembers.insert(name, svg);
    return name;
}

Properties graphicOf(Document& document, const Node& shape)
{
    return document.table()
        .resolved(u"graphic"_s, shape.attribute(u"draw:style-name"), true)
        .graphic;
}

Properties statedBy(const Document& document, const Node& part, const QString& tag)
{
    return statedInStyle(document, part.attribute(u"table:style-name"), tag);
}

Properties statedInStyle(const Document& document, const QString& style, const QString& tag)
{
    Properties result;
    const Node* const automatic = document.content->child(u"office:automatic-styles");
    if (automatic == nullptr || style.isEmpty()) {
        return result;
    }
    for (const auto& each : automatic->children) {
        const Node* const properties = each->child(tag);
        if (properties != nullptr && each->attribute(u"style:name") == style) {
            for (const Attribute& attribute : properties->attributes) {
                result.insert(attribute.name, attribute.value);
            }
        }
    }
    return result;
}

} // namespace repair

#include "repair/xml_tree.h"

#include "limits/xml/markup_scanner.h"
#include "limits/xml/xml_limits.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Bytes: a node with its entry in the parent, an attribute with two strings, the table of
// attributes, a UTF-16 character.
constexpr xmllimits::TreeCosts Costs{280, 64, 160, 4};

/// Builds the tree. Names are shared: a document repeats a few of them many times.
class Builder
{
public:
    [[nodiscard]] std::unique_ptr<Node> build(const QByteArray& bytes);

private:
    void take(const QXmlStreamReader& reader);
    void takeStart(const QXmlStreamReader& reader);
    void takeText(QStringView text);
    [[nodiscard]] QString shared(QStringView name);

    std::unique_ptr<Node> m_root;
    std::vector<Node*> m_open;
    QSet<QString> m_names;
};

std::unique_ptr<Node> Builder::build(const QByteArray& bytes)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        reader.readNext();
        take(reader);
    }
    return reader.hasError() ? nullptr : std::move(m_root);
}

void Builder::take(const QXmlStreamReader& reader)
{
    if (reader.isStartElement()) {
        takeStart(reader);
    } else if (reader.isEndElement()) {
        m_open.pop_back();
    } else if (reader.isCharacters() && !m_open.empty()) {
        takeText(reader.text());
    }
}

void Builder::takeStart(const QXmlStreamReader& reader)
{
    auto node = Node::element(shared(reader.qualifiedName()));
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        node->attributes.append({shared(attribute.qualifiedName()), attribute.value().toString()});
    }
    Node* const place = node.get();
    if (m_open.empty()) {
        m_root = std::move(node);
    } else {
        m_open.back()->append(std::move(node));
    }
    m_open.push_back(place);
}

void Builder::takeText(QStringView text)
{
    auto& siblings = m_open.back()->children;
    if (!siblings.empty() && siblings.back()->isText()) {
        siblings.back()->text += text;
    } else {
        m_open.back()->append(Node::characters(text.toString()));
    }
}

QString Builder::shared(QStringView name)
{
    return *m_names.insert(name.toString());
}

bool isEscaped(QChar character)
{
    return character <= u'>' && QStringView(u"<>&\"\r\n\t").contains(character);
}

// Blanks that a parser would change are written as references.
QString escaped(const QString& text, bool isValue)
{
    // As most texts are. The functions below take each character separately.
    if (std::none_of(text.begin(), text.end(), isEscaped)) {
        return text;
    }
    QString safe = text.toHtmlEscaped();
    safe.replace(u'\r', "&#13;"_L1);
    if (isValue) {
        safe.replace(u'\n', "&#10;"_L1);
        safe.replace(u'\t', "&#9;"_L1);
    }
    return safe;
}

void write(const Node& node, QString& out)
{
    if (node.isText()) {
        out += escaped(node.text, false);
        return;
    }
    out += u'<' + node.name;
    for (const Attribute& attribute : node.attributes) {
        out += u' ' + attribute.name + "=\""_L1 + escaped(attribute.value, true) + u'"';
    }
    if (node.children.empty()) {
        out += "/>"_L1;
        return;
    }
    out += u'>';
    for (const auto& child : node.children) {
        write(*child, out);
    }
    out += "</"_L1 + node.name + u'>';
}

} // namespace

std::unique_ptr<Node> Node::element(const QString& name)
{
    auto node = std::make_unique<Node>();
    node->name = name;
    return node;
}

std::unique_ptr<Node> Node::characters(const QString& text)
{
    auto node = std::make_unique<Node>();
    node->text = text;
    return node;
}

std::unique_ptr<Node> Node::clone() const
{
    auto copy = std::make_unique<Node>();
    copy->name = name;
    copy->text = text;
    copy->attributes = attributes;
    for (const auto& each : children) {
        copy->append(each->clone());
    }
    return copy;
}

QString Node::attribute(QStringView attributeName) const
{
    for (const Attribute& each : attributes) {
        if (each.name == attributeName) {
            return each.value;
        }
    }
    return {};
}

bool Node::hasAttribute(QStringView attributeName) const
{
    for (const Attribute& each : attributes) {
        if (each.name == attributeName) {
            return true;
        }
    }
    return false;
}

void Node::setAttribute(const QString& attributeName, const QString& value)
{
    for (Attribute& each : attributes) {
        if (each.name == attributeName) {
            each.value = value;
            return;
        }
    }
    attributes.append({attributeName, value});
}

void Node::removeAttribute(QStringView attributeName)
{
    attributes.removeIf(
        [attributeName](const Attribute& each) { return each.name == attributeName; });
}

Node* Node::child(QStringView tag) const
{
    for (const auto& each : children) {
        if (each->is(tag)) {
            return each.get();
        }
    }
    return nullptr;
}

Node* Node::firstElement() const
{
    for (const auto& each : children) {
        if (!each->isText()) {
            return each.get();
        }
    }
    return nullptr;
}

Node& Node::childOrNew(const QString& tag)
{
    Node* const found = child(tag);
    return found != nullptr ? *found : append(element(tag));
}

Node& Node::append(std::unique_ptr<Node> node)
{
    children.push_back(std::move(node));
    return *children.back();
}

QString Node::allText() const
{
    QString all = text;
    for (const auto& each : children) {
        all += each->allText();
    }
    return all;
}

bool isHidden(const Node& node)
{
    const QString display = node.attribute(u"text:display");
    if (display == "none"_L1) {
        return true;
    }
    const bool hasCondition = display == "condition"_L1 || node.name.startsWith("text:hidden-"_L1);
    return hasCondition && node.attribute(u"text:is-hidden") == "true"_L1;
}

std::unique_ptr<Node> parseTree(const QByteArray& bytes, qint64 treeBytes)
{
    if (xmllimits::exceededLimit(bytes, treeBytes, Costs)) {
        return nullptr;
    }
    return Builder().build(bytes);
}

QByteArray writeTree(const Node& root)
{
    QString out = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"_s;
    write(root, out);
    return out.toUtf8();
}

} // namespace repair

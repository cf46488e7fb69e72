#include "repair/controls_step.h"

#include "repair/document.h"

#include <QHash>
#include <QStringList>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

const QString ControlColor = u"#808080"_s;
const QString ControlPadding = u"0.02in"_s;

QString firstAttribute(const Node& node, const QString& first, const QString& second)
{
    return node.attribute(node.hasAttribute(first) ? first : second);
}

QString selectedOptions(const Node& list)
{
    QStringList labels;
    for (const auto& option : list.children) {
        if (firstAttribute(*option, u"form:current-selected"_s, u"form:selected"_s) == "true"_L1) {
            labels.append(option->attribute(u"form:label"));
        }
    }
    return labels.join(QChar::LineSeparator);
}

QString markedLabel(const Node& control, bool isMarked, QStringView marks)
{
    return QString(marks[isMarked ? 1 : 0]) + u' ' + control.attribute(u"form:label");
}

// What a control shows. Passwords stay hidden.
QString controlText(const Node& control)
{
    if (control.is(u"form:listbox")) {
        return selectedOptions(control);
    }
    if (control.is(u"form:checkbox")) {
        const QString state = firstAttribute(control, u"form:current-state"_s, u"form:state"_s);
        return markedLabel(control, state == "checked"_L1, u"\u2610\u2611");
    }
    if (control.is(u"form:radio")) {
        const QString state =
            firstAttribute(control, u"form:current-selected"_s, u"form:selected"_s);
        return markedLabel(control, state == "true"_L1, u"\u25CB\u25C9");
    }
    if (control.is(u"form:password")) {
        return {};
    }
    const QString value = firstAttribute(control, u"form:current-value"_s, u"form:value"_s);
    return value.isEmpty() || control.is(u"form:button") ? control.attribute(u"form:label") : value;
}

bool hasBox(const Node& control)
{
    return !control.is(u"form:checkbox") && !control.is(u"form:radio") &&
           !control.is(u"form:fixed-text");
}

void replaceControl(Document& document, Node& shape, const Node& control)
{
    StyleProperties style =
        document.table().resolved(u"graphic"_s, shape.attribute(u"draw:style-name"), true);
    style.graphic.insert(u"draw:stroke"_s, hasBox(control) ? u"solid"_s : u"none"_s);
    style.graphic.insert(u"svg:stroke-color"_s, ControlColor);
    style.graphic.insert(u"draw:fill"_s, u"none"_s);
    style.graphic.insert(u"fo:padding"_s, ControlPadding);
    style.graphic.insert(u"draw:textarea-vertical-align"_s, u"middle"_s);
    auto paragraph = Node::element(u"text:p"_s);
    paragraph->setAttribute(u"text:style-name"_s, shape.attribute(u"draw:text-style-name"));
    paragraph->append(Node::characters(controlText(control)));
    shape.name = u"draw:frame"_s;
    shape.setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    shape.append(Node::element(u"draw:text-box"_s)).append(std::move(paragraph));
}

} // namespace

int showControls(Document& document)
{
    QHash<QString, const Node*> controls;
    forEachElement(*document.content, [&controls](const Node& node) {
        if (node.name.startsWith("form:"_L1) && !node.is(u"form:hidden")) {
            const QString id = firstAttribute(node, u"xml:id"_s, u"form:id"_s);
            controls.insert(id, &node);
        }
    });
    controls.remove(QString());
    int count = 0;
    forEachElement(*document.content, [&document, &controls, &count](Node& node) {
        const Node* const control =
            node.is(u"draw:control") ? controls.value(node.attribute(u"draw:control")) : nullptr;
        if (control != nullptr) {
            replaceControl(document, node, *control);
            ++count;
        }
    });
    return count;
}

} // namespace repair

#include "repair/list_labels.h"

#include "repair/lengths.h"
#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Pixels, in which labels are measured.
constexpr int MeasuredLabelSize = 100;
constexpr double GapBlanks = 40.0;
constexpr double DefaultLabelSize = 12.0; // points

const Node* alignmentIn(const Node& level)
{
    const Node* const properties = level.child(u"style:list-level-properties");
    return properties != nullptr ? properties->child(u"style:list-level-label-alignment") : nullptr;
}

QString pointsText(double points)
{
    return QString::number(points, 'f', 2) + "pt"_L1;
}

// From 0 to 1; 0 for other texts.
double percentOf(const QString& text)
{
    return text.endsWith(u'%') ? text.chopped(1).toDouble() / 100.0 : 0.0;
}

} // namespace

QString bulletText(const QString& character)
{
    // As Symbol and Wingdings draw them.
    static constexpr struct
    {
        char16_t code;
        char16_t shape;
    } Shapes[] = {{0xF02D, u'\u2212'}, {0xF06F, u'\u25A1'}, {0xF071, u'\u2751'},
                  {0xF076, u'\u2756'}, {0xF0A7, u'\u25AA'}, {0xF0A8, u'\u25FB'},
                  {0xF0D8, u'\u27A2'}, {0xF0E0, u'\u2192'}, {0xF0FC, u'\u2713'}};
    constexpr QChar Dot = u'\u2022';
    if (character.size() != 1 || character[0].category() != QChar::Other_PrivateUse) {
        return character;
    }
    const auto* const known =
        std::find_if(std::begin(Shapes), std::end(Shapes),
                     [&character](const auto& row) { return row.code == character[0].unicode(); });
    return known != std::end(Shapes) ? QChar(known->shape) : Dot;
}

QString numberText(int number, const QString& format)
{
    if ((format == "a"_L1 || format == "A"_L1) && number >= 1 && number <= 26) {
        return QChar(format[0].unicode() + number - 1);
    }
    if (format == "i"_L1 || format == "I"_L1) {
        static constexpr struct
        {
            int value;
            QLatin1StringView text;
        } Digits[] = {{100, "c"_L1}, {90, "xc"_L1}, {50, "l"_L1}, {40, "xl"_L1}, {10, "x"_L1},
                      {9, "ix"_L1},  {5, "v"_L1},   {4, "iv"_L1}, {1, "i"_L1}};
        QString roman;
        int rest = std::min(number, 1000);
        for (const auto& digit : Digits) {
            for (; rest >= digit.value; rest -= digit.value) {
                roman += digit.text;
            }
        }
        return format == "I"_L1 ? roman.toUpper() : roman;
    }
    return format.isEmpty() ? QString() : QString::number(number);
}

// Headings may be written as items of a list whose style is that of the outline.
const Node* listStyle(const StyleTable& table, const QString& name)
{
    const Node* const style = table.named(u"text:list-style"_s, name);
    return style != nullptr ? style : table.named(u"text:outline-style"_s, name);
}

const Node* outlineStyle(const StyleTable& table)
{
    const Node* const style = table.named(u"text:outline-style"_s, u"Outline"_s);
    return style != nullptr ? style : table.named(u"text:outline-style"_s, QString());
}

const Node* levelIn(const Node* style, int level)
{
    if (style == nullptr) {
        return nullptr;
    }
    const auto found =
        std::find_if(style->children.begin(), style->children.end(), [level](const auto& child) {
            return child->attribute(u"text:level").toInt() == level;
        });
    return found != style->children.end() ? found->get() : nullptr;
}

Indent indentOf(const Node& level)
{
    const Node* const properties = level.child(u"style:list-level-properties");
    if (properties == nullptr) {
        return {};
    }
    if (const Node* const aligned = alignmentIn(level)) {
        return {pointsOf(*aligned, u"fo:margin-left"), pointsOf(*aligned, u"fo:text-indent"), true};
    }
    const double width = pointsOf(*properties, u"text:min-label-width");
    return {pointsOf(*properties, u"text:space-before") + width, -width};
}

StyleProperties labelStyle(StyleProperties style, const Node* level)
{
    const Node* const text = level != nullptr ? level->child(u"style:text-properties") : nullptr;
    const QString stated = text != nullptr ? text->attribute(u"fo:font-size") : QString();
    const auto own = toPoints(style.text.value(u"fo:font-size"_s));
    if (const auto points = toPoints(stated)) {
        style.text.insert(u"fo:font-size"_s, pointsText(*points));
    } else if (const double share = percentOf(stated); own && share > 0.0) {
        style.text.insert(u"fo:font-size"_s, pointsText(*own * share));
    }
    for (const QString& name : style.text.keys()) {
        if (name.startsWith("style:text-underline"_L1) ||
            name.startsWith("style:text-line-through"_L1)) {
            style.text.remove(name);
        }
    }
    return style;
}

QString labelGap(const StyleTable& table, const Node* level, const Properties& text,
                 const QString& label, double room)
{
    const Node* const aligned = level != nullptr ? alignmentIn(*level) : nullptr;
    const QString end =
        aligned != nullptr ? aligned->attribute(u"text:label-followed-by") : QString();
    if (end == "nothing"_L1 || end == "space"_L1) {
        return end == "space"_L1 ? u" "_s : QString();
    }
    QFont font(table.fontFamily(text.value(u"style:font-name"_s)));
    font.setPixelSize(MeasuredLabelSize);
    font.setBold(text.value(u"fo:font-weight"_s) == "bold"_L1);
    const QFontMetricsF metrics(font);
    const double size = toPoints(text.value(u"fo:font-size"_s)).value_or(DefaultLabelSize);
    const double gap =
        room * MeasuredLabelSize / std::max(size, 1.0) - metrics.horizontalAdvance(label);
    const double blanks = std::round(gap / std::max(metrics.horizontalAdvance(u' '), 1.0));
    return QString(static_cast<int>(std::clamp(blanks, 2.0, GapBlanks)), u' ');
}

} // namespace repair

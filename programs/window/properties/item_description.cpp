#include "window/properties/item_description.h"

#include "window/properties/property.h"
#include "window/properties/style_names.h"

#include "workbench/items/label_document.h"

#include <QCoreApplication>
#include <QImage>
#include <QLocale>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using workbench::ItemValues;

constexpr int SummaryLength = 60;
// A property shows only the beginning of a text: a cell must stay short.
constexpr int LongestValue = 2000;

struct ItemDescriptionTr
{
    Q_DECLARE_TR_FUNCTIONS(window::ItemDescription)
};

QString shortened(const QString& text, int length)
{
    return text.size() <= length ? text : text.left(length - 1) + QChar(0x2026);
}

QString plainText(const workbench::TextValues& text)
{
    return text.html.isEmpty() ? text.text : workbench::textOfHtml(text.html);
}

QString pixelText(const QSize& size)
{
    return ItemDescriptionTr::tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
}

QString numberText(const PropertyRow& row, LengthUnit unit)
{
    const double number = row.current.toDouble();
    if (!row.minimumName.isEmpty() && number <= row.minimum) {
        return row.minimumName;
    }
    switch (row.kind) {
    case PropertyKind::Length:
        return lengthText(number, unit);
    case PropertyKind::Points:
        return ItemDescriptionTr::tr("%1 pt").arg(number);
    case PropertyKind::Angle:
        return angleText(number);
    default:
        return QLocale().toString(number);
    }
}

QString choiceText(const PropertyRow& row)
{
    const int code = row.current.toInt();
    for (const NamedCode& choice : row.choices) {
        if (choice.code == code) {
            return choice.name;
        }
    }
    return ItemDescriptionTr::tr("unknown (%1)").arg(code);
}

QString pictureText(const QImage& image)
{
    return image.isNull() ? ItemDescriptionTr::tr("no picture") : pixelText(image.size());
}

QString drawingText(const QByteArray& data)
{
    return data.isEmpty() ? ItemDescriptionTr::tr("none")
                          : QLocale().formattedDataSize(data.size());
}

QString valueText(const PropertyRow& row, LengthUnit unit)
{
    switch (row.kind) {
    case PropertyKind::Note:
    case PropertyKind::Text:
        return row.current.toString();
    case PropertyKind::RichText:
        return plainText({{}, row.current.toString()});
    case PropertyKind::Flag:
        return row.current.toBool() ? ItemDescriptionTr::tr("yes") : ItemDescriptionTr::tr("no");
    case PropertyKind::Color:
        return colorName(row.current.value<QColor>());
    case PropertyKind::Choice:
        return choiceText(row);
    case PropertyKind::FontFamily:
        return row.current.toString().isEmpty() ? ItemDescriptionTr::tr("the default")
                                                : row.current.toString();
    case PropertyKind::Picture:
        return pictureText(row.current.value<QImage>());
    case PropertyKind::Symbol:
        return drawingText(row.current.toByteArray());
    default:
        return numberText(row, unit);
    }
}

// The value that all have; nothing if one of them does not have the property. Different values
// are reported as an invalid variant.
template <class Values>
std::optional<QVariant> commonValue(const Property<Values>& property, const QList<Values>& all)
{
    std::optional<QVariant> common;
    for (const Values& values : all) {
        const QVariant value = property.get(values);
        if (!value.isValid()) {
            return std::nullopt;
        }
        if (common && *common != value) {
            common = QVariant();
        } else if (!common) {
            common = value;
        }
    }
    return common;
}

template <class Values, class IsEditable>
QList<PropertyRow> describe(const QList<Property<Values>>& properties, const QList<Values>& all,
                            LengthUnit unit, const IsEditable& isEditable)
{
    QList<PropertyRow> rows;
    for (qsizetype index = 0; index < properties.size(); ++index) {
        const Property<Values>& property = properties.at(index);
        const std::optional<QVariant> common = commonValue(property, all);
        if (!common) {
            continue;
        }
        PropertyRow row{property.group, property.name, {}};
        row.property = static_cast<int>(index);
        row.kind = property.kind;
        row.current = *common;
        row.choices = property.choices;
        row.minimum = property.minimum;
        row.maximum = property.maximum;
        row.minimumName = property.minimumName;
        row.isEditable = property.set != nullptr && isEditable(property.isLock);
        row.value = common->isValid() ? shortened(valueText(row, unit), LongestValue)
                                      : ItemDescriptionTr::tr("different values");
        rows.append(row);
    }
    return rows;
}

} // namespace

QString contentSummary(const ItemValues& values)
{
    QString content;
    if (values.text) {
        content = plainText(*values.text);
    } else if (values.barcode) {
        content = values.barcode->content;
    } else if (values.picture && !values.picture->image.isNull()) {
        content = pixelText(values.picture->image.size());
    }
    if (content.isEmpty() && values.datasource && values.datasource->id >= 0) {
        content = ItemDescriptionTr::tr("data source %1").arg(values.datasource->id);
    }
    return shortened(content.left(SummaryLength * 4).simplified(), SummaryLength);
}

QString itemTitle(const ItemValues& values)
{
    const QString summary = contentSummary(values);
    const QString kind = kindName(values.type);
    return summary.isEmpty() ? kind : ItemDescriptionTr::tr("%1 “%2”").arg(kind, summary);
}

QList<PropertyRow> describeItem(const ItemValues& values, LengthUnit unit)
{
    return describeItems({values}, unit);
}

QList<PropertyRow> describeItems(const QList<ItemValues>& items, LengthUnit unit)
{
    return describe(itemProperties(), items, unit, [&items](bool isLock) {
        return isLock || std::none_of(items.begin(), items.end(), [](const ItemValues& values) {
                   return values.placement.readOnly;
               });
    });
}

QList<PropertyRow> describePage(const workbench::PageValues& page, LengthUnit unit)
{
    return describe(pageProperties(), QList<workbench::PageValues>{page}, unit,
                    [](bool) { return true; });
}

} // namespace window

// The table of all properties of items and of the page.
#include "window/edit/geometry.h"
#include "window/properties/item_description.h"
#include "window/properties/property_table.h"
#include "window/properties/style_names.h"
#include "workbench/items/item_limits.h"
#include "workbench/items/label_document.h"

#include <QTextCharFormat>

namespace window {

namespace {

using workbench::ItemValues;

constexpr double LargestNumber = 1'000'000.0;

void addPlace(PropertyTable& table)
{
    using workbench::BoxValues;
    using workbench::PlacementValues;
    table.begin(PropertyWords::tr("Place"));
    table.add(PropertyWords::tr("Kind"), PropertyKind::Note,
              [](const ItemValues& values) { return kindName(values.type); });
    table.add(
        PropertyWords::tr("Left"), PropertyKind::Length,
        [](const ItemValues& values) { return values.placement.position.x(); },
        [](ItemValues& values, const QVariant& x) {
            values.placement.position.setX(x.toDouble());
        });
    table.add(
        PropertyWords::tr("Top"), PropertyKind::Length,
        [](const ItemValues& values) { return values.placement.position.y(); },
        [](ItemValues& values, const QVariant& y) {
            values.placement.position.setY(y.toDouble());
        });
    setRange(table.add(
                 PropertyWords::tr("Width"), PropertyKind::Length,
                 [](const ItemValues& values) { return values.box.size.width(); },
                 [](ItemValues& values, const QVariant& width) {
                     setSize(values, {width.toDouble(), values.box.size.height()});
                 }),
             0.0, LongestLength);
    setRange(table.add(
                 PropertyWords::tr("Height"), PropertyKind::Length,
                 [](const ItemValues& values) { return values.box.size.height(); },
                 [](ItemValues& values, const QVariant& height) {
                     setSize(values, {values.box.size.width(), height.toDouble()});
                 }),
             0.0, LongestLength);
    setRange(table.add(PropertyWords::tr("Angle"), PropertyKind::Angle, &ItemValues::box,
                       &BoxValues::rotation),
             -360.0, 360.0);
    table.add(PropertyWords::tr("Flipped left to right"), PropertyKind::Flag, &ItemValues::box,
              &BoxValues::flipHorizontal);
    table.add(PropertyWords::tr("Flipped top to bottom"), PropertyKind::Flag, &ItemValues::box,
              &BoxValues::flipVertical);
    setRange(table.add(PropertyWords::tr("Layer"), PropertyKind::Number, &ItemValues::placement,
                       &PlacementValues::z),
             -LargestNumber, LargestNumber);
    table
        .add(PropertyWords::tr("Movable"), PropertyKind::Flag, &ItemValues::placement,
             &PlacementValues::movable)
        .isLock = true;
    table
        .add(PropertyWords::tr("Read-only"), PropertyKind::Flag, &ItemValues::placement,
             &PlacementValues::readOnly)
        .isLock = true;
    table
        .add(PropertyWords::tr("Background"), PropertyKind::Flag, &ItemValues::placement,
             &PlacementValues::userBackground)
        .isLock = true;
}

// A document's characters may have formats of their own, which hide those of the item.
void formatDocument(ItemValues& values, const QTextCharFormat& format)
{
    if (values.text && !values.text->html.isEmpty()) {
        values.text->html = workbench::formattedHtml(values.text->html, format);
    }
}

void addText(PropertyTable& table)
{
    using workbench::TextStyleValues;
    table.begin(PropertyWords::tr("Text"));
    table.add(
        PropertyWords::tr("Text"), PropertyKind::Text,
        [](const ItemValues& values) {
            return values.text && values.text->html.isEmpty() ? QVariant(values.text->text)
                                                              : QVariant();
        },
        [](ItemValues& values, const QVariant& text) { values.text->text = text.toString(); });
    table.add(
        PropertyWords::tr("Text"), PropertyKind::RichText,
        [](const ItemValues& values) {
            return values.text && !values.text->html.isEmpty() ? QVariant(values.text->html)
                                                               : QVariant();
        },
        [](ItemValues& values, const QVariant& html) { values.text->html = html.toString(); });
    table.add(
        PropertyWords::tr("Text color"), PropertyKind::Color,
        [](const ItemValues& values) {
            return values.textStyle ? QVariant(values.textStyle->color) : QVariant();
        },
        [](ItemValues& values, const QVariant& color) {
            values.textStyle->color = color.value<QColor>();
            QTextCharFormat format;
            format.setForeground(values.textStyle->color);
            formatDocument(values, format);
        });
    table
        .add(
            PropertyWords::tr("Alignment"), PropertyKind::Choice,
            [](const ItemValues& values) {
                return values.textStyle ? QVariant(alignmentCode(values.textStyle->alignment))
                                        : QVariant();
            },
            [](ItemValues& values, const QVariant& code) {
                values.textStyle->alignment = Qt::Alignment(code.toInt());
                if (values.barcode) {
                    values.barcode->textAlignment = code.toInt();
                }
                if (values.text && !values.text->html.isEmpty()) {
                    values.text->html =
                        workbench::alignedHtml(values.text->html, values.textStyle->alignment);
                }
            })
        .choices = alignmentChoices();
    table
        .add(PropertyWords::tr("Fixed sides"), PropertyKind::Choice, &ItemValues::textLabel,
             &workbench::TextLabelValues::limiting)
        .choices = fixedSidesChoices();
}

// A flag of the font, also for the characters of a document.
template <class Format>
void addFontFlag(PropertyTable& table, const QString& name, bool workbench::FontValues::*member,
                 const Format& format)
{
    table.add(
        name, PropertyKind::Flag,
        [member](const ItemValues& values) {
            return values.font ? QVariant((*values.font).*member) : QVariant();
        },
        [member, format](ItemValues& values, const QVariant& value) {
            (*values.font).*member = value.toBool();
            formatDocument(values, format(value.toBool()));
        });
}

void addFont(PropertyTable& table)
{
    using workbench::FontValues;
    table.begin(PropertyWords::tr("Font"));
    table.add(
        PropertyWords::tr("Font family"), PropertyKind::FontFamily,
        [](const ItemValues& values) {
            return values.font ? QVariant(values.font->family) : QVariant();
        },
        [](ItemValues& values, const QVariant& family) {
            values.font->family = family.toString();
            QTextCharFormat format;
            format.setFontFamilies({family.toString()});
            formatDocument(values, format);
        });
    setRange(table.add(
                 PropertyWords::tr("Font size"), PropertyKind::Points,
                 [](const ItemValues& values) {
                     return values.font
                                ? QVariant(values.font->sized ? double(values.font->pointSize)
                                                              : 0.0)
                                : QVariant();
                 },
                 [](ItemValues& values, const QVariant& size) {
                     values.font->sized = size.toInt() > 0;
                     if (values.font->sized) {
                         values.font->pointSize = size.toInt();
                         formatDocument(values, workbench::sizeFormat(size.toInt()));
                     }
                 }),
             0.0, workbench::MaximumFontSize, PropertyWords::tr("not set"));
    addFontFlag(table, PropertyWords::tr("Bold"), &FontValues::bold, [](bool isOn) {
        QTextCharFormat format;
        format.setFontWeight(isOn ? QFont::Bold : QFont::Normal);
        return format;
    });
    addFontFlag(table, PropertyWords::tr("Italic"), &FontValues::italic, [](bool isOn) {
        QTextCharFormat format;
        format.setFontItalic(isOn);
        return format;
    });
    addFontFlag(table, PropertyWords::tr("Underlined"), &FontValues::underline, [](bool isOn) {
        QTextCharFormat format;
        format.setFontUnderline(isOn);
        return format;
    });
}

void addDatasource(PropertyTable& table)
{
    table.begin(PropertyWords::tr("Data source"));
    table.add(PropertyWords::tr("Source"), PropertyKind::Note, [](const ItemValues& values) {
        if (!values.datasource) {
            return QVariant();
        }
        const int id = values.datasource->id;
        return QVariant(id < 0 ? PropertyWords::tr("none")
                               : PropertyWords::tr("number %1").arg(id));
    });
    table.add(PropertyWords::tr("Fields"), PropertyKind::Note, [](const ItemValues& values) {
        return values.datasource && !values.datasource->fields.isEmpty()
                   ? QVariant(values.datasource->fields.join(QLatin1String(", ")))
                   : QVariant();
    });
}

} // namespace

QList<Property<ItemValues>> itemProperties()
{
    PropertyTable table;
    addPlace(table);
    addText(table);
    addFont(table);
    addBarcodeProperties(table);
    addPictureProperties(table);
    addDatasource(table);
    addShapeProperties(table);
    return table.properties();
}

} // namespace window

// The properties of barcodes, pictures, symbols and shapes, and of the page.
#include "window/properties/property_table.h"
#include "window/properties/style_names.h"
#include "workbench/barcodes/barcode_encoder.h"
#include "workbench/barcodes/symbologies.h"
#include "workbench/items/item_limits.h"

#include <QImage>
#include <QLocale>

#include <algorithm>

namespace window {

namespace {

using workbench::BarcodeValues;
using workbench::ItemValues;
using workbench::PageValues;

constexpr int ThickestModule = 100; // points

QList<NamedCode> symbologyChoices()
{
    QList<NamedCode> choices;
    for (const workbench::barcodes::Symbology& each : workbench::barcodes::symbologies()) {
        choices.append({each.code, workbench::barcodes::symbologyName(each.code)});
    }
    std::sort(choices.begin(), choices.end(), [](const NamedCode& a, const NamedCode& b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return choices;
}

Property<PageValues> pageProperty(const QString& name, PropertyKind kind,
                                  std::function<QVariant(const PageValues&)> get,
                                  std::function<void(PageValues&, const QVariant&)> set)
{
    Property<PageValues> property;
    property.group = PropertyWords::tr("Page");
    property.name = name;
    property.kind = kind;
    property.get = std::move(get);
    property.set = std::move(set);
    property.minimum = 1.0;
    property.maximum = LongestLength;
    return property;
}

} // namespace

QString barcodeObjection(const BarcodeValues& barcode)
{
    return workbench::barcodes::encode({barcode.symbology, barcode.content, barcode.flag3,
                                        barcode.flag1, barcode.flag2, barcode.option,
                                        barcode.number, barcode.value})
        .error;
}

void addBarcodeProperties(PropertyTable& table)
{
    table.begin(PropertyWords::tr("Barcode"));
    table
        .add(PropertyWords::tr("Symbology"), PropertyKind::Choice, &ItemValues::barcode,
             &BarcodeValues::symbology)
        .choices = symbologyChoices();
    table.add(PropertyWords::tr("Content"), PropertyKind::Text, &ItemValues::barcode,
              &BarcodeValues::content);
    table.add(PropertyWords::tr("Problem"), PropertyKind::Note, [](const ItemValues& values) {
        // The content of a bound barcode is that of its source.
        const bool isBound = values.datasource && values.datasource->id >= 0;
        const QString problem =
            values.barcode && !isBound ? barcodeObjection(*values.barcode) : QString();
        return problem.isEmpty() ? QVariant() : QVariant(problem);
    });
    table.add(PropertyWords::tr("Text below the bars"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag3);
    table.add(PropertyWords::tr("Blank margins"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag1);
    table.add(PropertyWords::tr("Bearer bars"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag2);
    setRange(table.add(PropertyWords::tr("Module width"), PropertyKind::Points,
                       &ItemValues::barcode, &BarcodeValues::moduleWidth),
             0.0, ThickestModule, PropertyWords::tr("automatic"));
    table.add(PropertyWords::tr("Bars"), PropertyKind::Color, &ItemValues::barcode,
              &BarcodeValues::foreground);
    table.add(PropertyWords::tr("Ground"), PropertyKind::Color, &ItemValues::barcode,
              &BarcodeValues::background);
    setRange(table.add(PropertyWords::tr("Check digit or columns"), PropertyKind::Number,
                       &ItemValues::barcode, &BarcodeValues::option),
             0.0, 30.0, PropertyWords::tr("none"));
    setRange(table.add(PropertyWords::tr("Symbol size"), PropertyKind::Number, &ItemValues::barcode,
                       &BarcodeValues::number),
             0.0, 200.0, PropertyWords::tr("automatic"));
    setRange(table.add(PropertyWords::tr("Error correction"), PropertyKind::Number,
                       &ItemValues::barcode, &BarcodeValues::value),
             0.0, 8.0, PropertyWords::tr("automatic"));
}

void addPictureProperties(PropertyTable& table)
{
    using workbench::SymbolValues;
    table.begin(PropertyWords::tr("Picture"));
    table.add(
        PropertyWords::tr("Picture"), PropertyKind::Picture,
        [](const ItemValues& values) {
            return values.picture ? QVariant(values.picture->image) : QVariant();
        },
        [](ItemValues& values, const QVariant& image) {
            values.picture->image = image.value<QImage>();
        });
    table.begin(PropertyWords::tr("Symbol"));
    table.add(PropertyWords::tr("Drawing"), PropertyKind::Symbol, &ItemValues::symbol,
              &SymbolValues::data);
    table.add(PropertyWords::tr("Symbol color"), PropertyKind::Color, &ItemValues::symbol,
              &SymbolValues::foreground);
    table.add(PropertyWords::tr("Symbol ground"), PropertyKind::Color, &ItemValues::symbol,
              &SymbolValues::background);
}

void addShapeProperties(PropertyTable& table)
{
    using workbench::FillValues;
    using workbench::LineValues;
    using workbench::PenValues;
    table.begin(PropertyWords::tr("Line"));
    table.add(PropertyWords::tr("Line color"), PropertyKind::Color, &ItemValues::pen,
              &PenValues::color);
    setRange(table.add(PropertyWords::tr("Line width"), PropertyKind::Points, &ItemValues::pen,
                       &PenValues::width),
             0.0, 1000.0, PropertyWords::tr("thinnest"));
    table
        .add(PropertyWords::tr("Line style"), PropertyKind::Choice, &ItemValues::pen,
             &PenValues::style)
        .choices = penStyleChoices();
    table
        .add(PropertyWords::tr("Line ends"), PropertyKind::Choice, &ItemValues::pen,
             &PenValues::cap)
        .choices = capStyleChoices();
    table
        .add(PropertyWords::tr("Line corners"), PropertyKind::Choice, &ItemValues::pen,
             &PenValues::join)
        .choices = joinStyleChoices();
    table.begin(PropertyWords::tr("Fill"));
    table.add(PropertyWords::tr("Filled"), PropertyKind::Flag, &ItemValues::fill,
              &FillValues::filled);
    table.add(PropertyWords::tr("Fill color"), PropertyKind::Color, &ItemValues::fill,
              &FillValues::color);
    table
        .add(PropertyWords::tr("Fill pattern"), PropertyKind::Choice, &ItemValues::fill,
             &FillValues::style)
        .choices = brushStyleChoices();
    table.begin(PropertyWords::tr("Corners"));
    setRange(table.add(
                 PropertyWords::tr("Corner radius"), PropertyKind::Length,
                 [](const ItemValues& values) {
                     return values.corner ? QVariant(values.corner->radius.value_or(-1.0))
                                          : QVariant();
                 },
                 [](ItemValues& values, const QVariant& radius) {
                     values.corner->radius =
                         radius.toDouble() < 0.0 ? std::nullopt : std::optional(radius.toDouble());
                 }),
             -1.0, LongestLength, PropertyWords::tr("a sixth of the shorter side"));
    table.begin(PropertyWords::tr("Ends"));
    table
        .add(PropertyWords::tr("Mark at the start"), PropertyKind::Choice, &ItemValues::line,
             &LineValues::startMarker)
        .choices = startMarkerChoices();
    table
        .add(PropertyWords::tr("Mark at the end"), PropertyKind::Choice, &ItemValues::line,
             &LineValues::endMarker)
        .choices = endMarkerChoices();
}

QList<Property<PageValues>> pageProperties()
{
    QList<Property<PageValues>> properties{
        pageProperty(
            PropertyWords::tr("Page width"), PropertyKind::Length,
            [](const PageValues& page) { return page.size.width(); },
            [](PageValues& page, const QVariant& x) { page.size.setWidth(x.toDouble()); }),
        pageProperty(
            PropertyWords::tr("Page height"), PropertyKind::Length,
            [](const PageValues& page) { return page.size.height(); },
            [](PageValues& page, const QVariant& y) { page.size.setHeight(y.toDouble()); }),
        pageProperty(
            PropertyWords::tr("Orientation"), PropertyKind::Choice,
            [](const PageValues& page) {
                return int(page.size.width() > page.size.height() ? Qt::Horizontal : Qt::Vertical);
            },
            [](PageValues& page, const QVariant& direction) {
                const bool isWide = page.size.width() > page.size.height();
                if (isWide != (direction.toInt() == Qt::Horizontal)) {
                    page.size.transpose();
                }
            }),
        pageProperty(
            PropertyWords::tr("Page color"), PropertyKind::Color,
            [](const PageValues& page) { return page.background; },
            [](PageValues& page, const QVariant& color) {
                page.background = color.value<QColor>();
            }),
    };
    properties[2].choices = {{Qt::Vertical, PropertyWords::tr("portrait")},
                             {Qt::Horizontal, PropertyWords::tr("landscape")}};
    return properties;
}

} // namespace window

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

using Words = PropertyWords;
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
    property.group = Words::tr("Page");
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
    table.begin(Words::tr("Barcode"));
    table
        .add(Words::tr("Symbology"), PropertyKind::Choice, &ItemValues::barcode,
             &BarcodeValues::symbology)
        .choices = symbologyChoices();
    table.add(Words::tr("Content"), PropertyKind::Text, &ItemValues::barcode,
              &BarcodeValues::content);
    table.add(Words::tr("Problem"), PropertyKind::Note, [](const ItemValues& values) {
        // The content of a bound barcode is that of its source.
        const bool isBound = values.datasource && values.datasource->id >= 0;
        const QString problem =
            values.barcode && !isBound ? barcodeObjection(*values.barcode) : QString();
        return problem.isEmpty() ? QVariant() : QVariant(problem);
    });
    table.add(Words::tr("Text below the bars"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag3);
    table.add(Words::tr("Blank margins"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag1);
    table.add(Words::tr("Bearer bars"), PropertyKind::Flag, &ItemValues::barcode,
              &BarcodeValues::flag2);
    setRange(table.add(Words::tr("Module width"), PropertyKind::Points, &ItemValues::barcode,
                       &BarcodeValues::moduleWidth),
             0.0, ThickestModule, Words::tr("automatic"));
    table.add(Words::tr("Bars"), PropertyKind::Color, &ItemValues::barcode,
              &BarcodeValues::foreground);
    table.add(Words::tr("Ground"), PropertyKind::Color, &ItemValues::barcode,
              &BarcodeValues::background);
    setRange(table.add(Words::tr("Check digit or columns"), PropertyKind::Number,
                       &ItemValues::barcode, &BarcodeValues::option),
             0.0, 30.0, Words::tr("none"));
    setRange(table.add(Words::tr("Symbol size"), PropertyKind::Number, &ItemValues::barcode,
                       &BarcodeValues::number),
             0.0, 200.0, Words::tr("automatic"));
    setRange(table.add(Words::tr("Error correction"), PropertyKind::Number, &ItemValues::barcode,
                       &BarcodeValues::value),
             0.0, 8.0, Words::tr("automatic"));
}

void addPictureProperties(PropertyTable& table)
{
    using workbench::SymbolValues;
    table.begin(Words::tr("Picture"));
    table.add(
        Words::tr("Picture"), PropertyKind::Picture,
        [](const ItemValues& values) {
            return values.picture ? QVariant(values.picture->image) : QVariant();
        },
        [](ItemValues& values, const QVariant& image) {
            values.picture->image = image.value<QImage>();
        });
    table.begin(Words::tr("Symbol"));
    table.add(Words::tr("Drawing"), PropertyKind::Symbol, &ItemValues::symbol, &SymbolValues::data);
    table.add(Words::tr("Symbol color"), PropertyKind::Color, &ItemValues::symbol,
              &SymbolValues::foreground);
    table.add(Words::tr("Symbol ground"), PropertyKind::Color, &ItemValues::symbol,
              &SymbolValues::background);
}

void addShapeProperties(PropertyTable& table)
{
    using workbench::FillValues;
    using workbench::LineValues;
    using workbench::PenValues;
    table.begin(Words::tr("Line"));
    table.add(Words::tr("Line color"), PropertyKind::Color, &ItemValues::pen, &PenValues::color);
    setRange(table.add(Words::tr("Line width"), PropertyKind::Points, &ItemValues::pen,
                       &PenValues::width),
             0.0, 1000.0, Words::tr("thinnest"));
    table.add(Words::tr("Line style"), PropertyKind::Choice, &ItemValues::pen, &PenValues::style)
        .choices = penStyleChoices();
    table.add(Words::tr("Line ends"), PropertyKind::Choice, &ItemValues::pen, &PenValues::cap)
        .choices = capStyleChoices();
    table.add(Words::tr("Line corners"), PropertyKind::Choice, &ItemValues::pen, &PenValues::join)
        .choices = joinStyleChoices();
    table.begin(Words::tr("Fill"));
    table.add(Words::tr("Filled"), PropertyKind::Flag, &ItemValues::fill, &FillValues::filled);
    table.add(Words::tr("Fill color"), PropertyKind::Color, &ItemValues::fill, &FillValues::color);
    table
        .add(Words::tr("Fill pattern"), PropertyKind::Choice, &ItemValues::fill, &FillValues::style)
        .choices = brushStyleChoices();
    table.begin(Words::tr("Corners"));
    setRange(table.add(
                 Words::tr("Corner radius"), PropertyKind::Length,
                 [](const ItemValues& values) {
                     return values.corner ? QVariant(values.corner->radius.value_or(-1.0))
                                          : QVariant();
                 },
                 [](ItemValues& values, const QVariant& radius) {
                     values.corner->radius =
                         radius.toDouble() < 0.0 ? std::nullopt : std::optional(radius.toDouble());
                 }),
             -1.0, LongestLength, Words::tr("a sixth of the shorter side"));
    table.begin(Words::tr("Ends"));
    table
        .add(Words::tr("Mark at the start"), PropertyKind::Choice, &ItemValues::line,
             &LineValues::startMarker)
        .choices = startMarkerChoices();
    table
        .add(Words::tr("Mark at the end"), PropertyKind::Choice, &ItemValues::line,
             &LineValues::endMarker)
        .choices = endMarkerChoices();
}

const QList<Property<PageValues>>& pageProperties()
{
    static const QList<Property<PageValues>> all = [] {
        QList<Property<PageValues>> properties{
            pageProperty(
                Words::tr("Page width"), PropertyKind::Length,
                [](const PageValues& page) { return page.size.width(); },
                [](PageValues& page, const QVariant& x) { page.size.setWidth(x.toDouble()); }),
            pageProperty(
                Words::tr("Page height"), PropertyKind::Length,
                [](const PageValues& page) { return page.size.height(); },
                [](PageValues& page, const QVariant& y) { page.size.setHeight(y.toDouble()); }),
            pageProperty(
                Words::tr("Orientation"), PropertyKind::Choice,
                [](const PageValues& page) {
                    return int(page.size.width() > page.size.height() ? Qt::Horizontal
                                                                      : Qt::Vertical);
                },
                [](PageValues& page, const QVariant& direction) {
                    const bool isWide = page.size.width() > page.size.height();
                    if (isWide != (direction.toInt() == Qt::Horizontal)) {
                        page.size.transpose();
                    }
                }),
            pageProperty(
                Words::tr("Page color"), PropertyKind::Color,
                [](const PageValues& page) { return page.background; },
                [](PageValues& page, const QVariant& color) {
                    page.background = color.value<QColor>();
                }),
        };
        properties[2].choices = {{Qt::Vertical, Words::tr("portrait")},
                                 {Qt::Horizontal, Words::tr("landscape")}};
        return properties;
    }();
    return all;
}

} // namespace window

#include "samples/tavrel/sample_labels.h"

#include "samples/tavrel/sample_pictures.h"
#include "tests/support/canvas_writer/canvas_writer.h"

namespace {

// Rows of the sample catalog.
constexpr qint32 whiteLabel = 1;
constexpr qint32 silverLabel = 37;
constexpr qint32 yellowLabel = 41;
constexpr qint32 blackRibbon = 0;
constexpr qint32 blueRibbon = 3;

// Symbology numbers.
constexpr qint32 ean = 13;
constexpr qint32 code128 = 20;
constexpr qint32 qrCode = 58;

// Alignments up to version 2000019, which later became flags.
constexpr qint32 oldLeft = 0;
constexpr qint32 oldRight = 1;
constexpr qint32 oldCentred = 2;
constexpr qint32 centred = Qt::AlignCenter;

enum Fill : qint32 { Empty, LabelColor, RibbonColor };

// A place on the label, in inches.
struct Box
{
    double x;
    double y;
    double width;
    double height;
};

qint32 dots(double points)
{
    return qRound(points * 300.0 / 72.0);
}

QString inches(double length)
{
    return QString::number(qRound(length * 100.0)) + QStringLiteral("/100");
}

// The scale at which a drawing of 96 units is so many inches large.
QString symbolScale(double length)
{
    return QString::number(qRound(length * 300.0)) + QStringLiteral("/96");
}

canvas::CanvasRecord page(double width, double height, qint32 labelType = whiteLabel,
                          qint32 ribbonType = blackRibbon)
{
    canvas::CanvasRecord record;
    record.width = width;
    record.height = height;
    record.labelType = labelType;
    record.ribbonType = ribbonType;
    record.resolutionX = 300.0;
    record.resolutionY = 300.0;
    return record;
}

canvas::CanvasRecord pageInDots(double width, double height, qint32 labelType = whiteLabel,
                                qint32 ribbonType = blackRibbon)
{
    return page(width * 305.0, height * 300.0, labelType, ribbonType);
}

canvas::ItemHeader at(double x, double y)
{
    canvas::ItemHeader header;
    header.x = x;
    header.y = y;
    return header;
}

canvas::ItemHeader atDots(double x, double y)
{
    return at(x * 300.0, y * 305.0);
}

canvas::ShapeRecord shape(const QString& name, const Box& box, double penWidth = 1.0,
                          Fill fill = Empty)
{
    canvas::ShapeRecord record;
    record.header = at(box.x, box.y);
    record.header.width = inches(box.width);
    record.header.height = inches(box.height);
    record.lineWidth = dots(penWidth);
    record.fillMode = fill;
    record.name = name;
    return record;
}

canvas::ShapeRecord dashed(canvas::ShapeRecord record)
{
    record.penStyle = 2;
    return record;
}

canvas::TextRecord freeText(const canvas::ItemHeader& header, const QString& content, double points,
                            bool bold = false)
{
    canvas::TextRecord record;
    record.header = header;
    record.header.layer = 2.0;
    record.content = content;
    record.fontSize = dots(points);
    record.styleFlag1 = bold;
    record.alignment = oldLeft;
    record.transparentBackground = true;
    return record;
}

canvas::TextRecord text(const Box& box, const QString& content, double points, bool bold = false,
                        qint32 alignment = Qt::AlignLeft)
{
    canvas::TextRecord record = freeText(at(box.x, box.y), content, points, bold);
    record.fixedWidth = box.width;
    record.fixedHeight = box.height;
    record.alignment = alignment;
    return record;
}

canvas::TextRecord inverse(canvas::TextRecord record)
{
    record.inverse = true;
    return record;
}

canvas::TextRecord bound(canvas::TextRecord record, const QString& key,
                         const QString& searched = QString())
{
    record.datasourceKey = key;
    record.datasourceText = searched;
    return record;
}

canvas::BarcodeRecord barcode(qint32 symbology, const Box& box, const QString& content)
{
    canvas::BarcodeRecord record;
    record.header = at(box.x, box.y);
    record.header.width = inches(box.width);
    record.header.height = inches(box.height);
    record.symbology = symbology;
    record.content = content;
    record.flag3 = true;
    return record;
}

canvas::SymbolRecord symbol(const QString& name, double x, double y, double size)
{
    canvas::SymbolRecord record;
    record.header = at(x, y);
    record.header.width = symbolScale(size);
    record.header.height = symbolScale(size);
    record.name = name;
    return record;
}

QByteArray addressLabel()
{
    canvas::ShapeRecord frame = shape(QStringLiteral("RoundedRectangle"), {0, 0, 3.8, 1.8}, 1.5);
    frame.header.x = 0.1 * 300.0;
    frame.header.y = 0.1 * 305.0;
    canvas::ShapeRecord rule = shape(QStringLiteral("HorizontalLine"), {0, 0, 3.5, 0.0}, 1.0);
    rule.header.x = 0.25 * 300.0;
    rule.header.y = 0.48 * 305.0;
    canvas::SymbolRecord priority = symbol(QStringLiteral("star.svg"), 0.0, 0.0, 0.4);
    priority.header.x = 3.2 * 300.0;
    priority.header.y = 0.62 * 305.0;
    return CanvasWriter(2000016)
        .start(pageInDots(4.0, 2.0))
        .add(frame)
        .add(priority)
        .add(freeText(atDots(3.08, 1.05), QStringLiteral("PRIORITY"), 8.0, true))
        .add(freeText(atDots(0.28, 0.24),
                      QStringLiteral("Harbour Mill, 12 Quay Street, Port Elm PE1 4AB"), 8.0))
        .add(rule)
        .add(freeText(atDots(0.9, 0.7),
                      QStringLiteral("Ms Ada Winter\n7 Orchard Lane\nLittle Wick\nLW4 2QT"), 15.0))
        .bytes();
}

QByteArray pictureLabel()
{
    canvas::PictureRecord picture;
    picture.header = at(0.15, 0.15);
    picture.picture = landscapePicture();
    return CanvasWriter(2000017)
        .start(pageInDots(3.4, 1.3))
        .add(picture)
        .add(freeText(at(1.5, 0.15), QStringLiteral("Orchard Cider"), 17.0, true))
        .add(freeText(at(1.5, 0.48), QStringLiteral("Pressed and bottled\nat Little Wick"), 10.0))
        .add(shape(QStringLiteral("HorizontalLine"), {1.5, 0.92, 1.75, 0.0}, 1.0))
        .add(freeText(at(1.5, 0.97), QStringLiteral("500 ml   4.5 % vol"), 10.0))
        .bytes();
}

QByteArray cableMarker()
{
    CanvasWriter writer(2000018);
    writer.start(pageInDots(3.0, 1.0, yellowLabel));
    for (int third = 0; third < 3; ++third) {
        const Box box = {third + 0.05, 0.18, 0.9, 0.32};
        writer.add(text(box, QStringLiteral("W-204"), 18.0, true, oldCentred));
        writer.add(text({box.x, 0.56, 0.9, 0.2}, QStringLiteral("PANEL B / 24 V"), 8.0, false,
                        oldCentred));
    }
    for (const double fold : {1.0, 2.0}) {
        writer.add(dashed(shape(QStringLiteral("VerticalLine"), {fold, 0.05, 0.0, 0.9}, 1.0)));
    }
    return writer.bytes();
}

QByteArray warningSign()
{
    return CanvasWriter(2000019)
        .start(page(6.0, 4.0, yellowLabel))
        .add(shape(QStringLiteral("Rectangle"), {0.15, 0.15, 5.7, 3.7}, 4.0))
        .add(shape(QStringLiteral("Rectangle"), {0.15, 0.15, 5.7, 1.1}, 4.0, RibbonColor))
        .add(inverse(
            text({0.3, 0.35, 5.4, 0.75}, QStringLiteral("WARNING"), 46.0, true, oldCentred)))
        .add(symbol(QStringLiteral("C:/symbols/warning.svg"), 0.4, 1.5, 1.6))
        .add(symbol(QStringLiteral("lightning.svg"), 4.4, 1.6, 1.3))
        .add(text({2.1, 1.55, 2.2, 1.4}, QStringLiteral("High\nvoltage"), 34.0, true, oldCentred))
        .add(text({0.4, 3.3, 5.2, 0.35}, QStringLiteral("Disconnect before opening this cabinet"),
                  16.0, false, oldCentred))
        .add(text({4.6, 3.62, 1.1, 0.2}, QStringLiteral("Form W-7"), 8.0, false, oldRight))
        .bytes();
}

QByteArray assetTag()
{
    canvas::SequenceRecord sequence;
    sequence.start = 1;
    sequence.end = 500;
    sequence.zeroPad = 5;
    sequence.prefix = QStringLiteral("HM-");
    canvas::BarcodeRecord bars =
        barcode(code128, {0.15, 0.4, 2.2, 0.5}, QStringLiteral("HM-00001"));
    bars.datasourceKey = QStringLiteral("_SEQUENCE");
    bars.flag3 = false;
    return CanvasWriter(2000020)
        .start(page(2.5, 1.25, silverLabel), sequence)
        .add(shape(QStringLiteral("RoundedRectangle"), {0.04, 0.04, 2.42, 1.17}, 1.0))
        .add(text({0.15, 0.1, 2.2, 0.24}, QStringLiteral("PROPERTY OF HARBOUR MILL"), 10.0, true,
                  centred))
        .add(bars)
        .add(bound(text({0.15, 0.93, 2.2, 0.24}, QStringLiteral("HM-00001"), 11.0, false, centred),
                   QStringLiteral("_SEQUENCE")))
        .bytes();
}

QByteArray shelfLabel()
{
    return CanvasWriter(2000021)
        .start(page(3.0, 1.5))
        .add(shape(QStringLiteral("Rectangle"), {0.0, 0.0, 3.0, 0.38}, 0.0, RibbonColor))
        .add(inverse(text({0.12, 0.06, 2.8, 0.28}, QStringLiteral("Apple juice, cloudy"), 14.0,
                          true, Qt::AlignLeft | Qt::AlignVCenter)))
        .add(barcode(ean, {0.12, 0.5, 1.5, 0.85}, QStringLiteral("200123456789")))
        .add(text({1.7, 0.5, 1.2, 0.55}, QStringLiteral("2.49"), 32.0, true, Qt::AlignRight))
        .add(text({1.7, 1.08, 1.2, 0.2}, QStringLiteral("1 litre"), 9.0, false, Qt::AlignRight))
        .bytes();
}

QByteArray stretchedLabel()
{
    canvas::TextRecord sale = freeText(at(0.2, 0.2), QStringLiteral("Net  weight"), 18.0, true);
    sale.alignment = Qt::AlignLeft;
    sale.header.width = QStringLiteral("5/2");
    sale.header.height = QStringLiteral("3/5");
    return CanvasWriter(2000022)
        .start(page(4.0, 2.0, whiteLabel, blueRibbon))
        .add(shape(QStringLiteral("Oval"), {2.9, 0.25, 0.9, 0.9}, 3.0))
        .add(text({2.9, 0.52, 0.9, 0.36}, QStringLiteral("25 kg"), 16.0, true, centred))
        .add(sale)
        .add(text({0.2, 1.0, 2.5, 0.3}, QStringLiteral("Wheat flour, type 55"), 14.0))
        .add(bound(text({0.2, 1.6, 3.6, 0.25}, QStringLiteral("Packed on 5/01/2024"), 9.0),
                   QStringLiteral("_SPECIAL"), QStringLiteral("Packed on %_DATES%")))
        .add(shape(QStringLiteral("HorizontalLine"), {0.2, 1.5, 3.6, 0.0}, 1.0))
        .bytes();
}

QByteArray parcelLabel()
{
    canvas::SymbolRecord wheel = symbol(QStringLiteral("mill.svg"), 0.2, 0.2, 1.1);
    wheel.svg = millWheelSvg();
    CanvasWriter writer(2000023);
    writer.start(page(4.0, 3.0))
        .add(wheel)
        .add(text({1.5, 0.3, 2.3, 0.45}, QStringLiteral("Harbour Mill"), 24.0, true))
        .add(text({1.5, 0.8, 2.3, 0.3}, QStringLiteral("Stone-ground since spring"), 11.0))
        .add(shape(QStringLiteral("HorizontalLine"), {0.2, 1.45, 3.6, 0.0}, 2.0));
    double x = 0.3;
    for (const char* name : {"fragile.svg", "this_way_up.svg", "keep_dry.svg", "no_forklift.svg"}) {
        writer.add(symbol(QString::fromLatin1(name), x, 1.65, 0.7));
        x += 0.9;
    }
    x = 0.35;
    for (const char* name : {"Diamond", "Hexagon", "Octagon", "Triangle"}) {
        writer.add(shape(QString::fromLatin1(name), {x, 2.5, 0.25, 0.25}, 1.0, RibbonColor));
        x += 0.4;
    }
    writer.add(bound(text({2.2, 2.5, 1.6, 0.25}, QStringLiteral("1 January 2024"), 10.0, false,
                          Qt::AlignRight | Qt::AlignVCenter),
                     QStringLiteral("_DATEX")));
    return writer.bytes();
}

QByteArray memberCard()
{
    canvas::DatabaseList databases;
    databases.selected = 1;
    databases.entries = {{QStringLiteral("members"), 0},
                         {QStringLiteral("C:\\data\\members.csv"), 0}};
    return CanvasWriter(2000024)
        .start(page(3.4, 2.1, whiteLabel, blueRibbon), {}, databases)
        .add(shape(QStringLiteral("RoundedRectangle"), {0.05, 0.05, 3.3, 2.0}, 2.0))
        .add(shape(QStringLiteral("Rectangle"), {0.05, 0.3, 3.3, 0.4}, 0.0, RibbonColor))
        .add(inverse(text({0.2, 0.34, 3.0, 0.34}, QStringLiteral("ROWING CLUB"), 18.0, true,
                          Qt::AlignLeft | Qt::AlignVCenter)))
        .add(bound(text({0.2, 0.9, 2.0, 0.3}, QStringLiteral("Robin Marsh"), 16.0, true),
                   QStringLiteral("Record")))
        .add(bound(text({0.2, 1.25, 2.0, 0.25}, QStringLiteral("Member 0117"), 11.0),
                   QStringLiteral("Record")))
        .add(text({0.2, 1.65, 2.0, 0.22}, QStringLiteral("Valid until the end of the year"), 8.0))
        .add(barcode(qrCode, {2.2, 0.85, 1.0, 1.0}, QStringLiteral("member:0117")),
             canvas::TwoDimensionalBarcodeCode)
        .bytes();
}

} // namespace

QList<SampleLabel> sampleLabels()
{
    return {
        {QStringLiteral("address_2000016.cnv"), addressLabel()},
        {QStringLiteral("picture_2000017.cnv"), pictureLabel()},
        {QStringLiteral("cable_marker_2000018.cnv"), cableMarker()},
        {QStringLiteral("warning_sign_2000019.roc"), warningSign()},
        {QStringLiteral("asset_tag_2000020.cnv"), assetTag()},
        {QStringLiteral("shelf_label_2000021.roc"), shelfLabel()},
        {QStringLiteral("stretched_text_2000022.cnv"), stretchedLabel()},
        {QStringLiteral("parcel_2000023.roc"), parcelLabel()},
        {QStringLiteral("member_card_2000024.cnv"), memberCard()},
    };
}

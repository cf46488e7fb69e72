#include "tests/hostile/complete_labels.h"

#include "tests/opendocument/documents.h"
#include "tests/support/canvas_writer/canvas_writer.h"
#include "tests/support/encoded_picture.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Svg[] = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                       "<rect width='9' height='9'/></svg>";

QImage smallImage()
{
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

QByteArray canvasFile()
{
    CanvasWriter writer(2000024);
    writer.start();
    for (const char* name : {"HorizontalLine", "VerticalLine", "RoundedRectangle", "Triangle",
                             "Octagon", "Diamond", "Hexagon", "Oval", "Square"}) {
        canvas::ShapeRecord shape;
        shape.name = QString::fromLatin1(name);
        writer.add(shape);
    }
    canvas::TextRecord text;
    text.content = u"Net weight"_s;
    text.datasourceKey = u"_SEQUENCE"_s;
    writer.add(text);
    canvas::BarcodeRecord barcode;
    barcode.content = u"123"_s;
    barcode.datasourceKey = u"_DATE"_s;
    writer.add(barcode);
    canvas::SymbolRecord symbol;
    symbol.svg = Svg;
    writer.add(symbol);
    canvas::PictureRecord picture;
    picture.picture = smallImage();
    return writer.add(picture).bytes();
}

QByteArray shapeControl(int sides, int index = 1)
{
    return "<transparent_shape><sides>" + QByteArray::number(sides) + "</sides><shape_index>" +
           QByteArray::number(index) + "</shape_index></transparent_shape>";
}

QByteArray pictureControl(const QByteArray& bytes)
{
    return "<picture_box><image><content>" + bytes.toBase64() + "</content></image></picture_box>";
}

QByteArray xmlLabel()
{
    return "<qmtx><pre_printed_image><content>" + encoded(smallImage()).toBase64() +
           "</content></pre_printed_image><controls>"
           "<barcode><ArrayOfString><string>1</string></ArrayOfString></barcode>"
           "<combo_box><ArrayOfAnyType><a>x</a></ArrayOfAnyType></combo_box>"
           "<date_time_picker/><numeric_up_down/>"
           "<transparent_label><items><a>1</a></items></transparent_label>"
           "<swap_text_box><scaleable>true</scaleable></swap_text_box>" +
           shapeControl(0, 1) + shapeControl(0, 3) + shapeControl(0, 5) + shapeControl(4) +
           shapeControl(5) + shapeControl(6) + shapeControl(8) + pictureControl(Svg) +
           pictureControl(encoded(smallImage())) + "</controls></qmtx>";
}

QByteArray customShape(const char* type)
{
    return QByteArray("<draw:custom-shape svg:width='1in' svg:height='1in'>"
                      "<draw:enhanced-geometry draw:type='") +
           type + "'/></draw:custom-shape>";
}

QByteArray image(const char* name)
{
    return QByteArray("<draw:frame svg:width='1in' svg:height='1in'><draw:image xlink:href='") +
           name + "'/></draw:frame>";
}

QByteArray drawing()
{
    QByteArray shapes =
        "<draw:line svg:x1='1in'/><draw:measure draw:z-index='1' svg:x1='1in'/>"
        "<draw:rect svg:width='1in'><text:p>In a box</text:p></draw:rect>"
        "<draw:ellipse draw:z-index='4'/><draw:rect draw:corner-radius='0.1in'/>"
        "<draw:frame><draw:text-box fo:min-height='1in'><text:p>Text</text:p></draw:text-box>"
        "</draw:frame>";
    for (const char* type : {"right-triangle", "isosceles-triangle", "pentagon", "diamond",
                             "hexagon", "octagon", "mso-spt100"}) {
        shapes += customShape(type);
    }
    return drawingXml(shapes + image("Pictures/1.png") + image("Pictures/1.svg"));
}

QByteArray openDocumentFile()
{
    Package package(stylesXml(), drawing());
    package.add(u"Pictures/1.png"_s, encoded(smallImage()));
    package.add(u"Pictures/1.svg"_s, Svg);
    return package.bytes();
}

const char* suffixOf(ReaderKind reader)
{
    switch (reader) {
    case ReaderKind::Orvanta:
        return "qmtx";
    case ReaderKind::OpenDocument:
        return "odg";
    case ReaderKind::Tavrel:
        break;
    }
    return "cnv";
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

} // namespace

CompleteLabels::CompleteLabels()
{
    write(path(ReaderKind::Tavrel), canvasFile());
    write(path(ReaderKind::Orvanta), xmlLabel());
    write(path(ReaderKind::OpenDocument), openDocumentFile());
}

QString CompleteLabels::path(ReaderKind reader) const
{
    return m_folder.filePath(u"label."_s + QLatin1String(suffixOf(reader)));
}

CompleteLabels::Counts CompleteLabels::items(ReaderKind reader)
{
    using namespace KestTypes;
    switch (reader) {
    case ReaderKind::Orvanta:
        return {{Picture, 2}, {Symbol, 1},    {SimpleText, 4}, {RichText, 1},
                {Barcode, 1}, {Rectangle, 1}, {Ellipse, 1},    {Triangle, 1},
                {Diamond, 1}, {Pentagon, 1},  {Hexagon, 1},    {Octagon, 1}};
    case ReaderKind::OpenDocument:
        return {{Picture, 1},       {Symbol, 1},           {RichText, 2}, {Line, 2},
                {Rectangle, 2},     {RoundedRectangle, 1}, {Ellipse, 1},  {Pie, 1},
                {RightTriangle, 1}, {Triangle, 1},         {Diamond, 1},  {Pentagon, 1},
                {Hexagon, 1},       {Octagon, 1}};
    case ReaderKind::Tavrel:
        break;
    }
    return {{Picture, 1},  {Symbol, 1},    {SimpleText, 1},       {Barcode, 1},
            {Line, 2},     {Rectangle, 1}, {RoundedRectangle, 1}, {Ellipse, 1},
            {Triangle, 1}, {Diamond, 1},   {Hexagon, 1},          {Octagon, 1}};
}

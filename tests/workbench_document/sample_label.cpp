#include "sample_label.h"

#include <QVariantMap>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;

namespace {

const QByteArray Drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10">)"
                           R"(<rect width="20" height="5"/></svg>)";

QImage checkered()
{
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            image.setPixel(x, y, (x + y) % 2 ? 0x80402010U : 0xff000000U);
        }
    }
    return image;
}

void addTextGroups(ItemValues& item)
{
    item.font = FontValues{u"DejaVu Sans"_s, 14, true, true, true, true};
    item.textStyle = TextStyleValues{QColor(1, 2, 3), Qt::AlignRight | Qt::AlignBottom};
    item.datasource = DatasourceValues{2, {u"Date"_s}};
}

} // namespace

QList<KestTypes::ShapeType> allTypes()
{
    using namespace KestTypes;
    return {Picture,          Symbol,  SimpleText, RichText,      Barcode,  Line,
            Rectangle,        Ellipse, Pie,        RightTriangle, Triangle, Diamond,
            RoundedRectangle, Octagon, Pentagon,   Hexagon};
}

ItemValues sampleItem(KestTypes::ShapeType type)
{
    ItemValues item;
    item.type = type;
    item.box = {{100.25, 50.5}, 30.0, true, false};
    item.placement = {{12.5, -7.25}, 3.0, false, true, false};
    item.pen = PenValues{QColor(10, 20, 30, 40), 2, Qt::DashLine, Qt::RoundCap, Qt::BevelJoin};
    item.fill = FillValues{QColor(50, 60, 70), false, Qt::CrossPattern};
    if (type == KestTypes::RoundedRectangle) {
        item.corner = CornerValues{4.5};
    }
    if (type == KestTypes::Line) {
        item.line = LineValues{{100.25, 50.5}, 0x10, 8};
    }
    if (type == KestTypes::Picture) {
        item.picture = PictureValues{checkered()};
    }
    if (type == KestTypes::Symbol) {
        item.symbol = SymbolValues{Drawing, QColor(Qt::blue), QColor(Qt::yellow)};
    }
    if (type == KestTypes::Barcode) {
        item.barcode = BarcodeValues{58,
                                     u"content"_s,
                                     false,
                                     1,
                                     2,
                                     true,
                                     true,
                                     1,
                                     3,
                                     4,
                                     QColor(Qt::darkBlue),
                                     QColor(Qt::white)};
    }
    if (type == KestTypes::Barcode || type == KestTypes::SimpleText ||
        type == KestTypes::RichText) {
        addTextGroups(item);
    }
    if (type == KestTypes::SimpleText) {
        item.text = TextValues{u"two\nlines \u00e4\u4e2d"_s, {}};
        item.textLabel = TextLabelValues{{80.0, 40.0}, 1, true, true};
    }
    if (type == KestTypes::RichText) {
        item.text = TextValues{{}, u"<p>a <b>bold</b> word</p>"_s};
    }
    return item;
}

document::SavedLabel sampleLabel()
{
    document::SavedLabel label;
    label.page = {{200.5, 100.25}, true, true, QColor(250, 240, 230), QColor(0, 0, 128)};
    label.datasources = {
        {1,
         u"SequenceDatasource"_s,
         {{u"Prefix"_s, u"No. "_s},
          {u"Suffix"_s, QString()},
          {u"Start"_s, 1},
          {u"End"_s, 100},
          {u"Step"_s, 1},
          {u"ZeroPad"_s, 4}},
         {}},
        {2,
         u"SystemDatasource"_s,
         {{u"DateFormat"_s, u"yyyy"_s}, {u"TimeFormat"_s, QString()}},
         {u"Date"_s}},
        {3, u"TextListDatasource"_s, {{u"TextList"_s, QStringList{u"x"_s, QString()}}}, {}}};
    for (const KestTypes::ShapeType type : allTypes()) {
        label.items << sampleItem(type);
    }
    return label;
}

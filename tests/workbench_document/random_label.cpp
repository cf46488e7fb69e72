#include "random_label.h"

#include "sample_label.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;

namespace {

template <class T>
T any()
{
    return *rc::gen::arbitrary<T>();
}

bool coin()
{
    return any<bool>();
}

/// Any text, including invalid Unicode.
QString anyText()
{
    const auto units = any<std::vector<quint16>>();
    QString text;
    for (const quint16 unit : units) {
        text +=
            QChar(coin() ? static_cast<char16_t>('a' + unit % 26) : static_cast<char16_t>(unit));
    }
    return text;
}

QStringList anyTexts()
{
    QStringList texts;
    for (int i = *rc::gen::inRange(0, 4); i > 0; --i) {
        texts << anyText();
    }
    return texts;
}

double anyLength()
{
    return std::clamp(any<double>(), -1e6, 1e6);
}

QColor anyColor()
{
    switch (*rc::gen::inRange(0, 4)) {
    case 0:
        return {};
    case 1:
        return QColor::fromRgba64(any<quint16>(), any<quint16>(), any<quint16>(), any<quint16>());
    default:
        return QColor::fromRgba(any<quint32>());
    }
}

QImage anyImage()
{
    if (*rc::gen::inRange(0, 4) == 0) {
        return {};
    }
    const auto format = *rc::gen::element(QImage::Format_RGB32, QImage::Format_ARGB32,
                                          QImage::Format_ARGB32_Premultiplied);
    QImage image(*rc::gen::inRange(1, 6), *rc::gen::inRange(1, 6), format);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::generate(line, line + image.width(), any<quint32>);
    }
    return image;
}

BoxValues anyBox()
{
    return {{anyLength(), anyLength()}, anyLength(), coin(), coin()};
}

PlacementValues anyPlacement()
{
    return {{anyLength(), anyLength()}, anyLength(), coin(), coin(), coin()};
}

TextValues anyContent()
{
    const QString html =
        *rc::gen::element(QString(), u"<p>plain</p>"_s, u"<b>bold</b> <i>slanted</i>"_s,
                          u"<p align=\"right\"><span style=\"font-family:'Serif';font-size:7pt;"
                          "color:#ff0000\">red</span><br/>below</p>"_s,
                          u"<ul><li>one</li><li>two &amp; &#x4e2d;</li></ul>"_s);
    return {anyText(), html};
}

BarcodeValues anyBarcode()
{
    return {any<int>(), anyText(),  coin(),     any<int>(), any<int>(), coin(),
            coin(),     any<int>(), any<int>(), any<int>(), anyColor(), anyColor()};
}

ItemValues anyItem()
{
    const QList<KestTypes::ShapeType> types = allTypes();
    const auto type = *rc::gen::inRange<qsizetype>(0, types.size());
    ItemValues item = sampleItem(types[type]);
    item.box = anyBox();
    item.placement = anyPlacement();
    if (coin()) {
        item.pen =
            PenValues{anyColor(), double(any<quint16>()), any<int>(), any<int>(), any<int>()};
    }
    if (coin()) {
        item.fill = FillValues{anyColor(), coin(), any<int>()};
    }
    if (coin()) {
        item.corner = CornerValues{coin() ? std::optional(anyLength()) : std::nullopt};
    }
    if (coin()) {
        item.font =
            FontValues{anyText(), *rc::gen::inRange(1, 200), coin(), coin(), coin(), coin()};
    }
    if (coin()) {
        item.textStyle = TextStyleValues{anyColor(), Qt::Alignment(any<quint8>())};
    }
    if (coin()) {
        item.text = anyContent();
    }
    if (coin()) {
        item.textLabel = TextLabelValues{
            {anyLength(), anyLength()}, *rc::gen::inRange<signed char>(-128, 127), coin(), coin()};
    }
    if (coin()) {
        item.line = LineValues{{anyLength(), anyLength()}, any<int>(), any<int>()};
    }
    if (coin()) {
        item.barcode = anyBarcode();
    }
    if (coin()) {
        item.picture = PictureValues{anyImage()};
    }
    if (coin()) {
        item.symbol = SymbolValues{anyText().toUtf8(), anyColor(), anyColor()};
    }
    if (coin()) {
        item.datasource = DatasourceValues{any<int>(), anyTexts()};
    }
    return item;
}

} // namespace

rc::Gen<document::SavedLabel> anyLabel()
{
    return rc::gen::exec([] {
        document::SavedLabel label = sampleLabel();
        label.page = {{anyLength(), anyLength()}, coin(), coin(), anyColor(), anyColor()};
        label.datasources[0].properties[u"Prefix"_s] = anyText();
        label.datasources[0].properties[u"Start"_s] = any<int>();
        label.datasources[2].properties[u"TextList"_s] = anyTexts();
        label.items.clear();
        for (int i = *rc::gen::inRange(0, 8); i > 0; --i) {
            label.items << anyItem();
        }
        return label;
    });
}

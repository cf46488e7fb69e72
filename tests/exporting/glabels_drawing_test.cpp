// What labels for gLabels embed as drawings.

#include "glabels_fixture.h"

#include "exporting/glabels_document.h"

#include <QImage>
#include <QRandomGenerator>

#include <gmock/gmock.h>

namespace {

using namespace exporting;
using namespace workbench;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

// Noise cannot be compressed.
ItemValues noiseOf(const QSizeF& box)
{
    ItemValues picture;
    picture.type = KestTypes::Picture;
    picture.box.size = box;
    picture.placement.position = {10, 20};
    QImage image(2000, 1500, QImage::Format_RGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32*>(image.bits()),
                                  image.sizeInBytes() / 4);
    picture.picture = PictureValues{image};
    return picture;
}

/// The size of the first picture in the drawings of a label.
QSize sizeOfEmbedded(const QByteArray& label)
{
    constexpr QByteArrayView start("data:image/png;base64,");
    const qsizetype from = label.indexOf(start) + start.size();
    const QByteArray encoded = label.mid(from, label.indexOf('"', from) - from);
    return QImage::fromData(QByteArray::fromBase64(encoded)).size();
}

TEST_F(Glabels, EmbedsWhatItCannotDraw)
{
    ItemValues dashed = shapeOf(KestTypes::Rectangle);
    dashed.pen->style = Qt::DashLine;
    ItemValues gradient = shapeOf(KestTypes::Rectangle);
    gradient.fill->style = Qt::LinearGradientPattern;
    ItemValues beveled = shapeOf(KestTypes::Rectangle);
    beveled.pen->join = Qt::BevelJoin;
    ItemValues arrow = itemOf(KestTypes::Line);
    arrow.pen = PenValues{Qt::black, 1.0};
    arrow.line = LineValues{{50, 10}, 0, 1};
    for (const ItemValues& values :
         {dashed, gradient, beveled, arrow, shapeOf(KestTypes::Diamond), shapeOf(KestTypes::Pie),
          shapeOf(KestTypes::RoundedRectangle)}) {
        canvas.clear();
        canvas.addItem(values);
        EXPECT_EQ(onlyFidelity(), Fidelity::Picture);
        EXPECT_THAT(xml(), HasSubstr(R"(<Object-image)"));
        EXPECT_THAT(xml(), HasSubstr(R"(<File name="drawing-1.svg" format="SVG"><![CDATA[)"));
        EXPECT_THAT(xml(), HasSubstr(R"(preserveAspectRatio="none")"));
    }
}

TEST_F(Glabels, ScalesPicturesDownThatAreTooLargeToEmbed)
{
    canvas.addItem(noiseOf({1440, 1080}));
    const GlabelsLabel label = write();
    EXPECT_LT(label.label.size(), MaximumEmbedded + 2000);
    EXPECT_EQ(label.findings.all().value(0).fidelity, Fidelity::Simplified);
    EXPECT_GT(label.label.size(), MaximumEmbedded * 6 / 10);
}

TEST_F(Glabels, ScalesLargeDrawingsDownToTheResolutionOfPrinters)
{
    canvas.addItem(noiseOf({72, 36}));
    EXPECT_EQ(sizeOfEmbedded(write().label), QSize(300, 150));
}

// Qt's SVG generator ignores the place and the size of radial gradients.
TEST_F(Glabels, EmbedsRadialGradientsOfSymbolsAsDots)
{
    const QByteArray symbol =
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 10 10"><defs>)"
        R"(<%1Gradient id="g" cx="0.5" cy="0.5" r="0.5"><stop offset="0" stop-color="#00ff00"/>)"
        R"(<stop offset="1" stop-color="#0000ff"/></%1Gradient></defs>)"
        R"svg(<rect width="10" height="10" fill="url(#g)"/></svg>)svg";
    ItemValues item = itemOf(KestTypes::Symbol, {72, 36});
    item.symbol = SymbolValues{QByteArray(symbol).replace("%1", "radial")};
    canvas.addItem(item);
    EXPECT_THAT(xml(), Not(HasSubstr("<radialGradient")));
    EXPECT_EQ(sizeOfEmbedded(write().label), QSize(300, 150));

    item.box.size = {1'000'000, 10};
    canvas.clear();
    canvas.addItem(item);
    EXPECT_EQ(sizeOfEmbedded(write().label), QSize(4000, 1));

    item.symbol = SymbolValues{QByteArray(symbol).replace("%1", "linear")};
    canvas.clear();
    canvas.addItem(item);
    EXPECT_THAT(xml(), HasSubstr("<linearGradient"));
}

TEST_F(Glabels, LimitsTheDotsOfLongDrawings)
{
    canvas.addItem(noiseOf({1'000'000, 0.5}));
    EXPECT_EQ(sizeOfEmbedded(write().label), QSize(4000, 1));
}

TEST_F(Glabels, LimitsTheUnitsOfLongDrawings)
{
    ItemValues diamond = shapeOf(KestTypes::Diamond);
    diamond.pen = PenValues{Qt::black, 0.0, Qt::NoPen};
    diamond.box.size = {10'000'000, 10};
    canvas.addItem(diamond);
    EXPECT_THAT(xml(), HasSubstr(R"(<svg width="100000000" height=")"));
}

TEST_F(Glabels, EmbedsPicturesExactly)
{
    ItemValues picture = itemOf(KestTypes::Picture);
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(1, 2, 3, 255));
    image.setPixelColor(1, 0, QColor(4, 5, 6, 7));
    picture.picture = PictureValues{image};
    picture.box.flipHorizontal = true;
    canvas.addItem(picture);
    const GlabelsLabel label = write();
    EXPECT_EQ(sizeOfEmbedded(label.label), image.size());
    EXPECT_THAT(label.label.toStdString(),
                HasSubstr(R"(<Object-image x="10pt" y="20pt" w="40pt" h="20pt")"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

} // namespace

#include "workbench/symbols/symbol_data.h"

#include "host/services/symbol_creator.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

using namespace workbench::symbols;

namespace {

QByteArray svg(const QByteArray& attributes, const QByteArray& content = "<path d=\"M0 0\"/>")
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes + ">" + content + "</svg>";
}

/// The symbol on a white picture of this size.
QImage drawn(const QByteArray& symbol, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(symbol).render(&painter, QRectF(QPointF(), size));
    return image;
}

constexpr double PointsPerMm = 72.0 / 25.4;

} // namespace

TEST(SymbolData, HasTheSizeThatTheDocumentGives)
{
    const struct
    {
        const char* attributes;
        double width;
        double height;
    } rows[] = {
        {R"(width="200mm" height="10mm")", 200 * PointsPerMm, 10 * PointsPerMm},
        {R"(width="20cm" height="1cm")", 200 * PointsPerMm, 10 * PointsPerMm},
        {R"(width="2in" height="0.5in")", 144, 36},
        {R"(width="144pt" height="36pt")", 144, 36},
        {R"(width="12pc" height="3pc")", 144, 36},
        {R"(width="192px" height="48px")", 144, 36},
        {R"(width="192" height="48")", 144, 36},
        {R"(width="200mm" height="10mm" viewBox="0 0 7 99")", 200 * PointsPerMm, 10 * PointsPerMm},
        {R"(viewBox="-5 3 192 48")", 144, 36},
        {R"(viewBox="0,0,192,48")", 144, 36},
        {R"(width="100%" height="100%" viewBox="0 0 192 48")", 144, 36},
        {R"(width="50%" height="200%" viewBox="0 0 384 24")", 144, 36},
        {R"(width="144pt" viewBox="0 0 40 10")", 144, 36},
        {R"(height="36pt" viewBox="0 0 40 10")", 144, 36},
        {R"(width="auto" height="" viewBox="0 0 192 48")", 144, 36},
        {R"(width="192" height="48" viewBox="0 0 0 0")", 144, 36},
        {R"(width="192" height="48" viewBox="rubbish")", 144, 36},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.attributes);
        const auto symbol = makeSymbolData(svg(row.attributes));
        ASSERT_TRUE(symbol);
        EXPECT_NEAR(naturalSize(*symbol).width(), row.width, 1e-6);
        EXPECT_NEAR(naturalSize(*symbol).height(), row.height, 1e-6);
    }
}

TEST(SymbolData, MeasuresADocumentWithoutAnySizeByWhatItDraws)
{
    const auto symbol =
        makeSymbolData(svg("", R"(<rect x="10" y="20" width="96" height="48" stroke="none"/>)"));
    ASSERT_TRUE(symbol);
    EXPECT_EQ(naturalSize(*symbol), QSizeF(72, 36));
    EXPECT_EQ(drawn(*symbol, {8, 4}).pixelColor(4, 2), QColor(Qt::black));

    const auto percent = makeSymbolData(
        svg(R"(width="100%" height="96")", R"(<rect x="10" y="20" width="86" height="48"/>)"));
    ASSERT_TRUE(percent);
    EXPECT_EQ(naturalSize(*percent), QSizeF(72, 72));
}

TEST(SymbolData, RefusesWhatHasNoSizeOrAMonstrousOne)
{
    for (const char* attributes :
         {R"(width="0" height="10")", R"(width="-5" height="10")", R"(width="1e300" height="10")",
          R"(width="0%" height="10%" viewBox="0 0 10 10")", ""}) {
        EXPECT_FALSE(makeSymbolData(svg(attributes, ""))) << attributes;
    }
}

TEST(SymbolData, TakesTheTargetForItsSize)
{
    const QByteArray document =
        svg(R"(viewBox="0 0 10 10")", R"(<rect width="5" height="10" fill="red"/>)");
    const auto symbol = makeSymbolData(document, {300, 20});
    ASSERT_TRUE(symbol);
    EXPECT_EQ(naturalSize(*symbol), QSizeF(300, 20));
    const QImage image = drawn(*symbol, {300, 20});
    EXPECT_EQ(image.pixelColor(140, 10), QColor(Qt::red)) << "stretched to the target";
    EXPECT_EQ(image.pixelColor(160, 10), QColor(Qt::white));
    for (const QSizeF& none : {QSizeF(0, 0), QSizeF(300, 0), QSizeF(0, 20), QSizeF(-1, -1)}) {
        EXPECT_EQ(naturalSize(makeSymbolData(document, none).value_or("")), QSizeF(7.5, 7.5));
    }
}

TEST(SymbolData, IsReadAgainAsTheSameSymbol)
{
    for (const QByteArray& document :
         {svg(R"(width="200mm" height="10mm" viewBox="0 0 50 50")"), svg(R"(viewBox="1 2 3 4")"),
          svg(R"(width="33" height="77")", R"(<text font-size="7mm" x="1cm">a &amp; b</text>)")}) {
        const auto once = makeSymbolData(document);
        ASSERT_TRUE(once);
        EXPECT_EQ(makeSymbolData(*once), once);
    }
}

TEST(SymbolData, ShowsTheViewBoxInItsProportions)
{
    const QByteArray content = R"(<rect width="10" height="10" fill="red"/>)";
    const struct
    {
        const char* aspectRatio;
        int redFrom;
        int redTo;
    } rows[] = {
        {"", 45, 54},    {"xMidYMid meet", 45, 54}, {"xMinYMin", 0, 9}, {"xMaxYMax meet", 90, 99},
        {"none", 0, 99}, {"xMidYMid slice", 0, 99},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.aspectRatio);
        const auto symbol = makeSymbolData(
            svg(QByteArray(R"(width="100" height="10" viewBox="0 0 10 10" preserveAspectRatio=")") +
                    row.aspectRatio + "\"",
                content));
        ASSERT_TRUE(symbol);
        const QImage image = drawn(*symbol, {100, 10});
        EXPECT_EQ(image.pixelColor(row.redFrom + 1, 5), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(row.redTo - 1, 5), QColor(Qt::red));
        if (row.redFrom > 0) {
            EXPECT_EQ(image.pixelColor(row.redFrom - 2, 5), QColor(Qt::white));
        }
        if (row.redTo < 99) {
            EXPECT_EQ(image.pixelColor(row.redTo + 2, 5), QColor(Qt::white));
        }
    }
}

TEST(SymbolData, DrawsInnerLengthsTrue)
{
    const auto symbol = makeSymbolData(
        svg(R"(width="100mm" height="10mm")", R"(<rect width="50mm" height="10mm" fill="red"/>)"));
    ASSERT_TRUE(symbol);
    const QImage image = drawn(*symbol, {100, 10});
    EXPECT_EQ(image.pixelColor(48, 5), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(51, 5), QColor(Qt::white));
}

TEST(SymbolData, OnlySymbolDataHasANaturalSize)
{
    for (const QByteArray& other :
         {QByteArray(), QByteArray("x"), svg(R"(width="10" height="10")"),
          svg(R"(width="nanpt" height="10pt")"), svg(R"(width="-1pt" height="10pt")"),
          QByteArray("<g width=\"1pt\" height=\"1pt\"/>")}) {
        EXPECT_EQ(naturalSize(other), QSizeF(0, 0)) << other.toStdString();
    }
}

TEST(SymbolCreator, ConvertsOneDocumentAfterAnother)
{
    SymbolCreator creator(nullptr);
    EXPECT_FALSE(creator.convertSvgToSymbol(QRectF()));
    EXPECT_TRUE(creator.getSymbolData().isEmpty());

    creator.loadImportedSvg(svg(R"(width="200mm" height="10mm")"));
    EXPECT_TRUE(creator.getSymbolData().isEmpty()) << "not converted yet";
    ASSERT_TRUE(creator.convertSvgToSymbol(QRectF()));
    EXPECT_NEAR(naturalSize(creator.getSymbolData()).width(), 200 * PointsPerMm, 1e-6);
    ASSERT_TRUE(creator.convertSvgToSymbol(QRectF(5, 5, 30, 40)));
    EXPECT_EQ(naturalSize(creator.getSymbolData()), QSizeF(30, 40));

    creator.loadImportedSvg("no drawing");
    EXPECT_FALSE(creator.convertSvgToSymbol(QRectF()));
    EXPECT_TRUE(creator.getSymbolData().isEmpty()) << "never the drawing before";
}

TEST(SymbolData, HasALargestSize)
{
    const auto isSymbol = [](const QByteArray& size) {
        return makeSymbolData(svg(size)).has_value();
    };
    static_assert(MaximumSymbolSide == 100'000.0);
    EXPECT_TRUE(isSymbol("width='100000pt' height='10'"));
    EXPECT_FALSE(isSymbol("width='100001pt' height='10'"));
    EXPECT_FALSE(isSymbol("width='10' height='100001pt'"));
}

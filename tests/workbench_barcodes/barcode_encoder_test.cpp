#include "workbench/barcodes/barcode_encoder.h"

#include "sample_contents.h"

#include "workbench/barcodes/symbologies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::barcodes;
using testing::HasSubstr;

namespace {

BarcodeRequest request(int symbology, const QString& content)
{
    return {symbology, content};
}

/// A symbol has either bars within its size or an error.
void expectSound(const BarcodeSymbol& symbol)
{
    if (!symbol.isValid()) {
        EXPECT_TRUE(symbol.bars.isEmpty());
        EXPECT_TRUE(symbol.error.endsWith(u'.')) << symbol.error.toStdString();
        return;
    }
    ASSERT_TRUE(std::isfinite(symbol.size.width()) && std::isfinite(symbol.size.height()));
    EXPECT_FALSE(symbol.size.isEmpty());
    EXPECT_FALSE(symbol.bars.isEmpty() && symbol.coloredBars.isEmpty() &&
                 symbol.hexagons.isEmpty() && symbol.circles.isEmpty());
    const QRectF whole = QRectF(QPointF(), symbol.size).adjusted(-0.01, -0.01, 0.01, 0.01);
    for (const QRectF& bar : symbol.bars) {
        ASSERT_TRUE(whole.contains(bar));
    }
}

} // namespace

TEST(BarcodeEncoder, CountsInModules)
{
    // Eleven modules per character, two start and stop characters and a check character, and
    // a final bar of two.
    const BarcodeSymbol symbol = encode(request(20, u"AB"_s));
    ASSERT_TRUE(symbol.isValid());
    EXPECT_DOUBLE_EQ(symbol.size.width(), 11.0 * 5 + 2.0);
    EXPECT_FALSE(symbol.fixedRatio);
    for (const QRectF& bar : symbol.bars) {
        EXPECT_DOUBLE_EQ(bar.width(), std::round(bar.width()));
    }

    const BarcodeSymbol matrix = encode(request(58, u"1"_s));
    EXPECT_EQ(matrix.size, QSizeF(21, 21));
    EXPECT_TRUE(matrix.fixedRatio);
}

TEST(BarcodeEncoder, EverySampleIsSound)
{
    for (const samples::Sample& sample : samples::Samples) {
        SCOPED_TRACE(sample.code);
        expectSound(encode(request(sample.code, QString::fromUtf16(sample.content))));
    }
}

TEST(BarcodeEncoder, CaptionsWhatALinearSymbologyHolds)
{
    EXPECT_EQ(encode(request(8, u"AB"_s)).caption, u"*AB*"_s);
    EXPECT_EQ(encode(request(13, u"590123412345"_s)).caption, u"5901234123457"_s);
    EXPECT_EQ(encode(request(16, u"(01)09501101530003"_s)).caption, u"(01)09501101530003"_s);
    EXPECT_EQ(encode(request(58, u"AB"_s)).caption, QString());
    BarcodeRequest silent = request(8, u"AB"_s);
    silent.flag3 = false;
    EXPECT_EQ(encode(silent).caption, QString());
}

TEST(BarcodeEncoder, SurroundsWithBlankMarginsOrBarsOnRequest)
{
    const BarcodeSymbol plain = encode(request(20, u"AB"_s));
    BarcodeRequest blank = request(20, u"AB"_s);
    blank.flag1 = true;
    EXPECT_DOUBLE_EQ(encode(blank).size.width(), plain.size.width() + 20.0);
    BarcodeRequest barred = request(20, u"AB"_s);
    barred.flag2 = true;
    EXPECT_EQ(encode(barred).bars.size(), plain.bars.size() + 2);
    BarcodeRequest matrix = request(58, u"AB"_s);
    matrix.flag2 = true;
    EXPECT_EQ(encode(matrix).bars, encode(request(58, u"AB"_s)).bars);
}

TEST(BarcodeEncoder, TakesTheSettingsOfTheSymbology)
{
    const auto widthOf = [](const BarcodeRequest& each) { return encode(each).size.width(); };
    BarcodeRequest check = request(8, u"AB"_s);
    const double unchecked = widthOf(check);
    check.option = 1;
    EXPECT_DOUBLE_EQ(widthOf(check), unchecked + 13.0) << "one character more, with its gap";

    BarcodeRequest columns = request(55, u"columns"_s);
    columns.option = 7;
    EXPECT_DOUBLE_EQ(widthOf(columns), 17.0 * (7 + 4) + 1.0);

    BarcodeRequest version = request(58, u"A"_s);
    version.number = 10;
    EXPECT_DOUBLE_EQ(widthOf(version), 17.0 + 4.0 * 10);

    BarcodeRequest level = request(58, QString(20, u'x'));
    const double low = widthOf(level);
    level.value = 4;
    EXPECT_GT(widthOf(level), low);
}

TEST(BarcodeEncoder, LeavesOutSettingsThatCannotBe)
{
    const BarcodeRequest plain = request(58, u"A"_s);
    for (const int number : {-1, 41, 1'000'000}) {
        EXPECT_EQ(encode({58, plain.content, true, false, false, 0, number, 0}).size,
                  encode(plain).size);
    }
    EXPECT_EQ(encode({58, plain.content, true, false, false, 0, 0, 99}).bars, encode(plain).bars);
    const BarcodeSymbol tooSmall = encode({58, QString(500, u'x'), true, false, false, 0, 1, 0});
    EXPECT_TRUE(tooSmall.isValid()) << "the content counts more than the size";
}

TEST(BarcodeEncoder, ExplainsWhatCannotBeEncoded)
{
    const struct
    {
        int symbology;
        const char* content;
        const char* words;
    } rows[] = {
        {8, "", "Code 39: there is no content to encode."},
        {8, "\xc3\xa4", "Code 39: the content does not suit this kind of barcode ("},
        {14, "5901234123450", "EAN with check digit: the content ends in a wrong check digit ("},
        {51, "1234567", "Pharmacode: the content has a length that this kind of barcode does not"},
        {16, "12345", "GS1-128: the content does not suit this kind of barcode ("},
        {130, "331234567890", "EAN Composite: the content needs a linear part, a \"|\" and"},
        {5, "1", "The label has an unknown kind of barcode (number 5)."},
        {-1, "1", "The label has an unknown kind of barcode (number -1)."},
        {0x10008, "1", "unknown kind of barcode"},
        {28, "0", "Flattermarken: the content gives no bars at all."},
    };
    for (const auto& row : rows) {
        const BarcodeSymbol symbol = encode(request(row.symbology, QString::fromUtf8(row.content)));
        EXPECT_THAT(symbol.error.toStdString(), HasSubstr(row.words));
        EXPECT_THAT(symbol.error.toStdString(), testing::Not(HasSubstr("Error ")));
    }
}

TEST(BarcodeEncoder, SurvivesEveryCharacterInEverySymbology)
{
    QString all;
    for (char16_t c = 0; c < 256; ++c) {
        all += QChar(c);
    }
    const QString loneSurrogate(QChar(0xd800));
    for (const Symbology& symbology : symbologies()) {
        SCOPED_TRACE(symbology.code);
        expectSound(encode(request(symbology.code, all)));
        expectSound(encode(request(symbology.code, loneSurrogate)));
        expectSound(encode(request(symbology.code, u"1|"_s + all)));
        for (const QChar c : all) {
            expectSound(encode(request(symbology.code, c)));
        }
    }
}

TEST(BarcodeEncoder, SurvivesContentsOfEveryLength)
{
    const QString units[] = {u"1"_s,    u"A"_s, u"a1-"_s, QString(QChar(0x4e2d)), QString(QChar(0)),
                             u"[01]"_s, u"1|"_s};
    for (const Symbology& symbology : symbologies()) {
        for (const QString& unit : units) {
            for (const qsizetype length : {60, 2'000, 17'400, 100'000}) {
                SCOPED_TRACE(testing::Message()
                             << symbology.code << ' ' << unit.toStdString() << ' ' << length);
                expectSound(encode(request(symbology.code, unit.repeated(length).left(length))));
            }
        }
    }
    const BarcodeSymbol tooLong = encode(request(20, QString(MaximumContent + 1, u'1')));
    EXPECT_EQ(tooLong.error, u"Code 128: the content is too long for any barcode."_s);
}

TEST(BarcodeEncoder, SurvivesEverySetting)
{
    for (const samples::Sample& sample : samples::Samples) {
        SCOPED_TRACE(sample.code);
        for (const int setting : {-2'147'483'647 - 1, -1, 0, 1, 2, 7, 40, 99, 2'147'483'647}) {
            expectSound(encode({sample.code, QString::fromUtf16(sample.content), true, true, true,
                                setting, setting, setting}));
        }
    }
}

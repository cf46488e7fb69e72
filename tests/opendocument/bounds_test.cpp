// Every limit of the package with its largest accepted and first rejected value.

#include "reader_fixture.h"
#include "tests/support/captured_log.h"

#include "limits/xml/markup_scanner.h"
#include "opendocument/opendocument_limits.h"
#include "opendocument/picture_store.h"
#include "opendocument/style_memory.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QtEndian>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

PictureStore storeOf(const QMap<QString, QByteArray>& members)
{
    return PictureStore([members](const QString& name, qint64) { return members.value(name); });
}

class OpenDocumentBounds : public ReaderTest
{
protected:
    QString messageFor(const QByteArray& styles, const QByteArray& content)
    {
        CapturedLog log;
        EXPECT_FALSE(reader.importLabelFromFile(Package(styles, content).write()));
        return log.messages().last();
    }
};

} // namespace

TEST_F(OpenDocumentBounds, MeasureTheXmlMembers)
{
    const QByteArray styles(limits::StylesBytes, ' ');
    EXPECT_TRUE(messageFor(styles, "<a/>").startsWith(u"Error parsing file"_s));
    EXPECT_EQ(messageFor(styles + ' ', "<a/>"), u"Unable to get file styles."_s);
    const QByteArray content(limits::ContentBytes, ' ');
    EXPECT_TRUE(messageFor(stylesXml(), content).startsWith(u"Error parsing file"_s));
    EXPECT_EQ(messageFor(stylesXml(), content + ' '), u"Unable to get file content."_s);
}

TEST_F(OpenDocumentBounds, MeasureTheTreeOfTheStyles)
{
    const auto styles = [](qsizetype letters) {
        return "<a>" + QByteArray("<b/>").repeated(600'000) + QByteArray(letters, 'x') + "</a>";
    };
    const auto fits = [&styles](qsizetype letters) {
        return !xmllimits::findExcess(styles(letters), limits::StylesTreeBytes,
                                      xmllimits::CompactCosts);
    };
    qsizetype most = 0;
    for (qsizetype step = 1 << 23; step > 0; step /= 2) {
        most += fits(most + step) ? step : 0;
    }
    ASSERT_GT(most, 1'000'000);
    const QString tooLarge = u"The document is too large"_s;
    EXPECT_FALSE(messageFor(styles(most), "<damaged").contains(tooLarge));
    EXPECT_TRUE(messageFor(styles(most + 1), "<damaged").contains(tooLarge));
}

// Every file adds a style with a long name.
TEST_F(OpenDocumentBounds, MeasureTheStylesThatStay)
{
    const auto import = [this](const QByteArray& styles, const QByteArray& shapes) {
        return reader.importLabelFromFile(Package(stylesXml(), drawingXml(shapes, styles)).write());
    };
    const auto named = [](const QByteArray& name) {
        return "<style:style style:family=\"graphic\" style:name=\"" + name +
               "\"><style:graphic-properties draw:fill-color=\"#040506\"/></style:style>";
    };
    const auto fill = [&] {
        EXPECT_TRUE(import({}, "<draw:rect draw:style-name=\"g\"/>"));
        return host.lastCall(host.createdCount(), u"setFillColor"_s);
    };
    QMap<QString, OOGraphicStyle> one{{u"g"_s, OOGraphicStyle()}};
    one[u"g"_s].fillColor = u"#040506"_s;
    const auto memoryOfName = [&one](qint64 size) { return memoryOf(one) + 2 * (size - 1); };
    constexpr qint64 longName = 4'000'000;
    ASSERT_TRUE(import(named("g"), {}));
    qint64 left = limits::CarriedStylesBytes - memoryOfName(1);
    for (char letter = 'a'; left > 2 * memoryOfName(longName); ++letter) {
        ASSERT_TRUE(import(named(QByteArray(longName, letter)), {}));
        left -= memoryOfName(longName);
    }
    ASSERT_TRUE(import(named(QByteArray((left - memoryOfName(0)) / 2, 'z')), {}));
    EXPECT_EQ(fill(), u"'#ff040506'"_s) << "just as much as may stay";
    ASSERT_TRUE(import(named("j"), {}));
    EXPECT_NE(fill(), u"'#ff040506'"_s) << "a style too many";
}

TEST_F(OpenDocumentBounds, CountThePixelsOfAPicture)
{
    static_assert(limits::PicturePixels == 8000 * 4000);
    PictureStore store =
        storeOf({{u"most"_s, monoPng(8000, 4000)}, {u"more"_s, monoPng(4000, 8001)}});
    EXPECT_TRUE(store.pixmap(u"more"_s).isNull());
    EXPECT_EQ(store.pixmap(u"most"_s).size(), QSize(8000, 4000));
}

TEST_F(OpenDocumentBounds, CountThePixelsOfAllPictures)
{
    static_assert(limits::AllPicturesPixels == 2 * 6000 * 5000);
    const QByteArray half = monoPng(6000, 5000);
    PictureStore store = storeOf({{u"a"_s, half}, {u"b"_s, half}, {u"c"_s, monoPng(1, 1)}});
    EXPECT_FALSE(store.pixmap(u"a"_s).isNull());
    EXPECT_FALSE(store.pixmap(u"b"_s).isNull());
    EXPECT_TRUE(store.pixmap(u"c"_s).isNull()) << "one pixel more";
}

TEST_F(OpenDocumentBounds, LimitFontSizes)
{
    const auto sizeOf = [](const char* size) {
        OOTextStyle style;
        readTextProperties(
            elementOf(QByteArray("<a fo:font-size=\"") + size + "\"/>"),
            [](QString) { return true; }, style);
        return style.fontSize;
    };
    EXPECT_EQ(sizeOf("10000pt"), limits::FontSize);
    EXPECT_EQ(sizeOf("10001pt"), OOTextStyle().fontSize);
}

TEST_F(OpenDocumentBounds, NeverUnpackTheTextsOfAPicture)
{
    // Twenty such texts would need 160 megabytes before the picture is even measured.
    QByteArray chunk("zTXtkey\0\0", 9);
    chunk += qCompress(QByteArray(7'900'000, 'a')).mid(4);
    QByteArray length(4, '\0');
    qToBigEndian(quint32(chunk.size() - 4), length.data());
    constexpr qsizetype behindHeader = 33;
    QByteArray bomb = monoPng(3, 2);
    bomb.insert(behindHeader, (length + chunk + QByteArray(4, '\0')).repeated(20));
    PictureStore store = storeOf({{u"a"_s, bomb}});
    EXPECT_EQ(store.pixmap(u"a"_s).size(), QSize(3, 2));
    EXPECT_TRUE(store.pixmap(u"a"_s).toImage().textKeys().isEmpty());
}

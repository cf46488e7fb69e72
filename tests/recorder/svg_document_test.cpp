// Drawings come out of files that nobody vouches for.

#include "recorder/svg_document.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using recorder::selfContainedSvg;
using recorder::SvgDocument;

namespace {

QByteArray svg(const QByteArray& attributes, const QByteArray& content = {})
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
           attributes + '>' + content + "</svg>";
}

TEST(SvgDocument, KnowsItsSize)
{
    EXPECT_EQ(SvgDocument(svg("width='40' height='30'")).defaultSize(), QSizeF(40, 30));
    EXPECT_EQ(SvgDocument(svg("viewBox='0 0 12 8'")).defaultSize(), QSizeF(12, 8));
    EXPECT_EQ(SvgDocument(svg("", "<rect width='7' height='9'/>")).defaultSize(), QSizeF(7, 9));
}

TEST(SvgDocument, RefusesWhatIsNoDrawing)
{
    for (const char* bytes : {"", "no xml", "<svg", "<html/>", "\x1f\x8b\x08", "<svg></g></svg>"}) {
        const SvgDocument document(bytes);
        EXPECT_FALSE(document.isValid()) << bytes;
        EXPECT_EQ(document.defaultSize(), QSizeF(0, 0)) << bytes;
    }
}

QByteArray pngAsText()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toBase64();
}

TEST(SvgDocument, KeepsPicturesThatAreInside)
{
    const QByteArray reference = "xlink:href=\"data:image/png;base64," + pngAsText() + '"';
    const QByteArray document = svg("width='4' height='4'", "<image " + reference + "/>");
    EXPECT_TRUE(selfContainedSvg(document).contains(reference));
}

TEST(SvgDocument, ForgetsWhatLeadsOutOfIt)
{
    for (const char* reference :
         {"/etc/passwd", "file:///etc/passwd", "picture.png", "http://example.com/x.png",
          // The renderer takes a picture that does not decode for a file of that name.
          "data/../../../etc/passwd", "data:image/png;base64,../../etc/passwd",
          "data:etc/passwd"}) {
        for (const char* attribute : {"xlink:href", "href"}) {
            const QByteArray image =
                QByteArray("<image ") + attribute + "='" + reference + "' width='4' height='4'/>";
            const QByteArray copy = selfContainedSvg(svg("width='4' height='4'", image));
            EXPECT_FALSE(copy.isEmpty());
            EXPECT_FALSE(copy.contains("href=")) << copy.constData();
            EXPECT_TRUE(copy.contains("<image")) << copy.constData();
        }
    }
    EXPECT_FALSE(selfContainedSvg("<?xml-stylesheet type='text/css' href='/etc/passwd'?>" +
                                  svg("width='4' height='4'"))
                     .contains("passwd"));
    EXPECT_FALSE(
        selfContainedSvg("<!DOCTYPE svg SYSTEM '/etc/passwd'>" + svg("")).contains("passwd"));
}

TEST(SvgDocument, KeepsReferencesWithinIt)
{
    const QByteArray copy =
        selfContainedSvg(svg("width='4' height='4'", "<use xlink:href=\"#part\"/>"));
    EXPECT_TRUE(copy.contains("xlink:href=\"#part\""));
}

TEST(SvgDocument, ReadsAnySpellingOfPrefixes)
{
    const QByteArray document = "<s:svg xmlns:s='http://www.w3.org/2000/svg' width='5' height='6'>"
                                "<s:image xmlns:l='http://www.w3.org/1999/xlink' l:href='/x'/>"
                                "</s:svg>";
    EXPECT_FALSE(selfContainedSvg(document).contains("/x'"));
    EXPECT_FALSE(selfContainedSvg(document).contains("l:href"));
}

TEST(SvgDocument, OpensNoFileThatItNames)
{
    // Without a size of its own, a document is as large as what is drawn: were the picture
    // or the style sheet opened, it would show.
    const QTemporaryDir folder;
    QImage picture(50, 50, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString pictureFile = folder.filePath(QStringLiteral("picture.png"));
    ASSERT_TRUE(picture.save(pictureFile));
    QFile sheet(folder.filePath(QStringLiteral("sheet.css")));
    ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
    sheet.write("rect { stroke: red; stroke-width: 20 }");
    sheet.close();

    const QByteArray content = "<rect width='4' height='3'/><image width='50' height='50' "
                               "xlink:href='" +
                               pictureFile.toUtf8() + "'/>";
    const QByteArray document = "<?xml-stylesheet type='text/css' href='" +
                                sheet.fileName().toUtf8() + "'?>" + svg("", content);
    EXPECT_EQ(SvgDocument(document).defaultSize(), QSizeF(4, 3));

    // The renderer as it is does open them.
    QSvgRenderer bare(document);
    EXPECT_NE(bare.defaultSize(), QSize(4, 3));
}

TEST(SvgDocument, RefusesWhatIsTooLarge)
{
    const auto isTaken = [](const QByteArray& attributes, const QByteArray& content) {
        return SvgDocument(svg("width='4' height='4' " + attributes, content)).isValid();
    };
    EXPECT_TRUE(isTaken("", QByteArray("<g/>").repeated(99'999)));
    EXPECT_FALSE(isTaken("", QByteArray("<g/>").repeated(100'000)));

    QByteArray attributes;
    for (int i = 0; i < 1000; ++i) {
        attributes += " a" + QByteArray::number(i) + "='1'";
    }
    EXPECT_TRUE(isTaken("", "<g" + attributes + "/>"));
    EXPECT_FALSE(isTaken("", "<g b='1'" + attributes + "/>"));

    const auto style = [](qsizetype size) {
        return "<style>" + QByteArray(size, ' ') + "</style><style> </style>";
    };
    EXPECT_TRUE(isTaken("", style(32 * 1024 - 1)));
    EXPECT_FALSE(isTaken("", style(32 * 1024)));
    EXPECT_TRUE(isTaken("", "<text>" + QByteArray(32 * 1024 + 1, ' ') + "</text>"));

    const qsizetype rest = 16 * 1024 * 1024 - svg("width='4' height='4' ", "").size();
    EXPECT_TRUE(isTaken("", QByteArray(rest, ' ')));
    EXPECT_FALSE(isTaken("", QByteArray(rest + 1, ' ')));
}

TEST(SvgDocument, CountsThePixelsOfItsPictures)
{
    const auto pictureOf = [](int width, int height) {
        QImage image(width, height, QImage::Format_Mono);
        image.fill(1);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return "<image href='data:image/png;base64," + buffer.data().toBase64() + "'/>";
    };
    const QByteArray half = pictureOf(4096, 4096);
    const auto kept = [](const QByteArray& content) {
        return selfContainedSvg(svg("width='4' height='4'", content)).count("data:image");
    };
    EXPECT_EQ(kept(half + half), 2);
    EXPECT_EQ(kept(half + half + pictureOf(1, 1)), 2);
    EXPECT_EQ(kept(half + pictureOf(4097, 4096) + half), 2);
}

TEST(SvgDocument, TakesNoTextsOfPicturesAlong)
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(0);
    image.setText(QStringLiteral("key"), QString(100'000, u'a')); // written packed
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    ASSERT_TRUE(buffer.data().contains("zTXt"));
    const QByteArray copy =
        selfContainedSvg(svg("width='4' height='4'", "<image href='data:image/png;base64," +
                                                         buffer.data().toBase64() + "'/>"));
    const qsizetype start = copy.indexOf("base64,") + 7;
    const QByteArray kept =
        QByteArray::fromBase64(copy.mid(start, copy.indexOf('"', start) - start));
    EXPECT_EQ(QImage::fromData(kept).size(), QSize(1, 1));
    EXPECT_FALSE(kept.contains("zTXt"));
}

TEST(SvgDocument, RefusesDeepNesting)
{
    const auto nested = [](int depth) {
        return svg("width='4' height='4'",
                   QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth));
    };
    EXPECT_TRUE(SvgDocument(nested(255)).isValid());
    EXPECT_FALSE(SvgDocument(nested(256)).isValid());
    EXPECT_FALSE(SvgDocument(nested(300000)).isValid());
}

TEST(SvgDocument, RefusesCopiesOfCopiesWhereTheSizeHangsOnThem)
{
    QByteArray parts = "<g id='p0'><rect width='1' height='1'/></g>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray copy = "<use xlink:href='#p" + QByteArray::number(i - 1) + "'/>";
        parts += "<g id='p" + QByteArray::number(i) + "'>" + copy + copy + "</g>";
    }
    const QByteArray copies = "<g id='a'/>" + QByteArray("<use xlink:href='#a'/>").repeated(30);
    EXPECT_TRUE(SvgDocument(svg("", copies + "<rect width='1' height='1'/>")).isValid());
    EXPECT_FALSE(SvgDocument(svg("", copies + "<use xlink:href='#a'/>")).isValid());
    EXPECT_FALSE(SvgDocument(svg("", parts)).isValid());
    EXPECT_FALSE(SvgDocument(svg("viewBox='0 0 0 0'", parts)).isValid());
    EXPECT_FALSE(SvgDocument(svg("width='10'", parts)).isValid());
    // A document that tells its size need not be walked through.
    EXPECT_EQ(SvgDocument(svg("viewBox='0 0 3 4'", parts)).defaultSize(), QSizeF(3, 4));
}

TEST(SvgDocument, SurvivesEntityBombs)
{
    QByteArray bomb = "<!DOCTYPE svg [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    bomb += "]>" + svg("width='4' height='4'", "<text>&e11;</text>");
    EXPECT_FALSE(SvgDocument(bomb).isValid());
}

} // namespace

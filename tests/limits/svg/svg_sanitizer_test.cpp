#include "limits/svg/svg_limits.h"
#include "limits/svg/svg_sanitizer.h"
#include "tests/support/encoded_picture.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using svglimits::sanitizeSvg;
using testing::HasSubstr;
using testing::Not;

namespace {

QByteArray svgOf(const QByteArray& content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink")"
           R"( width="10" height="10">)" +
           content + "</svg>";
}

std::string sanitized(const QByteArray& content)
{
    const auto safe = sanitizeSvg(svgOf(content));
    return safe ? safe->document({}).toStdString() : "refused";
}

QByteArray pngOf(int width, int height, Qt::GlobalColor color = Qt::red)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return encoded(image);
}

QImage drawn(const QByteArray& document)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(document).render(&painter, QRectF(0, 0, 10, 10));
    return image;
}

} // namespace

TEST(SvgSanitizer, KeepsTheDrawing)
{
    const std::string kept = sanitized(
        R"x(<g id="a" transform="scale(2)"><path d="M0 0L5 5" fill="#f00"/><text>a &lt; b</text></g>)x"
        R"(<use xlink:href="#a"/>)");
    EXPECT_THAT(kept, HasSubstr(R"(<path d="M0 0L5 5" fill="#f00"></path>)"));
    EXPECT_THAT(kept, HasSubstr("transform=\"scale(2)\""));
    EXPECT_THAT(kept, HasSubstr("a &lt; b"));
    EXPECT_THAT(kept, HasSubstr(R"(<use xlink:href="#a"></use>)"));
}

TEST(SvgSanitizer, DropsWhateverPointsOutside)
{
    const QByteArray rows[] = {
        R"x(<image xlink:href="file:///secret.png" width="5" height="5"/>)x",
        R"x(<image href="secret.png" width="5" height="5"/>)x",
        R"x(<image xlink:href="http://host/secret.png"/>)x",
        R"x(<image xlink:href=":/secret.png"/>)x",
        R"x(<image xlink:href="data:secret"/>)x",
        R"x(<image xlink:href="data:image/png;base64,/../secret.png"/>)x",
        R"x(<x:image xmlns:x="http://www.w3.org/2000/svg" x:href="secret.png"/>)x",
        R"x(<image xmlns:y="http://www.w3.org/1999/xlink" y:href="secret.png"/>)x",
        R"x(<use xlink:href="secret.svg#part"/>)x",
        R"x(<feImage href="secret.png"/>)x",
        R"x(<a xlink:href="http://secret"><path d="M0 0"/></a>)x",
        R"x(<linearGradient xlink:href="secret.svg#g"/>)x",
        R"x(<path fill="url(secret.svg#g)" d="M0 0"/>)x",
        R"x(<path fill="URL( 'secret.svg#g' )" d="M0 0"/>)x",
        R"x(<path style="fill:url(&quot;secret.svg&quot;);stroke:red" d="M0 0"/>)x",
        R"x(<path style="fill:u\72l(secret)" d="M0 0"/>)x",
        R"x(<style>@import "secret.css"; path { fill: red }</style>)x",
        R"x(<style>@import url(secret.css);</style>)x",
        R"x(<style>path { fill: url(secret.svg#g) }</style>)x",
        R"x(<style><![CDATA[@IMPORT "secret.css";]]></style>)x",
        R"x(<script>secret()</script>)x",
        R"x(<path onload="secret()" d="M0 0"/>)x",
        R"x(<foreignObject><html>secret</html></foreignObject>)x",
        R"x(<animate attributeName="href" to="secret"/>)x",
        R"x(<?xml-stylesheet href="secret.css"?>)x",
        R"x(<!-- secret -->)x",
        R"x(<g xml:base="http://secret/"/>)x",
        R"x(<i:thing xmlns:i="http://editor"><image href="#secret"/></i:thing>)x",
    };
    for (const QByteArray& row : rows) {
        SCOPED_TRACE(row.toStdString());
        const std::string kept = sanitized(row + R"(<path id="witness"/>)");
        EXPECT_THAT(kept, HasSubstr("witness"));
        EXPECT_THAT(kept, Not(HasSubstr("secret")));
    }
}

TEST(SvgSanitizer, DropsAStyleSheetInstructionBeforeTheDocument)
{
    const auto safe = sanitizeSvg("<?xml version=\"1.0\"?><?xml-stylesheet href=\"secret.css\"?>"
                                  "<!DOCTYPE svg SYSTEM \"secret.dtd\">" +
                                  svgOf("<path/>"));
    ASSERT_TRUE(safe);
    EXPECT_THAT(safe->document({}).toStdString(), Not(HasSubstr("secret")));
}

TEST(SvgSanitizer, NeverOpensExternalEntities)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"secret.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("SECRET");
    file.close();
    const auto safe = sanitizeSvg("<!DOCTYPE svg [<!ENTITY e SYSTEM \"" + file.fileName().toUtf8() +
                                  "\">]>" + svgOf("<text>&e;</text>"));
    if (safe) {
        EXPECT_THAT(safe->document({}).toStdString(), Not(HasSubstr("SECRET")));
    }
}

TEST(SvgSanitizer, ResolvesInternalEntitiesAndRefusesTheirExplosion)
{
    const auto safe =
        sanitizeSvg("<!DOCTYPE svg [<!ENTITY red \"#ff0000\">]>" + svgOf("<path fill=\"&red;\"/>"));
    ASSERT_TRUE(safe);
    EXPECT_THAT(safe->document({}).toStdString(), HasSubstr("fill=\"#ff0000\""));

    QByteArray nested = "<!DOCTYPE svg [<!ENTITY e0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray last = "&e" + QByteArray::number(i - 1) + ";";
        nested += "<!ENTITY e" + QByteArray::number(i) + " \"" + last + last + "\">";
    }
    EXPECT_FALSE(sanitizeSvg(nested + "]>" + svgOf("<text>&e29;</text>")));
}

// The renderer opens the file that an image names; nothing of it may show.
TEST(SvgSanitizer, ShowsNothingOfALocalPicture)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"red.png"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(pngOf(10, 10));
    file.close();
    const QByteArray document = svgOf(
        "<image x=\"0\" y=\"0\" width=\"10\" height=\"10\" xlink:href=\"" + path.toUtf8() + "\"/>");
    ASSERT_EQ(drawn(document).pixelColor(5, 5), QColor(Qt::red)) << "the renderer would show it";
    const auto safe = sanitizeSvg(document);
    ASSERT_TRUE(safe);
    EXPECT_EQ(drawn(safe->document()).pixelColor(5, 5), QColor(Qt::white));
}

TEST(SvgSanitizer, KeepsAnEmbeddedPicture)
{
    const QByteArray document =
        svgOf("<image x=\"0\" y=\"0\" width=\"10\" height=\"10\" href=\"data:image/png;base64,\n " +
              pngOf(4, 4).toBase64() + "\"/>");
    const auto safe = sanitizeSvg(document);
    ASSERT_TRUE(safe);
    EXPECT_EQ(drawn(safe->document()).pixelColor(5, 5), QColor(Qt::red));
}

TEST(SvgSanitizer, DropsEmbeddedPicturesThatAreTooLargeOrNoRaster)
{
    const QByteArray nested = "<svg xmlns=\"http://www.w3.org/2000/svg\"/>";
    const QByteArray rows[] = {
        pngOf(svglimits::ImageSide + 1, 1),
        nested,
        "",
        pngOf(4, 4).left(30),
    };
    for (const QByteArray& row : rows) {
        EXPECT_THAT(sanitized("<image href=\"data:image/png;base64," + row.toBase64() + "\"/>"),
                    Not(HasSubstr("<image")));
    }
}

TEST(SvgSanitizer, TurnsLengthsIntoUserUnits)
{
    const std::string kept = sanitized(
        R"(<rect x="1in" width="25.4mm" height="50%" stroke-width="72pt"/>)"
        R"(<text style="font-size:12pt;stroke-width:1pc">t</text><text font-size="1e30">u</text>)");
    EXPECT_THAT(kept, HasSubstr(R"(<rect x="96" width="96" height="50%" stroke-width="96">)"));
    EXPECT_THAT(kept, HasSubstr("style=\"font-size:16;stroke-width:16\""));
    EXPECT_THAT(kept, HasSubstr("font-size=\"10000\""));
}

TEST(SvgSanitizer, KeepsUnitsOnRequest)
{
    const QByteArray document = svgOf("<rect width='1mm' height='2' font-size='99999pt'/>");
    const auto safe = sanitizeSvg(document, svglimits::LengthUnits::AsWritten);
    ASSERT_TRUE(safe);
    EXPECT_THAT(safe->body.toStdString(), HasSubstr("width=\"1mm\" height=\"2\""));
    EXPECT_THAT(safe->body.toStdString(), HasSubstr("font-size=\"10000\""));
}

TEST(SvgSanitizer, KeepsTheSizeOfTheDocument)
{
    const auto safe = sanitizeSvg("<svg viewBox='0 0 3 4' width='5mm'><g/></svg>");
    ASSERT_TRUE(safe);
    EXPECT_EQ(sanitizeSvg(safe->document())->document(), safe->document());
    EXPECT_THAT(safe->document().toStdString(), HasSubstr(" width=\"5mm\" viewBox=\"0 0 3 4\">"));
}

TEST(SvgSanitizer, LeavesOutElementsWithMonstrousCoordinates)
{
    EXPECT_THAT(sanitized(R"(<path id="huge" d="M0 0L1e10 0"/><path id="fine"/>)"),
                testing::AllOf(Not(HasSubstr("huge")), HasSubstr("fine")));
    EXPECT_THAT(sanitized(R"x(<g id="huge" transform="scale(1e999)"/>)x"), Not(HasSubstr("huge")));
}

TEST(SvgSanitizer, DrawsOutlinesSolidWhereDashesWouldBeCountless)
{
    EXPECT_THAT(sanitized(R"(<path d="M0 0H10" stroke-dasharray="2 1"/>)"),
                HasSubstr("stroke-dasharray=\"2 1\""));
    EXPECT_THAT(sanitized(R"(<path d="M0 0H1e8" stroke-dasharray="0.001"/>)"),
                Not(HasSubstr("dasharray")));
    EXPECT_THAT(sanitized(R"(<path d="M0 0H1e8" style="stroke-dasharray:0.001;fill:red"/>)"),
                Not(HasSubstr("dasharray")));
    EXPECT_THAT(sanitized(R"(<style>path{stroke-dasharray:.001}</style><path d="M0 0H1e8"/>)"),
                Not(HasSubstr("stroke-dasharray")));
}

TEST(SvgSanitizer, RefusesDataThatIsNotSvg)
{
    for (const QByteArray& text :
         {QByteArray(), QByteArray("text"), QByteArray("<html/>"), QByteArray("<svg"),
          QByteArray("\x1f\x8b\x08\x00", 4), QByteArray("<svg xmlns=\"http://other\"/>"),
          QByteArray("\0\0", 2)}) {
        EXPECT_FALSE(sanitizeSvg(text)) << text.toStdString();
    }
}

TEST(SvgSanitizer, RefusesEveryTruncation)
{
    const QByteArray whole = svgOf(R"(<g id="a"><path d="M0 0L5 5"/></g><use xlink:href="#a"/>)");
    ASSERT_TRUE(sanitizeSvg(whole));
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(sanitizeSvg(whole.left(size))) << size;
    }
}

TEST(SvgSanitizer, BoundsDepthAndNumberOfElements)
{
    const auto nested = [](int depth) {
        return svgOf(QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth));
    };
    EXPECT_TRUE(sanitizeSvg(nested(svglimits::Depth - 1)));
    EXPECT_FALSE(sanitizeSvg(nested(svglimits::Depth)));
    EXPECT_FALSE(sanitizeSvg(nested(300'000)));
    EXPECT_TRUE(sanitizeSvg(svgOf(QByteArray("<g/>").repeated(svglimits::Elements))));
    EXPECT_FALSE(sanitizeSvg(svgOf(QByteArray("<g/>").repeated(svglimits::Elements + 1))));
    EXPECT_FALSE(sanitizeSvg(svgOf(QByteArray(svglimits::DocumentBytes, ' '))));
}

TEST(SvgSanitizer, RefusesWhatWouldKeepTheParserOrTheRendererBusy)
{
    QByteArray crowded = "<g";
    for (int i = 0; i < 200'000; ++i) {
        crowded += " a" + QByteArray::number(i) + "=\"\"";
    }
    EXPECT_FALSE(sanitizeSvg(svgOf(crowded + "/>")));
    EXPECT_TRUE(sanitizeSvg(svgOf("<style>" + QByteArray(svglimits::StyleText, ' ') + "</style>")));
    EXPECT_FALSE(sanitizeSvg(
        svgOf("<style>" + QByteArray(svglimits::StyleText, ' ') + "</style><style> </style>")));
}

TEST(SvgSanitizer, RefusesReferencesThatExplodeRecurOrGoTooDeep)
{
    QByteArray explosion = R"(<path id="n0" d="M0 0L1 1"/>)";
    QByteArray chain = explosion;
    for (int i = 1; i < 2000; ++i) {
        const QByteArray use = "<use xlink:href=\"#n" + QByteArray::number(i - 1) + "\"/>";
        const QByteArray begin = "<g id=\"n" + QByteArray::number(i) + "\">";
        chain += begin + use + "</g>";
        if (i < 12) {
            explosion += begin + use.repeated(10) + "</g>";
        }
    }
    EXPECT_FALSE(sanitizeSvg(svgOf(explosion)));
    EXPECT_FALSE(sanitizeSvg(svgOf(chain)));
    EXPECT_FALSE(sanitizeSvg(svgOf(R"(<g id="a"><use href="#a"/></g>)")));
    EXPECT_FALSE(
        sanitizeSvg(svgOf(R"(<g id="a"><use href="#b"/></g><g id="b"><use href="#a"/></g>)")));
    EXPECT_TRUE(sanitizeSvg(svgOf(R"(<g id="a"><a href="#a"><path/></a></g>)"))) << "only a link";
}

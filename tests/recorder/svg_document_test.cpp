#include "recorder/svg_document.h"

#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

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

TEST(SvgDocument, RefusesInvalidDrawings)
{
    for (const char* bytes : {"", "no xml", "<svg", "<html/>", "\x1f\x8b\x08", "<svg></g></svg>"}) {
        const SvgDocument document(bytes);
        EXPECT_FALSE(document.isValid()) << bytes;
        EXPECT_EQ(document.defaultSize(), QSizeF(0, 0)) << bytes;
    }
}

TEST(SvgDocument, ReadsAnySpellingOfPrefixes)
{
    const QByteArray document = "<s:svg xmlns:s='http://www.w3.org/2000/svg' width='5' height='6'>"
                                "<s:rect width='1' height='1'/></s:svg>";
    EXPECT_EQ(SvgDocument(document).defaultSize(), QSizeF(5, 6));
}

// The renderer's inch has 90 pixels, and the trace has the renderer's size.
TEST(SvgDocument, KeepsTheUnitsOfLengths)
{
    EXPECT_EQ(SvgDocument(svg("width='1in' height='2in'")).defaultSize(), QSizeF(90, 180));
    EXPECT_EQ(SvgDocument(svg("", "<rect width='1in' height='2in'/>")).defaultSize(),
              QSizeF(90, 180));
}

TEST(SvgDocument, OpensNoFileThatItNames)
{
    // Without an explicit size, a document has the size of its content: opening the picture or
    // the style sheet would change it.
    const QTemporaryDir folder;
    QImage picture(50, 50, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString pictureFile = folder.filePath(u"picture.png"_s);
    ASSERT_TRUE(picture.save(pictureFile));
    QFile sheet(folder.filePath(u"sheet.css"_s));
    ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
    sheet.write("rect { stroke: red; stroke-width: 20 }");
    sheet.close();

    const QByteArray content = "<rect width='4' height='3'/><image width='50' height='50' "
                               "xlink:href='" +
                               pictureFile.toUtf8() + "'/>";
    const QByteArray document = "<?xml-stylesheet type='text/css' href='" +
                                sheet.fileName().toUtf8() + "'?>" + svg("", content);
    EXPECT_EQ(SvgDocument(document).defaultSize(), QSizeF(4, 3));

    // The unprotected renderer opens them.
    QSvgRenderer bare(document);
    EXPECT_NE(bare.defaultSize(), QSize(4, 3));
}

TEST(SvgDocument, RefusesCopiesOfCopies)
{
    QByteArray parts = "<g id='p0'><rect width='1' height='1'/></g>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray copy = "<use xlink:href='#p" + QByteArray::number(i - 1) + "'/>";
        parts += "<g id='p" + QByteArray::number(i) + "'>" + copy + copy + "</g>";
    }
    EXPECT_FALSE(SvgDocument(svg("", parts)).isValid());
    EXPECT_FALSE(SvgDocument(svg("viewBox='0 0 3 4'", parts)).isValid());
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

// The documents of rich texts, and that they open no files.

#include "painted_texts.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTextDocument>
#include <QTextFrame>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace Qt::StringLiterals;

TEST(RichTextDocument, OfADocumentKeepsTheFullWidthForItsParagraphs)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p align=\"right\">HH</p>"_s);
    item.adjustBoxSizeToContent(150.0);
    EXPECT_EQ(item.getItemWidth(), 150.0);
    EXPECT_GT(item.getItemHeight(), 10.0);
    EXPECT_LT(item.getItemHeight(), 20.0);
    EXPECT_NEAR(page.ink().right(), 149, 3);
    EXPECT_GT(page.ink().left(), 120);
}

TEST(RichTextDocument, OfADocumentWithoutAWidthDoesNotWrap)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p>some words in a row</p>"_s);
    item.adjustBoxSizeToContent(-1.0);
    EXPECT_LT(item.getItemHeight(), 20.0);
    EXPECT_GT(item.getItemWidth(), 80.0);
}

TEST(RichTextDocument, HasTheFormatsOfItsDocument)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setTextColor(Qt::blue);
    item.setHtml(u"<p style=\"font-size:40px\">H<span style=\"color:#ff0000\">H"
                 "</span></p>"_s);
    item.adjustBoxSizeToContent(150.0);
    const QImage image = page.image();
    EXPECT_GT(countOf(image, image.rect(), QColor(255, 0, 0)), 20);
    EXPECT_GT(countOf(image, image.rect(), QColor(Qt::blue)), 20);
}

TEST(RichTextDocument, NeverOpensWhatItsDocumentNames)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(u"secret.png"_s);
    QImage secret(40, 40, QImage::Format_RGB32);
    secret.fill(Qt::magenta);
    ASSERT_TRUE(secret.save(picture));
    for (const QString& source : {QUrl::fromLocalFile(picture).toString(), picture}) {
        Painted page;
        auto& item = page.make<RichTextItem>(KestTypes::RichText);
        item.setHtml(u"<p>x<img src=\"%1\" width=\"40\" height=\"40\"/></p>"_s.arg(source));
        item.adjustBoxSizeToContent(150.0);
        const QImage image = page.image();
        EXPECT_EQ(countOf(image, image.rect(), Qt::magenta), 0);
    }
}

TEST(RichTextDocument, NeverOpensAStyleSheetEither)
{
    QTemporaryFile sheet;
    ASSERT_TRUE(sheet.open());
    sheet.write("p { color: #ff00ff; }");
    sheet.flush();
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<html><head><link rel=\"stylesheet\" type=\"text/css\" "
                 "href=\"%1\"/></head><body><p>text</p></body></html>"_s.arg(sheet.fileName()));
    item.adjustBoxSizeToContent(150.0);
    const QImage image = page.image();
    EXPECT_EQ(countOf(image, image.rect(), Qt::magenta), 0);
}

// The names of style sheets, backgrounds and embedded pictures take other ways through Qt.
TEST(RichTextDocument, NeverShowsAnEmbeddedPictureOrABackground)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(u"secret.png"_s);
    QImage secret(40, 40, QImage::Format_RGB32);
    secret.fill(Qt::magenta);
    ASSERT_TRUE(secret.save(picture));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly) && secret.save(&buffer, "png"));
    const QString embedded = u"data:image/png;base64,"_s + QString::fromLatin1(bytes.toBase64());
    const QStringList contents{
        u"<p>x<img src=\"%1\"/></p>"_s.arg(embedded),
        u"<p style=\"background-image: url(%1)\">x</p>"_s.arg(picture),
        u"<table background=\"%1\"><tr><td>x</td></tr></table>"_s.arg(picture),
        u"<body background=\"%1\"><p>x</p></body>"_s.arg(picture),
        u"<style>@import url(%1);</style><p>x</p>"_s.arg(picture)};
    for (const QString& html : contents) {
        Painted page;
        auto& item = page.make<RichTextItem>(KestTypes::RichText);
        item.setHtml(html);
        item.adjustBoxSizeToContent(150.0);
        const QImage image = page.image();
        EXPECT_EQ(countOf(image, image.rect(), Qt::magenta), 0) << qPrintable(html);
    }
}

// A label can have a hundred thousand texts, and a document takes 10 kB.
TEST(RichTextDocument, HasADocumentOnlyForHtml)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setText(u"HHHH"_s);
    item.setFontPointSize(12);
    item.adjustBoxSizeToContent(150.0);
    EXPECT_FALSE(page.ink().isEmpty());
    auto& canvasItem = dynamic_cast<workbench::CanvasItem&>(item);
    canvasItem.setValues(canvasItem.values());
    EXPECT_EQ(canvasItem.values().text->html, QString());
    EXPECT_TRUE(item.children().isEmpty());

    item.setHtml(u"<p><b>bold</b></p>"_s);
    EXPECT_TRUE(canvasItem.values().text->html.contains(QLatin1String("bold")));
    EXPECT_EQ(item.document()->documentMargin(), 0.0);
    item.setHtml(u"<p>other</p>"_s);
    EXPECT_TRUE(canvasItem.values().text->html.contains(QLatin1String("other")));
}

// The margins of the page that HTML may have are applied after those of a document.
TEST(RichTextDocument, RestoresTheMarginsOfItsDocument)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p>text</p>"_s);
    QTextFrameFormat format = item.document()->rootFrame()->frameFormat();
    format.setMargin(0.0);
    format.setTopMargin(30.0);
    auto& canvasItem = dynamic_cast<workbench::CanvasItem&>(item);
    (void)canvasItem.values();
    item.document()->rootFrame()->setFrameFormat(format);
    const workbench::ItemValues values = canvasItem.values();

    auto& restored = page.make<RichTextItem>(KestTypes::RichText);
    dynamic_cast<workbench::CanvasItem&>(restored).setValues(values);
    EXPECT_EQ(restored.document()->rootFrame()->frameFormat().topMargin(), 30.0);
    EXPECT_EQ(restored.document()->rootFrame()->frameFormat().leftMargin(), 0.0);
}

TEST(RichTextDocument, NewTextReplacesADocument)
{
    Painted page;
    auto& item = dynamic_cast<RichTextItem&>(putRich(page, u"HHHH"_s));
    const QImage plain = page.image();
    item.setHtml(u"<p>something else</p>"_s);
    EXPECT_NE(page.image(), plain);
    item.setText(u"HHHH"_s);
    EXPECT_EQ(page.image(), plain);
}

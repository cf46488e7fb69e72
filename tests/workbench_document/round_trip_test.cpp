#include "random_label.h"
#include "sample_label.h"

#include "workbench/document/label_file.h"
#include "workbench/document/label_json.h"

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;
using namespace workbench::document;

namespace {

QImage drawn(Canvas& canvas)
{
    QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    canvas.scene()->render(&painter, QRectF(), QRectF(0, 0, 200, 100), Qt::IgnoreAspectRatio);
    return image;
}

} // namespace

TEST(RoundTrip, BringsEveryPropertyOfASampleBack)
{
    const ReadLabel read = fromJson(toJson(sampleLabel()));
    EXPECT_EQ(read.error.toStdString(), "");
    EXPECT_EQ(read.label.page, sampleLabel().page);
    EXPECT_EQ(read.label.datasources, sampleLabel().datasources);
    ASSERT_EQ(read.label.items.size(), sampleLabel().items.size());
    for (qsizetype i = 0; i < read.label.items.size(); ++i) {
        EXPECT_EQ(read.label.items[i], sampleLabel().items[i]) << i;
    }
}

RC_GTEST_PROP(RoundTrip, BringsAnyLabelBack, ())
{
    const SavedLabel label = *anyLabel();
    const ReadLabel read = fromJson(toJson(label));
    RC_ASSERT(read.error.toStdString() == std::string());
    RC_ASSERT(read.label == label);
}

RC_GTEST_PROP(RoundTrip, OpensToTheSameCanvas, ())
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"any.label"_s);
    Canvas canvas;
    datasources::DatasourceController sources;
    RC_ASSERT(restore(*anyLabel(), canvas, sources));
    RC_ASSERT(saveLabel(path, canvas, sources).toStdString() == std::string());

    Canvas reopened;
    datasources::DatasourceController reopenedSources;
    RC_ASSERT(openLabel(path, reopened, reopenedSources).toStdString() == std::string());
    const SavedLabel before = snapshot(canvas, sources);
    const SavedLabel after = snapshot(reopened, reopenedSources);
    RC_ASSERT(after.page == before.page);
    RC_ASSERT(after.datasources == before.datasources);
    RC_ASSERT(after.items.size() == before.items.size());
    for (qsizetype i = 0; i < before.items.size(); ++i) {
        RC_ASSERT(after.items[i] == before.items[i]);
    }
}

// Showing a label on a screen before saving it must make no difference.
TEST(RoundTrip, LooksTheSameAndSavesTheSameOnceItWasDrawn)
{
    Canvas canvas;
    datasources::DatasourceController sources;
    ASSERT_TRUE(restore(sampleLabel(), canvas, sources));
    const QByteArray undrawn = toJson(snapshot(canvas, sources));
    const QImage first = drawn(canvas);
    const QByteArray onceDrawn = toJson(snapshot(canvas, sources));
    EXPECT_EQ(onceDrawn.toStdString(), undrawn.toStdString());

    Canvas reopened;
    datasources::DatasourceController reopenedSources;
    ASSERT_TRUE(restore(fromJson(onceDrawn).label, reopened, reopenedSources));
    EXPECT_EQ(drawn(reopened), first);
    EXPECT_EQ(toJson(snapshot(reopened, reopenedSources)).toStdString(), onceDrawn.toStdString());
}

// Formats that the document inherits from the item's font must not become explicit formats.
TEST(RoundTrip, KeepsARichTextFollowingItsFont)
{
    const auto textIn = [](const QString& family, int size) {
        SavedLabel label;
        label.items << sampleItem(KestTypes::RichText);
        label.items[0].font->family = family;
        label.items[0].font->pointSize = size;
        label.items[0].datasource.reset();
        return label;
    };
    Canvas canvas;
    datasources::DatasourceController sources;
    ASSERT_TRUE(restore(textIn(u"DejaVu Sans"_s, 8), canvas, sources));
    static_cast<void>(drawn(canvas));
    SavedLabel saved = fromJson(toJson(snapshot(canvas, sources))).label;
    saved.items[0].font->family = u"DejaVu Serif"_s;
    saved.items[0].font->pointSize = 20;
    ASSERT_TRUE(restore(saved, canvas, sources));
    Canvas direct;
    ASSERT_TRUE(restore(textIn(u"DejaVu Serif"_s, 20), direct, sources));
    EXPECT_EQ(drawn(canvas), drawn(direct));
}

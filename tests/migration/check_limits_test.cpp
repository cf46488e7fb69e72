// The limits of the comparison of labels with documents.

#include "migration/census/counting.h"
#include "migration/losses/check_covering.h"
#include "migration/losses/label_facts.h"
#include "migration/losses/matching.h"
#include "migration/losses/text_wrap.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <QtEndian>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

QPolygonF box(double x, double y, double width, double height)
{
    const QRectF rect(x, y, width, height);
    return QPolygonF({rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()});
}

ItemFacts shapeAt(const QPolygonF& outline, int level)
{
    ItemFacts item;
    item.outline = outline;
    item.level = level;
    item.isFilled = true;
    item.isOpaque = true;
    return item;
}

void addObject(Census& census, ObjectClass objectClass, const Appearance& appearance)
{
    census.objects.append({.objectClass = objectClass, .appearance = census.appearances.size()});
    census.appearances.append(appearance);
}

} // namespace

TEST(CheckLimits, CountSpacesOfOneElement)
{
    for (const auto& [wanted, seen] :
         {std::pair(999, 999), std::pair(1'000, 1'000), std::pair(1'000'000'000, 1'000)}) {
        const Census census =
            countOpenDocument(drawingOf("<draw:rect><text:p>A<text:s text:c=\"" +
                                        QByteArray::number(wanted) + "\"/>B</text:p></draw:rect>"));
        ASSERT_EQ(census.appearances.size(), 2);
        EXPECT_EQ(census.appearances.constLast().text.size(), 2 + seen);
    }
}

TEST(PreviewLimits, MeasureThePicture)
{
    const auto labelWith = [](const QByteArray& png) {
        return QByteArray("\0\0\0\0\0\x1e\x84\xa0\0\0\0\1", 12) + png;
    };
    EXPECT_FALSE(previewOf(labelWith(pngOf(1'000, 1'000)), ReaderKind::Tavrel).isEmpty());
    EXPECT_TRUE(previewOf(labelWith(pngOf(1'001, 1'000)), ReaderKind::Tavrel).isEmpty());
    EXPECT_TRUE(previewOf(labelWith("no picture"), ReaderKind::Tavrel).isEmpty());
    // The bytes are cut at the limit; a picture that needs more is damaged.
    QByteArray png = pngOf(10, 10);
    const QByteArray text = QByteArray(1024 * 1024, 'x');
    QByteArray chunk(4, '\0');
    qToBigEndian(quint32(text.size()), chunk.data());
    png.insert(33, chunk + "tEXt" + text + QByteArray(4, '\0'));
    EXPECT_TRUE(previewOf(labelWith(png), ReaderKind::Tavrel).isEmpty());
}

TEST(CheckLimits, MatchManyItemsAtOnePlace)
{
    for (const int count : {256, 257, 5'000}) {
        Census census;
        LabelFacts label;
        Appearance appearance;
        appearance.outline = box(10, 10, 50, 50);
        for (int index = 0; index < count; ++index) {
            label.items.append(shapeAt(appearance.outline, index));
            addObject(census, ObjectClass::Shape, appearance);
        }
        const Matching matching = matchItems(census, label, 0, 1.0, false);
        ASSERT_EQ(matching.shapes.size(), count);
        for (const Pair& pair : matching.shapes) {
            EXPECT_EQ(pair.appearance, &census.appearances.at(pair.item));
        }
    }
}

TEST(CheckLimits, SearchManyTexts)
{
    // A text of a million characters is searched for other texts, 499 times and 501 times.
    for (const int count : {499, 501}) {
        Census census;
        LabelFacts label;
        ItemFacts item;
        item.objectClass = ObjectClass::Text;
        item.text = QString(999'999, u'x');
        label.items.append(item);
        for (int index = 0; index < count; ++index) {
            Appearance appearance;
            appearance.text = u"y%1"_s.arg(index);
            addObject(census, ObjectClass::Text, appearance);
        }
        const Matching matching = matchItems(census, label, 0, 1.0, false);
        EXPECT_EQ(matching.isCut, count > 500);
        EXPECT_EQ(matching.missingTexts.size(), std::min(count, 500));
    }
}

TEST(CheckLimits, CompareManyOpaqueItems)
{
    // Each of the items is compared with all: they are below each other, at the same distance
    // from the left.
    for (const int count : {4'472, 4'473}) {
        LabelFacts label;
        for (int index = 0; index < count; ++index) {
            label.items.append(shapeAt(box(0, 20.0 * index, 10, 10), index));
        }
        EXPECT_EQ(checkCovering({}, label), count == 4'472) << count;
    }
}

// A text may have as many objects as a file can hold, each with all lines beside it.
TEST(CheckLimits, SearchTextBesideALimitedNumberOfObjects)
{
    const QByteArray object = "<draw:rect text:anchor-type=\"paragraph\" draw:style-name=\"W\" "
                              "svg:width=\"1in\" svg:height=\"1in\"/>";
    const Census census = countOpenDocument(
        textOf("<text:p>" + object.repeated(1'100) + "</text:p>",
               {.automaticStyles = "<style:style style:name=\"W\" style:family=\"graphic\">"
                                   "<style:graphic-properties style:wrap=\"parallel\"/>"
                                   "</style:style>"}));
    EXPECT_EQ(census.sizesBetweenText.size(), 1'000);
    LabelFacts label;
    label.items =
        QList<ItemFacts>(MaximumItemsBetweenText + 1, shapeAt(box(100.0, 0.0, 72.0, 72.0), 0));
    label.items.first().outline = box(0.0, 0.0, 400.0, 72.0);
    EXPECT_EQ(textsOnOneSide(census, {{box(172.0, 10.0, 100.0, 10.0), 0}}, label),
              MaximumItemsBetweenText);
}

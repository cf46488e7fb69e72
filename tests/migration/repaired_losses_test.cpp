// What a report lists of a document that was repaired.

#include "migration/losses/repaired_losses.h"

#include "migration/model/loss_kinds.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

CountedObject counted(ObjectClass objectClass, std::optional<LossKind> lost = {})
{
    CountedObject object;
    object.objectClass = objectClass;
    object.lost = lost;
    return object;
}

LabelFacts labelOf(const QList<ObjectClass>& classes)
{
    LabelFacts label;
    for (const ObjectClass objectClass : classes) {
        ItemFacts item;
        item.kind = u"rectangle"_s;
        item.objectClass = objectClass;
        label.items.append(item);
    }
    return label;
}

Census censusOf(const QList<CountedObject>& objects)
{
    Census census;
    census.objects = objects;
    return census;
}

FileReport filled(const Census& original, const Census& repaired, const LabelFacts& label,
                  int pagesLeftOut = 0)
{
    RepairedLosses losses(original);
    losses.addPage(repaired, label, {});
    if (pagesLeftOut > 0) {
        losses.leaveOutPages(pagesLeftOut);
    }
    FileReport report;
    losses.fill(report);
    return report;
}

std::string codesOf(const QList<Finding>& findings)
{
    QStringList codes;
    for (const Finding& finding : findings) {
        codes.append(u"%1 %2"_s.arg(finding.code).arg(finding.count));
    }
    return codes.join(u", "_s).toStdString();
}

const Census TwoShapes = censusOf({counted(ObjectClass::Shape), counted(ObjectClass::Shape)});

} // namespace

TEST(RepairedLosses, WhatWasRepairedIsNotLost)
{
    const Census original = censusOf({counted(ObjectClass::Shape, LossKind::GroupedObject),
                                      counted(ObjectClass::Shape, LossKind::GroupedObject)});
    const FileReport report =
        filled(original, TwoShapes, labelOf({ObjectClass::Shape, ObjectClass::Shape}));
    EXPECT_EQ(codesOf(report.lost), "");
    EXPECT_EQ(report.objects.inFile, 2);
    EXPECT_EQ(report.objects.imported, 2);
    EXPECT_EQ(report.complete.constFirst().count, 2);
}

TEST(RepairedLosses, WhatTheRepairedDocumentStillHasIsLost)
{
    const Census original = censusOf({counted(ObjectClass::Shape, LossKind::GroupedObject),
                                      counted(ObjectClass::Text, LossKind::Table)});
    const Census repaired =
        censusOf({counted(ObjectClass::Shape), counted(ObjectClass::Text, LossKind::Table)});
    const FileReport report = filled(original, repaired, labelOf({ObjectClass::Shape}));
    EXPECT_EQ(codesOf(report.lost), "table 1");
    EXPECT_EQ(report.objects.imported, 1);
}

TEST(RepairedLosses, AnItemThatIsNotOnTheLabelIsMissing)
{
    const FileReport report = filled(TwoShapes, TwoShapes, labelOf({ObjectClass::Shape}));
    EXPECT_EQ(codesOf(report.lost), "object-missing 1");
    EXPECT_EQ(report.objects.inFile, 2);
    EXPECT_EQ(report.objects.imported, 1);
}

TEST(RepairedLosses, WhatNoRepairAvoidsIsLostEvenIfTheRepairedDocumentDoesNotHaveIt)
{
    const Census original = censusOf({counted(ObjectClass::Shape, LossKind::ThreeDScene)});
    EXPECT_EQ(codesOf(filled(original, {}, {}).lost), "three-d-scene 1");
}

TEST(RepairedLosses, APageThatWasNotImportedIsLost)
{
    Census original =
        censusOf({counted(ObjectClass::Shape), counted(ObjectClass::Shape, LossKind::FurtherPage)});
    original.objects[1].page = 2;
    const Census repaired = censusOf({counted(ObjectClass::Shape)});
    const LabelFacts label = labelOf({ObjectClass::Shape});
    EXPECT_EQ(codesOf(filled(original, repaired, label).lost), "");
    const FileReport report = filled(original, repaired, label, 1);
    EXPECT_EQ(codesOf(report.lost), "pages-left-out 1");
    EXPECT_EQ(report.lost.constFirst().details, QStringList{u"2"_s});
    EXPECT_EQ(report.objects.imported, 1);
}

TEST(RepairedLosses, OnlyObjectsOfPagesThatWereLeftOutAreLost)
{
    Census original;
    for (int page = 1; page <= 4; ++page) {
        original.objects.append(counted(ObjectClass::Shape, LossKind::FurtherPage));
        original.objects.last().page = page;
    }
    const Census repaired = censusOf({counted(ObjectClass::Shape)});
    RepairedLosses losses(original);
    losses.addPage(repaired, labelOf({ObjectClass::Shape}), {});
    losses.leaveOutPages(2);
    losses.addPage(repaired, labelOf({ObjectClass::Shape}), {});
    FileReport report;
    losses.fill(report);
    EXPECT_EQ(codesOf(report.lost), "pages-left-out 2");
    EXPECT_EQ(report.lost.constFirst().details, QStringList{u"2–3"_s});
    EXPECT_EQ(report.objects.imported, 2);
}

TEST(RepairedLosses, CountsPagesWhoseObjectsAreUnknown)
{
    const FileReport report =
        filled(TwoShapes, TwoShapes, labelOf({ObjectClass::Shape, ObjectClass::Shape}), 3);
    EXPECT_EQ(codesOf(report.lost), "pages-left-out 3");
    EXPECT_FALSE(report.lost.constFirst().countsObjects);
    EXPECT_EQ(report.objects.imported, 2);
}

TEST(RepairedLosses, WhatIsSetOnTheItemsIsNotChanged)
{
    Census original = censusOf({counted(ObjectClass::Text)});
    original.objects[0].changes.add(LossKind::TextColor);
    original.objects[0].changes.add(LossKind::FixedField);
    const FileReport report = filled(original, original, labelOf({ObjectClass::Text}));
    EXPECT_EQ(codesOf(report.changed), "fixed-field 1");
}

TEST(RepairedLosses, TransparencyIsSetOnTheItems)
{
    Census original = censusOf({counted(ObjectClass::Shape)});
    original.objects[0].changes.add(LossKind::Transparency);
    original.objects[0].changes.add(LossKind::EffectDropped);
    const FileReport report = filled(original, original, labelOf({ObjectClass::Shape}));
    EXPECT_EQ(codesOf(report.changed), "effect-dropped 1");
}

TEST(RepairedLosses, OnlyFormatsThatAreSetAreRepaired)
{
    Census original = censusOf({counted(ObjectClass::Text), counted(ObjectClass::Shape)});
    original.objects[0].changes.add(LossKind::TextFormat);
    original.objects[0].changes.add(LossKind::TextEffect);
    original.objects[1].changes.add(LossKind::FillSimplified);
    original.objects[1].changes.add(LossKind::PictureFill);
    // The repaired document has neither: the fills are drawn, the effects are gone.
    const Census repaired = censusOf({counted(ObjectClass::Text), counted(ObjectClass::Shape)});
    const FileReport report =
        filled(original, repaired, labelOf({ObjectClass::Text, ObjectClass::Shape}));
    EXPECT_EQ(codesOf(report.changed), "text-effect 1");
}

TEST(RepairedLosses, AHeaderIsLostOnlyIfNoPageShowsItsText)
{
    Census original = censusOf({counted(ObjectClass::Text, LossKind::HeaderOrFooter),
                                counted(ObjectClass::Text, LossKind::HeaderOrFooter),
                                counted(ObjectClass::Picture, LossKind::HeaderOrFooter)});
    for (const char* text : {"Page header", "Other footer", ""}) {
        Appearance appearance;
        appearance.text = QString::fromLatin1(text);
        original.objects[original.appearances.size()].appearance = original.appearances.size();
        original.appearances.append(appearance);
    }
    // The repaired document still has the master page.
    LabelFacts label = labelOf({ObjectClass::Text});
    label.items[0].text = u"Page  header"_s;
    RepairedLosses losses(original);
    losses.addPage(original, label, {});
    losses.addPage(original, labelOf({}), {});
    FileReport report;
    losses.fill(report);
    EXPECT_EQ(codesOf(report.lost), "header-or-footer 2");
    EXPECT_EQ(report.objects.inFile, 3);
    EXPECT_EQ(report.objects.imported, 1);
}

TEST(RepairedLosses, AShapeOfTheHeaderIsKnownByItsSize)
{
    Census original = censusOf({counted(ObjectClass::Shape, LossKind::HeaderOrFooter)});
    original.objects[0].appearance = 0;
    original.appearances.append(Appearance());
    original.appearances[0].size = {30.0, 200.0};
    const auto lost = [&original](const QRectF& box) {
        LabelFacts label = labelOf({ObjectClass::Symbol});
        label.items[0].outline = QPolygonF(box);
        return codesOf(filled(original, censusOf({}), label).lost);
    };
    EXPECT_EQ(lost({7.0, 8.0, 31.0, 201.0}), "");
    EXPECT_EQ(lost({7.0, 8.0, 31.0, 150.0}), "header-or-footer 1");
}

// Wherever they are: the repaired document has no trace of the place.
TEST(RepairedLosses, PicturesThatNoLabelShowsAreMissing)
{
    const Census original = censusOf({counted(ObjectClass::Picture, LossKind::Table),
                                      counted(ObjectClass::Picture, LossKind::Table)});
    const auto lost = [&original](QList<ObjectClass> items) {
        return codesOf(filled(original, censusOf({}), labelOf(items)).lost);
    };
    EXPECT_EQ(lost({ObjectClass::Picture, ObjectClass::Picture}), "");
    EXPECT_EQ(lost({ObjectClass::Picture}), "object-missing 1");
}

TEST(RepairedLosses, PagesAddUp)
{
    RepairedLosses losses(TwoShapes);
    const Census page = censusOf({counted(ObjectClass::Shape)});
    losses.addPage(page, {}, {});
    losses.addPage(page, labelOf({ObjectClass::Shape}), {});
    FileReport report;
    losses.fill(report);
    EXPECT_EQ(codesOf(report.lost), "object-missing 1");
    EXPECT_EQ(report.objects.imported, 1);
}

// Each page is compared with all texts of the document.
TEST(RepairedLosses, ATextIsMissingOnlyIfNoPageShowsIt)
{
    Census original;
    for (const char* text : {"First page", "Second page", "Lost text", "Twice", "Twice",
                             "A paragraph that begins on one page and ends on the next"}) {
        Appearance appearance;
        appearance.text = QString::fromLatin1(text);
        original.objects.append(counted(ObjectClass::Text));
        original.objects.last().appearance = original.appearances.size();
        original.appearances.append(appearance);
    }
    const QString split = original.appearances.constLast().text;
    LabelFacts first = labelOf({ObjectClass::Text});
    first.items[0].text = split.left(30);
    first.missingTexts = QStringList{u"Second page"_s, u"Lost text"_s, u"Twice"_s, split};
    LabelFacts second = labelOf({ObjectClass::Text});
    second.items[0].text = split.mid(30);
    second.missingTexts =
        QStringList{u"First page"_s, u"Lost text"_s, u"Twice"_s, u"Twice"_s, split};
    RepairedLosses losses(original);
    losses.addPage({}, first, {});
    losses.addPage({}, second, {});
    FileReport report;
    losses.fill(report);
    ASSERT_EQ(codesOf(report.changed), "text-differs 2");
    EXPECT_EQ(report.changed.constFirst().details, (QStringList{u"Lost text → "_s, u"Twice → "_s}));
    losses.leaveOutPages(1);
    FileReport part;
    losses.fill(part);
    EXPECT_EQ(codesOf(part.changed), "");
    EXPECT_EQ(codesOf(part.lost), "pages-left-out 5");
}

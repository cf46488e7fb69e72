// The comparison of a repaired label with its document. The labels are imported without repair:
// they show what a repair that fails would leave.

#include "migration/census/counting.h"
#include "migration/losses/check_label.h"
#include "migration/losses/matching.h"
#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <functional>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(LabelFacts&)>;

LabelFacts checked(const Document& document, const Prepare& prepare = {})
{
    LabelFacts facts;
    (void)reportOn(document, [&](workbench::ImportResult& result) {
        facts = lookAtItems(*result.canvas, false);
        if (prepare) {
            prepare(facts);
        }
        checkLabel(countOpenDocument(document.bytes), *result.canvas, {.isRepaired = true}, facts);
    });
    return facts;
}

qsizetype countOf(const LabelFacts& facts, LossKind kind)
{
    return std::count_if(facts.items.begin(), facts.items.end(),
                         [kind](const ItemFacts& item) { return item.changes.has(kind); });
}

Document redText()
{
    return odg("<draw:rect svg:x=\"1in\" svg:y=\"1in\" svg:width=\"2in\" svg:height=\"1in\">"
               "<text:p><text:span text:style-name=\"R\">STOP</text:span></text:p></draw:rect>",
               {.automaticStyles = "<style:style style:name=\"R\" style:family=\"text\">"
                                   "<style:text-properties fo:color=\"#ff0000\"/></style:style>"});
}

QPolygonF boxOf(double x, double y, double width, double height)
{
    const QRectF box(x, y, width, height);
    return QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
}

/// The number of pairs of a document with one line and a label with another.
qsizetype matchLines(const QPolygonF& wanted, const QPolygonF& seen, bool isRepaired)
{
    Census census;
    Appearance appearance;
    appearance.outline = wanted;
    census.appearances.append(appearance);
    census.objects.append({.objectClass = ObjectClass::Line, .appearance = 0});
    LabelFacts label;
    ItemFacts item;
    item.objectClass = ObjectClass::Line;
    item.outline = seen;
    label.items.append(item);
    return matchItems(census, label, 0, 1.0, isRepaired).shapes.size();
}

} // namespace

TEST(CheckRepaired, FindsAColorThatRepairDidNotSet)
{
    const LabelFacts black = checked(redText());
    EXPECT_EQ(countOf(black, LossKind::TextColor), 1);
    EXPECT_EQ(black.tallies.at(LossKind::TextColor).details, QStringList{u"#ff0000 → #000000"_s});
    const LabelFacts red = checked(redText(), [](LabelFacts& facts) {
        for (ItemFacts& item : facts.items) {
            item.textColor = QColor(255, 0, 0);
        }
    });
    EXPECT_EQ(countOf(red, LossKind::TextColor), 0);
}

// A fill that items do not have is drawn; the box above the drawing carries the text.
TEST(CheckRepaired, AcceptsABoxInFrontOfItsDrawing)
{
    const Document document =
        odg(QByteArray(PlainRect).replace("<draw:rect", "<draw:rect draw:style-name=\"S\""),
            {.automaticStyles = "<style:style style:name=\"S\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:stroke=\"none\" "
                                "draw:fill=\"bitmap\" draw:fill-color=\"#ffffff\"/>"
                                "</style:style>"});
    EXPECT_EQ(countOf(checked(document), LossKind::Invisible), 1);
    const LabelFacts drawn = checked(document, [](LabelFacts& facts) {
        ItemFacts drawing;
        drawing.objectClass = ObjectClass::Symbol;
        drawing.outline = facts.items.constFirst().outline;
        facts.items.append(drawing);
    });
    EXPECT_EQ(countOf(drawn, LossKind::Invisible), 0);
}

// Repair draws some lines, and adds lines to other objects: only the size shows that a line
// elsewhere is the same.
TEST(CheckRepaired, MatchesAMovedItemOfTheSameSizeOnly)
{
    const QPolygonF line = boxOf(0.0, 0.0, 100.0, 0.0);
    const QPolygonF moved = boxOf(300.0, 0.0, 100.0, 0.0);
    const QPolygonF other = boxOf(300.0, 0.0, 40.0, 30.0);
    EXPECT_EQ(matchLines(line, moved, true), 1);
    EXPECT_EQ(matchLines(line, other, true), 0);
    EXPECT_EQ(matchLines(line, other, false), 1);
}

// A line break in the XML is a space; the number of a page is not what the file contains.
TEST(CheckRepaired, ComparesTextsAsTheyAreShown)
{
    const Census text = countOpenDocument(textOf("<text:p>One\ntwo</text:p>"));
    ASSERT_EQ(text.appearances.size(), 1);
    EXPECT_EQ(text.appearances.constFirst().text, u"One two"_s);
    const Census drawing = countOpenDocument(drawingOf(
        "<draw:rect svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\"><text:p>"
        "Page <text:span><text:page-number>&lt;number&gt;</text:page-number></text:span></text:p>"
        "</draw:rect>"));
    ASSERT_EQ(drawing.appearances.size(), 2);
    EXPECT_EQ(drawing.appearances.constLast().text, u"Page 1"_s);
}

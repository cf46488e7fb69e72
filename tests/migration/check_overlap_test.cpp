// Texts that are drawn over each other on the label, but not in the document.

#include "migration/census/counting.h"
#include "migration/losses/check_label.h"
#include "migration/losses/check_overlap.h"
#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

/// The texts that are reported when a document became the label of another one, as by repair.
QStringList overlapsOf(const Document& original, const Document& repaired)
{
    LabelFacts facts;
    (void)reportOn(repaired, [&](workbench::ImportResult& result) {
        facts = lookAtItems(*result.canvas, false);
        checkLabel(countOpenDocument(original.bytes), *result.canvas,
                   {.page = 0, .isRepaired = true}, facts);
    });
    const auto tally = facts.tallies.find(LossKind::TextsOverlap);
    const QStringList details =
        tally != facts.tallies.end() ? tally->second.details : QStringList();
    const auto marked =
        std::count_if(facts.items.begin(), facts.items.end(), [](const ItemFacts& item) {
            return item.changes.has(LossKind::TextsOverlap);
        });
    EXPECT_EQ(marked, details.size());
    return details;
}

QStringList overlapsOf(const Document& document)
{
    return overlapsOf(document, document);
}

QByteArray textBox(const QByteArray& place, const QByteArray& text, const char* style = "S")
{
    return QByteArray("<draw:frame text:anchor-type=\"page\" draw:style-name=\"") + style + "\" " +
           place + "><draw:text-box><text:p>" + text + "</text:p></draw:text-box></draw:frame>";
}

QByteArray placeOf(double x, double y, double width = 3.0, double height = 0.25)
{
    return "svg:x=\"" + QByteArray::number(x) + "in\" svg:y=\"" + QByteArray::number(y) +
           "in\" svg:width=\"" + QByteArray::number(width) + "in\" svg:height=\"" +
           QByteArray::number(height) + "in\"";
}

DocumentParts framesWith(const char* properties)
{
    return {.automaticStyles =
                QByteArray("<style:style style:name=\"S\" style:family=\"graphic\">"
                           "<style:graphic-properties draw:stroke=\"none\" draw:fill=\"none\" ") +
                properties + "/></style:style>"};
}

const QByteArray BodyText = "<text:p>A line of the body</text:p>";
const char* const Apart = "style:wrap=\"none\"";
const char* const RunThrough = "style:wrap=\"run-through\"";

Document footerOverBody()
{
    return odt(BodyText + textBox(placeOf(0.0, 0.05), "Page footer"), framesWith(Apart));
}

QPolygonF inkAt(double x, double y, double width, double height)
{
    return QPolygonF(
        QList<QPointF>{{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
}

/// The number of items with texts over an earlier one, of texts that no object is known of.
qsizetype countOver(const QList<QPolygonF>& inks)
{
    LabelFacts label;
    label.pageSize = QSizeF(400.0, 400.0);
    QList<DrawnText> texts;
    for (const QPolygonF& ink : inks) {
        texts.append({ink, label.items.size()});
        label.items.append(ItemFacts());
    }
    EXPECT_TRUE(checkOverlap(texts, {}, 1.0, label));
    return std::count_if(label.items.begin(), label.items.end(), [](const ItemFacts& item) {
        return item.changes.has(LossKind::TextsOverlap);
    });
}

} // namespace

// Repair makes a box of a footer. In the document, the body ends above it.
TEST(CheckOverlap, FindsAFooterOverTheBody)
{
    const Document original =
        odt(BodyText, {.masterPages = "<style:master-page style:name=\"M\" "
                                      "style:page-layout-name=\"L\"><style:footer>"
                                      "<text:p>Page footer</text:p></style:footer>"
                                      "</style:master-page>"});
    EXPECT_EQ(overlapsOf(original, footerOverBody()), QStringList{u"Page footer"_s});
    const Document apart =
        odt(BodyText + textBox(placeOf(0.0, 1.0), "Page footer"), framesWith(Apart));
    EXPECT_EQ(overlapsOf(original, apart), QStringList());
}

TEST(CheckOverlap, ComparesWhatIsDrawnAndNotBoxes)
{
    // The box reaches over the text of the body, its own text does not.
    const Document boxes = odt(BodyText + textBox(placeOf(2.5, 0.0, 1.5, 1.0), "Right") +
                                   textBox(placeOf(0.0, 0.0, 4.0, 1.0), "<text:s text:c=\"60\"/>"),
                               framesWith(Apart));
    EXPECT_EQ(overlapsOf(boxes), QStringList());
    const Document gap = odt(textBox(placeOf(0.0, 1.0), "Left<text:s text:c=\"30\"/>Right") +
                                 textBox(placeOf(1.0, 1.0, 0.5), "In the gap"),
                             framesWith(Apart));
    EXPECT_EQ(overlapsOf(gap), QStringList());
}

TEST(CheckOverlap, AcceptsTextThatTheDocumentLetsRunThroughABox)
{
    const QByteArray mark = textBox(placeOf(0.0, 0.05), "DRAFT");
    EXPECT_EQ(overlapsOf(odt(BodyText + mark, framesWith(RunThrough))), QStringList());
    EXPECT_EQ(overlapsOf(odt(BodyText + mark, framesWith(Apart))).size(), 1);
}

TEST(CheckOverlap, AcceptsShapesThatAreOverEachOtherInTheDocument)
{
    const QByteArray filled = "<draw:rect draw:style-name=\"F\" " + placeOf(0.5, 0.5) +
                              "><text:p>Own text</text:p>"
                              "</draw:rect>";
    const QByteArray same = "<draw:rect draw:style-name=\"F\" " + placeOf(0.6, 0.5) +
                            "><text:p>Own text, too</text:p>"
                            "</draw:rect>";
    EXPECT_EQ(overlapsOf(odg(filled)), QStringList());
    EXPECT_EQ(overlapsOf(odg(filled + same)), QStringList());
    EXPECT_EQ(overlapsOf(odg("<draw:rect " + placeOf(0.5, 0.5, 3.0, 1.0) + "/>" + filled)),
              QStringList());
}

// The text is longer than its shape, in the document as well. In another font it may be longer.
TEST(CheckOverlap, AcceptsTextsThatAreTooLongForTheirShapes)
{
    const auto textsIn = [](const char* family) {
        const QByteArray narrow = "<draw:rect draw:style-name=\"T\" " +
                                  placeOf(0.5, 0.5, 0.5, 0.25) +
                                  "><text:p>Temperature</text:p></draw:rect>";
        const QByteArray below = "<draw:rect draw:style-name=\"T\" " +
                                 placeOf(0.5, 0.7, 0.5, 0.25) +
                                 "><text:p>Humidity</text:p></draw:rect>";
        return overlapsOf(
            odg(narrow + below,
                {.automaticStyles = "<style:style style:name=\"T\" style:family=\"graphic\">"
                                    "<style:text-properties fo:font-family=\"" +
                                    QByteArray(family) + "\"/></style:style>"}));
    };
    EXPECT_EQ(textsIn("Liberation Sans"), QStringList());
    EXPECT_EQ(textsIn("No Such Font"), QStringList{u"Humidity"_s});
}

// Readers turn a shape about its center: it gets to another place, and over another shape.
TEST(CheckOverlap, FindsATextThatMovedOverAnother)
{
    const QByteArray still = "<draw:rect " + placeOf(1.0, 1.0) +
                             "><text:p>A text that stays here"
                             "</text:p></draw:rect>";
    const QByteArray turned = "<draw:rect draw:transform=\"rotate (-1.5707963) translate (1.5in "
                              "1in)\" svg:width=\"1in\" svg:height=\"0.25in\"><text:p>A turned text"
                              "</text:p></draw:rect>";
    EXPECT_EQ(overlapsOf(odg(still)), QStringList());
    EXPECT_EQ(overlapsOf(odg(still + turned)).size(), 1);
}

TEST(CheckOverlap, FindsOnlyWhatIsVisible)
{
    const QPolygonF line = inkAt(10, 100, 200, 10);
    // Lines that are set closely; letters that reach into the next run.
    EXPECT_EQ(countOver({line, inkAt(10, 109, 200, 10)}), 0);
    EXPECT_EQ(countOver({line, inkAt(207, 100, 100, 10)}), 0);
    EXPECT_EQ(countOver({line, inkAt(10, 108.5, 200, 10)}), 1);
    EXPECT_EQ(countOver({line, inkAt(200, 100, 100, 10)}), 1);
    // One letter, and a text that is turned.
    EXPECT_EQ(countOver({line, inkAt(50, 101, 4, 9)}), 1);
    QTransform turn;
    turn.translate(100, 60);
    turn.rotate(60);
    EXPECT_EQ(countOver({line, turn.map(inkAt(0, 0, 100, 10))}), 1);
    EXPECT_EQ(countOver({line, turn.map(inkAt(0, 0, 40, 10))}), 0);
    // Off the page, nothing is printed.
    EXPECT_EQ(countOver({inkAt(10, 500, 200, 10), inkAt(10, 500, 200, 10)}), 0);
}

TEST(CheckOverlap, ComparesALimitedNumberOfTexts)
{
    // All texts are in one cell: each is compared with all that are before it, and enters its cell.
    for (const int count : {6'323, 6'324}) {
        LabelFacts label;
        label.pageSize = QSizeF(400.0, 400.0);
        label.items.resize(count);
        QList<DrawnText> texts;
        for (int item = 0; item < count; ++item) {
            texts.append({inkAt(1.0 + item * 0.01, 1.0 + (item % 2) * 5.0, 0.005, 1.0), item});
        }
        EXPECT_EQ(checkOverlap(texts, {}, 1.0, label), count == 6'323) << count;
    }
}

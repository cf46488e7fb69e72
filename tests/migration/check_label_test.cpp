// The comparison of labels with their OpenDocument files, each on a small document.

#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

FileReport reportOnOriginal(const char* name)
{
    QFile file(QStringLiteral(LABELPORT_SOURCE_DIR "/tests/migration/originals/") +
               QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return reportOn({QString::fromLatin1(name), file.readAll()});
}

struct Expected
{
    const char* file;
    LossKind kind;
    qint64 count;
};

constexpr Expected Originals[] = {
    {"turned_shape_moves.odg", LossKind::Moved, 1},
    {"blank_between_spans.odg", LossKind::TextDiffers, 1},
    {"blank_between_spans.odt", LossKind::TextDiffers, 2},
    {"blank_lines_in_shape.odg", LossKind::TextDiffers, 1},
    {"white_on_black.odg", LossKind::TextUnreadable, 1},
    {"pictures_pile_up.odt", LossKind::Covered, 3},
    {"centred_runs_overlap.odt", LossKind::TextsOverlap, 1},
    {"text_of_a_line.odg", LossKind::LineText, 1},
};

QByteArray boxAt(const char* place, const char* style, const char* content = "")
{
    return QByteArray("<draw:rect draw:style-name=\"") + style + "\" " + place +
           " svg:width=\"1in\" svg:height=\"1in\">" + content + "</draw:rect>";
}

QByteArray graphicStyle(const char* name, const char* properties, const char* text = "")
{
    return QByteArray("<style:style style:name=\"") + name +
           "\" style:family=\"graphic\"><style:graphic-properties " + properties +
           "/><style:text-properties " + text + "/></style:style>";
}

} // namespace

TEST(CheckLabel, FindsWhatOriginalDocumentsLose)
{
    for (const Expected& expected : Originals) {
        const FileReport report = reportOnOriginal(expected.file);
        SCOPED_TRACE(std::string(expected.file) + ": " + codesOf(report).toStdString());
        const Finding* const finding = findingOf(report, lossCode(expected.kind));
        ASSERT_NE(finding, nullptr);
        EXPECT_EQ(finding->count, expected.count);
        EXPECT_EQ(verdictOf(report), Verdict::Lossy);
    }
}

TEST(CheckLabel, FindsSafetyTextThatCannotBeRead)
{
    QFile file(QStringLiteral(LABELPORT_SOURCE_DIR "/samples/opendocument/high_voltage.odg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const FileReport report = reportOn({u"high_voltage.odg"_s, file.readAll()});
    const Finding* const finding = findingOf(report, lossCode(LossKind::TextUnreadable));
    ASSERT_NE(finding, nullptr) << codesOf(report).toStdString();
    EXPECT_EQ(finding->details, QStringList{u"Switch off & lock before work"_s});
}

// What the document hides is not lost.
TEST(CheckLabel, AcceptsWhatTheDocumentCovers)
{
    const FileReport report = reportOnOriginal("covered_text.odg");
    for (const LossKind kind : {LossKind::Covered, LossKind::TextUnreadable}) {
        EXPECT_EQ(findingOf(report, lossCode(kind)), nullptr) << codesOf(report).toStdString();
    }
}

TEST(CheckLabel, AcceptsATextOnALightGround)
{
    const FileReport report = reportOn(
        odg(boxAt("svg:x=\"1in\" svg:y=\"1in\"", "A", "<text:p>Red</text:p>"),
            {.automaticStyles = graphicStyle("A", "draw:fill=\"solid\" draw:fill-color=\"#ffff00\"",
                                             "fo:color=\"#ff0000\"")}));
    EXPECT_NE(findingOf(report, lossCode(LossKind::TextColor)), nullptr);
    EXPECT_EQ(findingOf(report, lossCode(LossKind::TextUnreadable)), nullptr);
}

TEST(CheckLabel, FindsOnlyShapesThatMovedByMoreThanAMillimeter)
{
    // Turned by a hundredth of a radian about its corner, a box of an inch moves by 0.01 inch.
    const FileReport still =
        reportOn(odg(boxAt("draw:transform=\"rotate (0.01) translate (1in 1in)\"", "A")));
    EXPECT_EQ(findingOf(still, lossCode(LossKind::Moved)), nullptr) << codesOf(still).toStdString();
    const FileReport moved =
        reportOn(odg(boxAt("draw:transform=\"rotate (0.2) translate (1in 1in)\"", "A")));
    EXPECT_NE(findingOf(moved, lossCode(LossKind::Moved)), nullptr);
}

// A shape whose style says nothing about its fill is filled; the reader leaves it empty.
TEST(CheckLabel, FindsAFillThatTheLabelLacks)
{
    const auto isFound = [](const char* properties) {
        const FileReport report = reportOn(odg(boxAt("svg:x=\"1in\" svg:y=\"1in\"", "S"),
                                               {.automaticStyles = graphicStyle("S", properties)}));
        EXPECT_EQ(report.objects.imported, 1);
        return findingOf(report, lossCode(LossKind::FillSimplified)) != nullptr;
    };
    EXPECT_TRUE(isFound(""));
    EXPECT_FALSE(isFound("draw:fill-color=\"#3465a4\""));
    EXPECT_FALSE(isFound("draw:fill=\"none\""));
    EXPECT_FALSE(isFound("draw:fill=\"solid\" draw:fill-color=\"#3465a4\""));
    EXPECT_FALSE(isFound("draw:fill=\"solid\" draw:fill-color=\"#3465a4\" draw:opacity=\"0%\""));
}

TEST(CheckLabel, AllowsForTheEnlargementOfMillimeters)
{
    const FileReport report =
        reportOn(odg("<draw:rect svg:x=\"10mm\" svg:y=\"10mm\" svg:width=\"20mm\" "
                     "svg:height=\"5mm\"/>",
                     {.pageLayout = "fo:page-width=\"50mm\" fo:page-height=\"30mm\""}));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::Moved)), nullptr)
        << codesOf(report).toStdString();
    EXPECT_NE(findingOf(report, lossCode(LossKind::MillimetersEnlarged)), nullptr);
}

// A font comes from the style of a shape, and by the name of a declaration.
TEST(CheckLabel, FindsAFontReplacedOnlyIfAnotherFamilyIsDrawn)
{
    const QByteArray faces = "<style:font-face style:name=\"Liberation Sans1\" "
                             "svg:font-family=\"'Liberation Sans'\"/>"
                             "<style:font-face style:name=\"Strange1\" "
                             "svg:font-family=\"'No Such Font'\"/>";
    const auto report = [&faces](const char* face) {
        return reportOn(
            odg(boxAt("svg:x=\"1in\" svg:y=\"1in\"", "A", "<text:p>Text</text:p>"),
                {.automaticStyles =
                     faces +
                     graphicStyle("A", "draw:fill=\"none\"",
                                  ("style:font-name=\"" + QByteArray(face) + '"').constData())}));
    };
    const FileReport same = report("Liberation Sans1");
    EXPECT_EQ(findingOf(same, lossCode(LossKind::FontReplaced)), nullptr)
        << codesOf(same).toStdString();
    const FileReport other = report("Strange1");
    const Finding* const finding = findingOf(other, lossCode(LossKind::FontReplaced));
    ASSERT_NE(finding, nullptr);
    EXPECT_EQ(finding->details, QStringList{u"No Such Font → Liberation Sans"_s});
}

TEST(CheckLabel, CountsFootnotesInLostSections)
{
    const FileReport report =
        reportOn(odt("<text:p>Text</text:p><text:section><text:p>A<text:note>"
                     "<text:note-citation>1</text:note-citation><text:note-body><text:p>Note"
                     "</text:p></text:note-body></text:note></text:p></text:section>"));
    const Finding* const notes = findingOf(report, lossCode(LossKind::Footnote));
    ASSERT_NE(notes, nullptr) << codesOf(report).toStdString();
    EXPECT_EQ(notes->count, 1);
    EXPECT_EQ(report.objects.inFile, 3);
    EXPECT_EQ(report.objects.imported, 1);
}

TEST(CheckLabel, FindsAnItemBelowALaterOne)
{
    const QByteArray styles = graphicStyle("A", "draw:fill=\"solid\" draw:fill-color=\"#00ff00\"") +
                              graphicStyle("B", "draw:fill=\"solid\" draw:fill-color=\"#0000ff\"");
    // The second box turns about its corner, away from the first; readers turn it about its
    // center, and it stays on the first.
    const QByteArray shapes =
        boxAt("svg:x=\"1in\" svg:y=\"1in\"", "A") +
        boxAt("draw:transform=\"rotate (-1.5707963) translate (1in 1in)\"", "B");
    const FileReport report = reportOn(odg(shapes, {.automaticStyles = styles}));
    EXPECT_NE(findingOf(report, lossCode(LossKind::Covered)), nullptr)
        << codesOf(report).toStdString();
    // In the document, too, the third box is on the first.
    const FileReport same = reportOn(
        odg(boxAt("svg:x=\"1in\" svg:y=\"1in\"", "A") + boxAt("svg:x=\"1in\" svg:y=\"1in\"", "B"),
            {.automaticStyles = styles}));
    EXPECT_EQ(findingOf(same, lossCode(LossKind::Covered)), nullptr) << codesOf(same).toStdString();
}

// A box over the upper third of a shape hides the text, although it hides less than half of
// the shape.
TEST(CheckLabel, AcceptsATextThatTheDocumentCovers)
{
    const QByteArray styles = graphicStyle("A", "draw:fill=\"solid\" draw:fill-color=\"#ffffff\"") +
                              graphicStyle("B", "draw:fill=\"solid\" draw:fill-color=\"#0000ff\"");
    const FileReport report =
        reportOn(odg(boxAt("svg:x=\"1in\" svg:y=\"1in\"", "A", "<text:p>Hidden</text:p>") +
                         "<draw:rect draw:style-name=\"B\" svg:x=\"0.5in\" svg:y=\"0.9in\" "
                         "svg:width=\"2in\" svg:height=\"0.45in\"/>",
                     {.automaticStyles = styles}));
    EXPECT_EQ(findingOf(report, lossCode(LossKind::Covered)), nullptr)
        << codesOf(report).toStdString();
}

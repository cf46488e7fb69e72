// Notes of a text document are at the bottom of the page that cites them.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Points: the page is 5 cm high, with margins of 20.
constexpr double PageBottom = 5.0 * 72.0 / 2.54 - 20.0;

QByteArray note(const QByteArray& number, const QByteArray& text,
                const QByteArray& kind = "footnote")
{
    return "<text:note text:note-class=\"" + kind + "\"><text:note-citation>" + number +
           "</text:note-citation><text:note-body><text:p>" + text +
           "</text:p></text:note-body></text:note>";
}

/// Where a text begins and ends, down its page.
struct Placed
{
    QString text;
    double top = 0.0;
    double bottom = 0.0;
};

/// The texts of each page, from top to bottom.
QList<QList<Placed>> placedOnPages(const QByteArray& body)
{
    const QTemporaryDir folder;
    QByteArray styles = drawingStyles();
    styles.replace("fo:page-height=\"5cm\" fo:margin=\"0cm\"/>",
                   "fo:page-height=\"5cm\" fo:margin=\"20pt\"/>");
    const auto placed = [](const repair::RepairedImport& import) {
        QList<Placed> texts;
        for (workbench::CanvasItem* const item : import.result.canvas->items()) {
            if (auto* const text = dynamic_cast<RichTextItem*>(item->contractItem())) {
                const double top = item->graphicsItem()->pos().y();
                QString words = text->toPlainText();
                words.remove(QChar::ObjectReplacementCharacter);
                texts.append({words, top, top + text->getItemHeight()});
            }
        }
        std::sort(texts.begin(), texts.end(),
                  [](const Placed& a, const Placed& b) { return a.top < b.top; });
        return texts;
    };
    const repair::RepairedImport first = repair::importRepaired(
        writePackage(folder.path(),
                     "<office:document-content><office:body><office:text>" + body +
                         "</office:text></office:body></office:document-content>",
                     styles));
    QList<QList<Placed>> pages;
    if (!first.isRepaired()) {
        ADD_FAILURE() << "not repaired";
        return pages;
    }
    pages.append(placed(first));
    for (int page = 2; first.document && page <= first.document->pageCount(); ++page) {
        pages.append(placed(repair::importFurtherPage(*first.document, page)));
    }
    return pages;
}

} // namespace

TEST(PageNotes, AreAtTheBottomInTheirOrder)
{
    const auto pages = placedOnPages("<text:p>one" + note("1", "first") + " word" +
                                     note("2", "second") + "</text:p><text:p>two</text:p>");
    ASSERT_EQ(pages.size(), 1);
    ASSERT_EQ(pages[0].size(), 3);
    EXPECT_EQ(pages[0][0].text, u"one1 word2\ntwo"_s);
    EXPECT_EQ(pages[0][1].text, u"1 first"_s);
    EXPECT_EQ(pages[0][2].text, u"2 second"_s);
    EXPECT_NEAR(pages[0][2].bottom, PageBottom, 1.0);
    EXPECT_NEAR(pages[0][1].bottom, pages[0][2].top, 1.0);
}

TEST(PageNotes, TakeRoomFromTheTextThatCitesThem)
{
    QByteArray lines;
    for (int line = 1; line <= 12; ++line) {
        lines += "<text:p>p" + QByteArray::number(line) +
                 (line == 3 || line == 10 ? note(QByteArray::number(line), "note") : QByteArray()) +
                 "</text:p>";
    }
    const auto pages = placedOnPages(lines);
    ASSERT_EQ(pages.size(), 2);
    QString text;
    for (const auto& page : pages) {
        ASSERT_EQ(page.size(), 2) << "each page has a note";
        EXPECT_LE(page[0].bottom, page[1].top + 1.0) << "nothing is on the note";
        EXPECT_NEAR(page[1].bottom, PageBottom, 1.0);
        text += page[0].text + u'\n';
    }
    EXPECT_EQ(pages[0][1].text, u"3 note"_s);
    EXPECT_EQ(pages[1][1].text, u"10 note"_s);
    EXPECT_EQ(text, u"p1\np2\np33\np4\np5\np6\np7\np8\np9\np1010\np11\np12\n"_s);
}

TEST(PageNotes, OfTheEndFollowTheText)
{
    const auto pages = placedOnPages("<text:p>one" + note("i", "last", "endnote") + "</text:p>");
    ASSERT_EQ(pages.value(0).size(), 1);
    EXPECT_EQ(pages[0][0].text, u"onei\ni last"_s);
}

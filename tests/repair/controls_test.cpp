// Form controls become boxes with the text that they show.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/controls_step.h"
#include "repair/repaired_import.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What a control with this element shows.
QString shown(const QByteArray& form)
{
    repair::Document document =
        drawing("<office:forms><form:form>" + form +
                "</form:form></office:forms><draw:control draw:control=\"c\" "
                "svg:width=\"1in\" svg:height=\"0.3in\"/>");
    EXPECT_EQ(repair::showControls(document), 1);
    return object(document, u"draw:frame"_s).allText();
}

} // namespace

TEST(FormControls, ShowTheirTexts)
{
    EXPECT_EQ(shown("<form:button form:id=\"c\" form:label=\"Print\" form:value=\"1\"/>"),
              u"Print"_s);
    EXPECT_EQ(shown("<form:text xml:id=\"c\" form:value=\"old\" form:current-value=\"new\"/>"),
              u"new"_s);
    EXPECT_EQ(shown("<form:fixed-text form:id=\"c\" form:label=\"Lot\"/>"), u"Lot"_s);
    EXPECT_EQ(shown("<form:checkbox form:id=\"c\" form:label=\"ok\" "
                    "form:current-state=\"checked\"/>"),
              u"\u2611 ok"_s);
    EXPECT_EQ(shown("<form:radio form:id=\"c\" form:label=\"ok\"/>"), u"\u25CB ok"_s);
    EXPECT_EQ(shown("<form:listbox form:id=\"c\"><form:option form:label=\"a\"/><form:option "
                    "form:label=\"b\" form:current-selected=\"true\"/></form:listbox>"),
              u"b"_s);
    EXPECT_EQ(shown("<form:password form:id=\"c\" form:value=\"secret\"/>"), QString());
}

TEST(FormControls, WithoutAFormStay)
{
    repair::Document document = drawing("<draw:control draw:control=\"c\"/>");
    EXPECT_EQ(repair::showControls(document), 0);
    EXPECT_EQ(tags(document), u"draw:control"_s);
}

TEST(FormControls, AreOnTheLabelOfATextDocument)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:body><office:text><office:forms><form:form><form:button "
        "form:id=\"c\" form:label=\"Print\"/></form:form></office:forms><text:p>before "
        "<draw:control text:anchor-type=\"as-char\" draw:control=\"c\" svg:width=\"1in\" "
        "svg:height=\"0.3in\"/></text:p></office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    EXPECT_TRUE(import.repairs.contains(repair::Repair{u"controls-replaced"_s, 1}));
    QStringList texts;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        if (const auto* text = dynamic_cast<const RichTextItem*>(item->contractItem())) {
            texts.append(text->toPlainText());
        }
    }
    EXPECT_TRUE(texts.contains(u"Print"_s));
}

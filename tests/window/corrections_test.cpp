// Corrections that the issues panel offers, and the comparison with the original document.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "migration/model/loss_kinds.h"
#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/review/comparison_panel.h"
#include "window/review/correction_commands.h"
#include "window/review/issues_panel.h"
#include "window/review/original_preview.h"

#include <QApplication>
#include <QBuffer>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGraphicsItem>
#include <QInputDialog>
#include <QPushButton>
#include <QSlider>
#include <QUndoStack>

#include <private/qzipwriter_p.h>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

using migration::LossKind;

workbench::ItemValues richText(const QString& family, int points)
{
    workbench::ItemValues values;
    values.type = KestTypes::RichText;
    values.box.size = QSizeF(100.0, 30.0);
    values.text = workbench::TextValues{
        {},
        u"<p><span style=\" font-family:'%1'; font-size:%2pt;\">Text</span></p>"_s.arg(family).arg(
            points)};
    return values;
}

class CorrectionsTest : public WindowFixture
{
protected:
    CorrectionsTest()
        : label(makeLabel())
    {
        label.canvas->addItem(richText(u"No Such Font"_s, 12));
    }
    ~CorrectionsTest() override { stack.clear(); }

    [[nodiscard]] workbench::ItemValues valuesOf(int item) const
    {
        return label.canvas->items().at(item)->values();
    }
    [[nodiscard]] static Issue issueOf(LossKind kind, const QList<int>& items)
    {
        return {.group = IssueGroup::Changed, .code = migration::lossCode(kind), .items = items};
    }
    void choose(const QString& text)
    {
        dialogs.expect([text](QDialog& dialog) {
            auto* input = qobject_cast<QInputDialog*>(&dialog);
            ASSERT_NE(input, nullptr);
            input->setTextValue(text);
            input->accept();
        });
    }

    QWidget window;
    OpenLabel label;
    QUndoStack stack;
    DialogDriver dialogs;
};

QByteArray pictureBytes(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return bytes;
}

void writePackage(const QString& fileName, const QByteArray& thumbnail)
{
    QZipWriter zip(fileName);
    zip.addFile(u"Thumbnails/thumbnail.png"_s, thumbnail);
    zip.close();
}

} // namespace

TEST_F(CorrectionsTest, AreOfferedWhereTheyCanHelp)
{
    EXPECT_EQ(correctionsFor(issueOf(LossKind::FontReplaced, {1})),
              (QList<Correction>{Correction::Delete, Correction::ReplaceFont}));
    EXPECT_EQ(correctionsFor(issueOf(LossKind::MillimetersEnlarged, {})),
              QList<Correction>{Correction::Rescale});
    EXPECT_EQ(correctionsFor(issueOf(LossKind::DatabaseUnlinked, {})),
              QList<Correction>{Correction::Bind});
    EXPECT_EQ(correctionsFor(issueOf(LossKind::Connector, {})), QList<Correction>());
}

TEST_F(CorrectionsTest, DeletesTheItemsOfAnIssue)
{
    EXPECT_TRUE(applyCorrection(Correction::Delete, issueOf(LossKind::OutsidePage, {0, 2}), label,
                                stack, &window));
    EXPECT_EQ(label.canvas->items().size(), 2);
    stack.undo();
    EXPECT_EQ(label.canvas->items().size(), 4);
}

TEST_F(CorrectionsTest, ReplacesAFontEverywhere)
{
    label.canvas->addItem(richText(u"No Such Font"_s, 8));
    const QString family = QFontDatabase::families().constFirst();
    choose(family);
    EXPECT_TRUE(applyCorrection(Correction::ReplaceFont, issueOf(LossKind::FontReplaced, {3}),
                                label, stack, &window));
    EXPECT_EQ(familyOf(valuesOf(3)), family);
    EXPECT_EQ(familyOf(valuesOf(4)), family);
    EXPECT_NE(familyOf(valuesOf(1)), family); // another font
    EXPECT_EQ(stack.count(), 1);
    stack.undo();
    EXPECT_EQ(familyOf(valuesOf(4)), u"No Such Font"_s);
}

TEST_F(CorrectionsTest, SetsAColorOfTextsAndShapes)
{
    const QList<ItemChange> changes = withColor(label.canvas->items(), Qt::red);
    ASSERT_EQ(changes.size(), 4);
    EXPECT_EQ(changes.at(0).after.fill->color, QColor(Qt::red));
    EXPECT_EQ(changes.at(1).after.textStyle->color, QColor(Qt::red));
    EXPECT_EQ(changes.at(2).after.pen->color, QColor(Qt::red));
    EXPECT_TRUE(changes.at(3).after.text->html.contains(u"#ff0000"_s));
    EXPECT_TRUE(changes.at(3).after.text->html.contains(u"No Such Font"_s));
}

TEST_F(CorrectionsTest, RescalesToThePaperInOneStep)
{
    const workbench::ItemValues before = valuesOf(0);
    choose(u"44.45 x 22.225 mm"_s); // half of the page
    EXPECT_TRUE(applyCorrection(Correction::Rescale, issueOf(LossKind::PageSizeAssumed, {}), label,
                                stack, &window));
    EXPECT_NEAR(label.canvas->page().size.width(), 126.0, 0.01);
    EXPECT_NEAR(valuesOf(0).box.size.width(), before.box.size.width() / 2.0, 0.01);
    EXPECT_NEAR(valuesOf(0).placement.position.x(), before.placement.position.x() / 2.0, 0.01);
    EXPECT_NEAR(valuesOf(0).pen->width, before.pen->width / 2.0, 0.01);
    EXPECT_TRUE(valuesOf(3).text->html.contains(u"font-size:6pt"_s));
    stack.undo();
    EXPECT_EQ(valuesOf(0), before);
    EXPECT_NEAR(label.canvas->page().size.width(), 252.0, 0.01);
}

TEST_F(CorrectionsTest, EnlargedMillimetersShrinkWithoutTheirFonts)
{
    const workbench::ItemValues before = valuesOf(0);
    dialogs.expect([](QDialog& dialog) { dialog.accept(); }); // the proposal
    EXPECT_TRUE(applyCorrection(Correction::Rescale, issueOf(LossKind::MillimetersEnlarged, {}),
                                label, stack, &window));
    EXPECT_NEAR(label.canvas->page().size.width(), 2.52, 0.2); // to a tenth of a millimeter
    EXPECT_EQ(valuesOf(0).pen->width, before.pen->width);
    EXPECT_TRUE(valuesOf(3).text->html.contains(u"font-size:12pt"_s));
}

TEST_F(CorrectionsTest, BindsToADataSource)
{
    const int source = label.sources->values().constFirst().id;
    dialogs.expect([](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QComboBox*>()->currentText().endsWith(
            u": Counter (1 to 5, step 1)"_s));
        dialog.accept();
    });
    workbench::ItemValues text = valuesOf(1);
    text.datasource->id = -1;
    label.canvas->items().at(1)->setValues(text);
    EXPECT_TRUE(applyCorrection(Correction::Bind, issueOf(LossKind::DatabaseUnlinked, {1}), label,
                                stack, &window));
    EXPECT_EQ(valuesOf(1).datasource->id, source);
}

TEST_F(CorrectionsTest, CanceledChangesNothing)
{
    for (const Correction correction :
         {Correction::ReplaceFont, Correction::SetColor, Correction::Rescale, Correction::Bind}) {
        dialogs.expectCancel();
        EXPECT_FALSE(applyCorrection(correction, issueOf(LossKind::FontReplaced, {3}), label, stack,
                                     &window));
    }
    EXPECT_EQ(stack.count(), 0);
}

TEST_F(CorrectionsTest, ProposeTheFontThatIsShownInsteadOfAMissingOne)
{
    dialogs.expect([](QDialog& dialog) { dialog.accept(); });
    EXPECT_TRUE(applyCorrection(Correction::ReplaceFont, issueOf(LossKind::FontReplaced, {3}),
                                label, stack, &window));
    EXPECT_EQ(familyOf(valuesOf(3)), QFontInfo(QFont(u"No Such Font"_s)).family());
}

TEST_F(CorrectionsTest, ALabelWithoutDataSourcesIsBoundToACsvFile)
{
    MainWindow mainWindow;
    ASSERT_TRUE(mainWindow.openFile(copied(u"tavrel/member_card_2000024.cnv"_s)));
    ASSERT_TRUE(mainWindow.session().label()->sources->ids().isEmpty());
    mainWindow.show();
    mainWindow.action(ActionId::GoIssues).trigger();
    QFile file(path(u"members.csv"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Name,Number\nRobin Marsh,Member 0117\nKim Reed,Member 0118\n");
    file.close();
    dialogs.expectFile(file.fileName());
    dialogs.expectButton(u"Connect"_s);
    mainWindow.panels().issues().button(Correction::Bind).click();
    EXPECT_EQ(mainWindow.session().label()->sources->recordCount(), 2);
    mainWindow.action(ActionId::NextRecord).trigger();
    EXPECT_EQ(mainWindow.session().label()->canvas->items().at(3)->values().text->text,
              u"Robin Marsh"_s)
        << "the record does not change the item";
    mainWindow.session().undoStack().undo();
    EXPECT_EQ(mainWindow.session().label()->sources->recordCount(), 1);
    mainWindow.session().undoStack().setClean();
}

TEST(Papers, AreReadFromTexts)
{
    EXPECT_NEAR(paperOf(u"A4: 210 × 297 mm"_s)->height(), 841.89, 0.01);
    EXPECT_NEAR(paperOf(u"25,4x50.8"_s)->width(), 72.0, 0.01);
    for (const char* text : {"", "mm", "0 × 10 mm", "10", "99999999999 x 5"}) {
        EXPECT_FALSE(paperOf(QString::fromUtf8(text)).has_value()) << text;
    }
}

TEST_F(CorrectionsTest, ButtonsOfTheIssueAreShownAndCorrect)
{
    MainWindow mainWindow;
    mainWindow.show();
    OpenLabel outside = makeLabel();
    workbench::ItemValues text = outside.canvas->items().at(1)->values();
    text.placement.position = QPointF(5000.0, 10.0);
    outside.canvas->items().at(1)->setValues(text);
    ASSERT_EQ(writeLabel(outside, path(u"outside.label"_s)), QString());
    ASSERT_TRUE(mainWindow.openFile(path(u"outside.label"_s)));
    IssuesPanel& panel = mainWindow.panels().issues();
    ASSERT_FALSE(panel.issues().isEmpty());

    mainWindow.action(ActionId::GoIssues).trigger();
    QPushButton& button = panel.button(Correction::Delete);
    ASSERT_TRUE(button.isVisible());
    EXPECT_FALSE(panel.button(Correction::Bind).isVisible());
    button.click();

    EXPECT_EQ(mainWindow.session().label()->canvas->items().size(), 2);
    EXPECT_TRUE(panel.issues().isEmpty());
    EXPECT_TRUE(mainWindow.isWindowModified());
    mainWindow.session().undoStack().undo();
    EXPECT_EQ(mainWindow.session().label()->canvas->items().size(), 3);
    EXPECT_FALSE(panel.issues().isEmpty());
}

TEST_F(CorrectionsTest, ThePreviewIsReadWithinLimits)
{
    const QString file = path(u"a.odg"_s);
    writePackage(file, pictureBytes({64, 32}));
    EXPECT_EQ(previewOf(file).size(), QSize(64, 32));
    const int side = static_cast<int>(std::sqrt(double(MaximumPreviewPixels)));
    writePackage(file, pictureBytes({side, side}));
    EXPECT_FALSE(previewOf(file).isNull());
    writePackage(file, pictureBytes({side, side + 1}));
    EXPECT_TRUE(previewOf(file).isNull());
    writePackage(file, QByteArray("no picture"));
    EXPECT_TRUE(previewOf(file).isNull());
    writePackage(file, pictureBytes({8, 8}) + QByteArray(MaximumPreviewBytes, 'x'));
    EXPECT_TRUE(previewOf(file).isNull());
    EXPECT_TRUE(previewOf(sample(u"tavrel/address_2000016.cnv"_s)).isNull());
    EXPECT_TRUE(previewOf(path(u"missing.odg"_s)).isNull());
}

TEST_F(CorrectionsTest, TheSliderDividesOriginalAndLabel)
{
    ComparisonPanel panel;
    panel.resize(400, 300);
    QImage original(40, 20, QImage::Format_RGB32);
    original.fill(Qt::blue);
    QImage made(80, 40, QImage::Format_RGB32);
    made.fill(Qt::green);
    panel.setPictures(original, made);
    panel.QWidget::show();
    QApplication::processEvents();
    const auto colorAt = [&panel](double share) {
        const QRectF picture = panel.view().pictureRect();
        const QPointF point(picture.left() + picture.width() * share, picture.center().y());
        return panel.view().grab().toImage().pixelColor(point.toPoint());
    };
    EXPECT_EQ(colorAt(0.25), QColor(Qt::blue));
    EXPECT_EQ(colorAt(0.75), QColor(Qt::green));
    panel.slider().setValue(90);
    EXPECT_EQ(colorAt(0.75), QColor(Qt::blue));
    panel.setPictures({}, made);
    EXPECT_FALSE(panel.hasOriginal());
    EXPECT_FALSE(panel.view().isVisible());
}

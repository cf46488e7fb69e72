// The print dialog: paper, sheets, records, many labels, and what the printer gets.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/label/prompts.h"
#include "window/output/output_commands.h"
#include "window/output/page_preview.h"
#include "window/output/print_dialog.h"
#include "window/output/record_chooser.h"
#include "window/output/sheet_editor.h"
#include "workbench/rendering/page_painter.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

class PrintTest : public WindowFixture
{
protected:
    /// A server with two printers that keeps what it gets.
    PrintServer server()
    {
        return {[] {
                    return printing::Printers{{u"office"_s, u"zebra"_s}, u"zebra"_s, {}};
                },
                [this](const printing::PrintRequest& request) {
                    requests.append(request);
                    QFile file(request.file);
                    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
                    documents.append(file.readAll());
                    return printing::Submission{u"zebra-1"_s, refusal};
                }};
    }

    QString print(const DialogDriver::Answer& answer)
    {
        dialogs.expect(answer);
        return printLabel(label, 1, Prompts(&window), &window, server());
    }

    PrintDialog makeDialog() { return PrintDialog(label, 1, server().findPrinters(), nullptr); }

    /// A spin box by its accessible name.
    template <class Box>
    static Box& field(QWidget& dialog, const QString& name)
    {
        for (Box* box : dialog.findChildren<Box*>()) {
            if (box->accessibleName() == name) {
                return *box;
            }
        }
        throw std::runtime_error("no field " + name.toStdString());
    }

    static qsizetype pagesOf(const QByteArray& pdf) { return pdf.count("/Type /Page\n"); }

    OpenLabel label = makeLabel(); // 88.9 x 44.45 mm, five records
    QWidget window;
    DialogDriver dialogs;
    QList<printing::PrintRequest> requests;
    QList<QByteArray> documents;
    QString refusal;
};

} // namespace

TEST_F(PrintTest, EnterPrintsOnTheLabelsOwnPaperWhateverThePrintersPaper)
{
    const QString message =
        print([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_TRUE(message.startsWith(u"1 page"_s) && message.endsWith(u"printer zebra"_s));
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests.first().printer, u"zebra"_s);
    EXPECT_EQ(requests.first().media, u"Custom.88.9x44.45mm"_s);
    EXPECT_TRUE(documents.first().contains("/MediaBox [0 0 252.0")) << "the label's size";
    EXPECT_EQ(pagesOf(documents.first()), 1);
}

TEST_F(PrintTest, PrintsRecordsAndCopiesOnSheets)
{
    const QString message = print([](QDialog& dialog) {
        auto& printing = dynamic_cast<PrintDialog&>(dialog);
        printing.records().chooseRun(1, 5);
        printing.copies().setValue(3);
        printing.sheet().selectSheet(u"L7165"_s); // eight labels
        printing.sheet().setFirstPosition(4);
        EXPECT_EQ(printing.problem(), QString());
        keepPicture(printing, u"print_sheet"_s);
        printing.accept();
    });
    EXPECT_TRUE(message.startsWith(u"3 page"_s)); // 4 + 15 of 8
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests.first().media, u"A4"_s);
    EXPECT_EQ(pagesOf(documents.first()), 3);
}

TEST_F(PrintTest, RefusesSheetsForWhichTheLabelIsTooLarge)
{
    PrintDialog dialog = makeDialog();
    dialog.sheet().selectSheet(u"L7160"_s);
    EXPECT_TRUE(dialog.problem().contains(u"63.5 × 38.1 mm"_s)) << qPrintable(dialog.problem());
    EXPECT_EQ(dialog.batch(), nullptr);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    dialog.sheet().selectSheet(QString());
    EXPECT_EQ(dialog.problem(), QString());
}

TEST_F(PrintTest, KeepsASheetOfTheUsersOwn)
{
    {
        PrintDialog dialog = makeDialog();
        dialog.sheet().selectSheet(u"L7165"_s);
        field<QSpinBox>(dialog, u"Rows"_s).setValue(3);
        field<QDoubleSpinBox>(dialog, u"Gap between rows"_s).setValue(5.5);
        EXPECT_EQ(dialog.problem(), QString());
        dialog.accept();
    }
    PrintDialog dialog = makeDialog();
    EXPECT_EQ(dialog.batch()->sheetOf(0), nullptr) << "the label's own paper is proposed again";
    dialog.sheet().selectSheet(u"*"_s);
    ASSERT_NE(dialog.batch(), nullptr) << qPrintable(dialog.problem());
    const printing::Sheet* sheet = dialog.batch()->sheetOf(0);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->rows, 3);
    EXPECT_NEAR(sheet->pitch.height(), 67.7 + 5.5, 0.001);
    field<QSpinBox>(dialog, u"Rows"_s).setValue(30);
    EXPECT_TRUE(dialog.problem().contains(u"exceed the paper"_s));
}

TEST_F(PrintTest, PrintsManyLabelsInOneJob)
{
    saveMadeLabel(path(u"other.label"_s));
    saveMadeLabel(path(u"third.label"_s));
    print([this](QDialog& dialog) {
        auto& printing = dynamic_cast<PrintDialog&>(dialog);
        printing.addLabels({path(u"other.label"_s), path(u"third.label"_s)});
        EXPECT_EQ(printing.batch()->pages(), 3);
        printing.records().chooseRun(2, 5);
        EXPECT_EQ(printing.batch()->pages(), 12);
        printing.accept();
    });
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(pagesOf(documents.first()), 12);
}

TEST_F(PrintTest, ShowsWhichLabelsCannotBeAdded)
{
    PrintDialog dialog = makeDialog();
    dialogs.expectButton(QMessageBox::Ok);
    dialog.addLabels({path(u"missing.label"_s)});
    EXPECT_TRUE(dialogs.texts().constLast().startsWith(u"missing.label: "_s));
    EXPECT_EQ(dialog.batch()->pages(), 1);
}

TEST_F(PrintTest, PrintsToAPdfFile)
{
    const QString file = path(u"out.pdf"_s);
    const QString message = print([this, &file](QDialog& dialog) {
        auto& printing = dynamic_cast<PrintDialog&>(dialog);
        auto& printer = field<QComboBox>(printing, u"Printer"_s);
        printer.setCurrentIndex(printer.count() - 1);
        dialogs.expectFile(file);
        printing.accept();
    });
    EXPECT_EQ(message, u"Written: "_s + file);
    EXPECT_TRUE(requests.isEmpty());
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(pagesOf(written.readAll()), 1);
}

TEST_F(PrintTest, WithoutAPrinterProposesAPdfFile)
{
    PrintDialog dialog(label, 0, {{}, {}, u"no server"_s}, nullptr);
    EXPECT_EQ(dialog.printer(), QString());
}

TEST_F(PrintTest, ShowsWhyThePrinterRefuses)
{
    refusal = u"The printer is not accepting jobs."_s;
    const QString message = print([this](QDialog& dialog) {
        dialogs.expectButton(QMessageBox::Ok);
        dynamic_cast<PrintDialog&>(dialog).accept();
    });
    EXPECT_EQ(message, QString());
    EXPECT_TRUE(dialogs.texts().constLast().contains(refusal));
}

TEST_F(PrintTest, IsStoppedWithoutADocument)
{
    PrintDialog dialog = makeDialog();
    dialog.records().chooseRun(1, 5);
    QList<printing::PrintDocument> written;
    const OutputReport report = dialog.write(
        path(u"."_s), [](qint64 done) { return done < 3; }, written);
    EXPECT_TRUE(report.wasStopped);
    EXPECT_TRUE(written.isEmpty());
    EXPECT_FALSE(QFile::exists(path(u"1.pdf"_s)));
}

TEST_F(PrintTest, ProgressCountsEachCopy)
{
    for (const QString& paper : {QString(), u"L7165"_s}) {
        PrintDialog dialog = makeDialog();
        dialog.records().chooseRun(1, 5);
        dialog.copies().setValue(4);
        dialog.sheet().selectSheet(paper);
        ASSERT_EQ(dialog.batch()->labels(), 20);
        QList<qint64> done;
        QList<printing::PrintDocument> written;
        const auto count = [&done](qint64 labels) {
            done.append(labels);
            return true;
        };
        EXPECT_EQ(dialog.write(path(u"."_s), count, written).error, QString());
        EXPECT_EQ(done.size(), 20);
        EXPECT_EQ(done.constLast(), 19) << "the progress dialog closes at 20";
    }
}

TEST_F(PrintTest, AClickOnTheSheetSelectsTheFirstFreePosition)
{
    PrintDialog dialog = makeDialog();
    dialog.sheet().selectSheet(u"L7165"_s);
    dialogs.expect([](QDialog&) {});
    dialog.show();
    QCoreApplication::processEvents();
    auto* preview = dialog.findChild<PagePreview*>();
    ASSERT_NE(preview, nullptr);
    QTest::mouseClick(preview, Qt::LeftButton, {}, preview->rect().center() + QPoint(10, 10));
    EXPECT_EQ(dialog.sheet().firstPosition(), 5); // right column, third row
}

TEST_F(PrintTest, ThePreviewShowsRealRecordsAndLeavesTheLabelAlone)
{
    PrintDialog dialog = makeDialog();
    dialog.records().chooseRun(3, 4);
    dialogs.expect([](QDialog&) {});
    dialog.show();
    QCoreApplication::processEvents();
    const QImage before = dialog.findChild<PagePreview*>()->grab().toImage();
    dialog.records().chooseRun(4, 4);
    const QImage after = dialog.findChild<PagePreview*>()->grab().toImage();
    EXPECT_NE(before, after);
    keepPicture(dialog, u"print_own_paper"_s);
    const workbench::Canvas& canvas = *label.canvas;
    QImage shown(252, 126, QImage::Format_RGB32);
    QImage expected(252, 126, QImage::Format_RGB32);
    const auto paint = [&canvas](QImage& image) {
        image.fill(Qt::white);
        QPainter painter(&image);
        workbench::paintPage(painter, canvas);
    };
    paint(shown);
    showRecord(label, 1);
    paint(expected);
    EXPECT_EQ(shown, expected);
}

TEST_F(PrintTest, APreviewThatTakesTooLongShowsItsFirstLabels)
{
    PrintDialog dialog = makeDialog();
    dialog.sheet().selectSheet(u"L7165"_s);
    dialogs.expect([](QDialog&) {});
    dialog.show();
    QCoreApplication::processEvents();
    dialog.findChild<PagePreview*>()->grab();
    EXPECT_EQ(dialog.pageText(), u"Page 1 of 1"_s);
    dialog.setPreviewLimit(-1);
    dialog.copies().setValue(8);
    dialog.findChild<PagePreview*>()->grab();
    EXPECT_EQ(dialog.pageText(), u"Page 1 of 1 – the preview shows its first labels only"_s);
    QList<printing::PrintDocument> written;
    EXPECT_FALSE(dialog
                     .write(
                         path(u"."_s), [](qint64) { return true; }, written)
                     .wasStopped);
    EXPECT_EQ(written.size(), 1) << "printing has no such limit";
}

TEST_F(PrintTest, PrintingThatIsCanceledPrintsNothing)
{
    EXPECT_EQ(print([](QDialog& dialog) { dialog.reject(); }), QString());
    EXPECT_TRUE(requests.isEmpty());
}

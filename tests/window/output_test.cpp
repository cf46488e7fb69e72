// Export: files, series of records, dialogs.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/label/label_files.h"
#include "window/label/prompts.h"
#include "window/output/export_dialog.h"
#include "window/output/output_commands.h"
#include "window/output/output_job.h"
#include "window/output/record_chooser.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QComboBox>
#include <QImageReader>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QSvgRenderer>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

class OutputTest : public WindowFixture
{
protected:
    [[nodiscard]] OutputOrder orderOf(exporting::Target target, const QString& name,
                                      const RecordRange& records = {}) const
    {
        return {target, path(name), {{exporting::DpiOption, 150}}, records};
    }

    [[nodiscard]] QByteArray contentOf(const QString& name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    OpenLabel label = makeLabel();
    const Progress goOn = [](qint64) { return true; };
};

// The mean difference of two pictures of equal size, from 0 (equal) to 1 (black and white). Both
// are scaled down first, so that the exact pixel of an edge does not matter.
double differenceOf(const QImage& picture, const QImage& drawing)
{
    const auto small = [](const QImage& image) {
        return image.scaled(image.size() / 6, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage a = small(picture);
    const QImage b = small(drawing);
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
        }
    }
    return sum / 255.0 / a.width() / a.height();
}

qsizetype pagesOf(const QByteArray& pdf)
{
    static const QRegularExpression count(u"/Count (\\d+)"_s);
    return count.match(QString::fromLatin1(pdf)).captured(1).toLongLong();
}

} // namespace

TEST_F(OutputTest, APictureHasThePagesPixels)
{
    const OutputReport report =
        writeOutput(label, orderOf(exporting::Target::Png, u"a.png"_s), goOn);
    EXPECT_EQ(report.error, QString());
    EXPECT_EQ(report.files, 1);
    EXPECT_EQ(QImageReader(path(u"a.png"_s)).size(), QSize(525, 263));
}

TEST_F(OutputTest, ADrawingHasTheTrueSizeAndTextAsText)
{
    const OutputReport report =
        writeOutput(label, orderOf(exporting::Target::Svg, u"a.svg"_s), goOn);
    EXPECT_EQ(report.error, QString());
    const QByteArray svg = contentOf(u"a.svg"_s);
    EXPECT_TRUE(svg.contains("width=\"88.9mm\" height=\"44.45mm\"")) << svg.left(300).toStdString();
    EXPECT_TRUE(svg.contains("No. 1"));
    EXPECT_TRUE(QSvgRenderer(svg).isValid());
}

// Fonts with a size in points are wrong in a drawing of another resolution.
TEST_F(OutputTest, ADrawingShowsWhatThePictureShows)
{
    for (const char* name :
         {"orvanta/book_label.qmtx", "orvanta/shelf_label.qmtx", "opendocument/care_label.odt",
          "opendocument/address_label.odg", "tavrel/address_2000016.cnv"}) {
        SCOPED_TRACE(name);
        ReadLabel read = readLegacyLabel(sample(QString::fromLatin1(name)));
        ASSERT_TRUE(read.label.has_value()) << read.error.toStdString();
        const QImage picture = workbench::renderPage(*read.label->canvas, 96.0).image;
        ASSERT_EQ(workbench::writeSvg(*read.label->canvas, path(u"x.svg"_s), u"x"_s), QString());

        QImage drawing(picture.size(), QImage::Format_ARGB32_Premultiplied);
        drawing.fill(Qt::white);
        QPainter painter(&drawing);
        QSvgRenderer(path(u"x.svg"_s))
            .render(&painter, QRectF(QPointF(), read.label->canvas->page().size * (96.0 / 72.0)));
        painter.end();
        keepImage(picture, u"picture_"_s + QFileInfo(QString::fromLatin1(name)).baseName());
        keepImage(drawing, u"drawing_"_s + QFileInfo(QString::fromLatin1(name)).baseName());

        EXPECT_LT(differenceOf(picture, drawing), 0.012);
    }
}

TEST_F(OutputTest, ADocumentHasAPageForEachRecord)
{
    const OutputReport report =
        writeOutput(label, orderOf(exporting::Target::Pdf, u"a.pdf"_s, {1, 4}), goOn);
    EXPECT_EQ(report.error, QString());
    EXPECT_EQ(report.files, 1);
    const QByteArray pdf = contentOf(u"a.pdf"_s);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_EQ(pagesOf(pdf), 4);
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 252.0")) << "the page has the label's size";
    EXPECT_TRUE(pdf.contains("/Font")) << "text is text";
}

TEST_F(OutputTest, ASeriesOfPicturesIsNumberedByRecord)
{
    const OutputOrder order = orderOf(exporting::Target::Svg, u"a.svg"_s, {1, 3});
    const OutputReport report = writeOutput(label, order, goOn);
    EXPECT_EQ(report.files, 3);
    EXPECT_FALSE(QFile::exists(path(u"a.svg"_s)));
    EXPECT_TRUE(contentOf(u"a-002.svg"_s).contains("No. 2"));
    EXPECT_TRUE(contentOf(u"a-004.svg"_s).contains("No. 4"));
}

TEST_F(OutputTest, NamesInASeriesSortAsTheyCount)
{
    const OutputOrder order{exporting::Target::Png, u"/x/label.v2.png"_s, {}, {0, 10'000}};
    EXPECT_EQ(fileNameInSeries(order, 0), u"/x/label.v2-00001.png"_s);
    EXPECT_EQ(fileNameInSeries(order, 9'999), u"/x/label.v2-10000.png"_s);
}

TEST_F(OutputTest, WorkCanBeStopped)
{
    const Progress stopAtTwo = [](qint64 done) { return done < 2; };
    OutputReport report =
        writeOutput(label, orderOf(exporting::Target::Png, u"a.png"_s, {0, 5}), stopAtTwo);
    EXPECT_TRUE(report.wasStopped);
    EXPECT_EQ(report.files, 2);

    report = writeOutput(label, orderOf(exporting::Target::Pdf, u"a.pdf"_s, {0, 5}), stopAtTwo);
    EXPECT_TRUE(report.wasStopped);
    EXPECT_EQ(report.error, QString());
    EXPECT_FALSE(QFile::exists(path(u"a.pdf"_s))) << "half a document is none";
}

TEST_F(OutputTest, WriteErrorsAreReported)
{
    for (const exporting::Target target :
         {exporting::Target::Png, exporting::Target::Svg, exporting::Target::Pdf}) {
        const OutputReport report = writeOutput(label, orderOf(target, u"no folder/a.x"_s), goOn);
        EXPECT_TRUE(report.error.contains(u"no folder"_s)) << report.error.toStdString();
        EXPECT_EQ(report.files, 0);
    }
}

TEST_F(OutputTest, APageThatIsTooLargeIsReported)
{
    label.canvas->importCanvasParameters(20'000.0, 100.0, false, false);
    const OutputReport pdf = writeOutput(label, orderOf(exporting::Target::Pdf, u"a.pdf"_s), goOn);
    EXPECT_FALSE(pdf.error.isEmpty());
    OutputOrder order = orderOf(exporting::Target::Png, u"a.png"_s);
    order.options.insert(exporting::DpiOption, 2400);
    EXPECT_FALSE(writeOutput(label, order, goOn).error.isEmpty());
}

TEST_F(OutputTest, TheDialogsFileFollowsTheFormat)
{
    ExportDialog dialog(path(u"shelf"_s), 1, 0, nullptr);
    EXPECT_EQ(dialog.order().fileName, path(u"shelf.png"_s));
    dialog.setTarget(exporting::Target::Pdf);
    EXPECT_EQ(dialog.order().fileName, path(u"shelf.pdf"_s));
    EXPECT_EQ(dialog.order().target, exporting::Target::Pdf);
    dialog.setFileName(QString());
    dialog.setTarget(exporting::Target::Svg);
    EXPECT_EQ(dialog.order().fileName, QString());
}

// The dialog is built from the table of targets that the command line has, too.
TEST_F(OutputTest, TheDialogOffersEveryTargetWithItsOptions)
{
    ExportDialog dialog(path(u"shelf"_s), 1, 0, nullptr);
    dialog.show();
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        SCOPED_TRACE(entry.name);
        dialog.setTarget(entry.target);
        if (entry.target == exporting::Target::Label) {
            EXPECT_NE(dialog.order().target, entry.target) << "labels are saved, not exported";
            continue;
        }
        EXPECT_EQ(dialog.order().target, entry.target);
        EXPECT_EQ(dialog.order().options.size(), static_cast<qsizetype>(entry.options.size()));
        for (const exporting::TargetOption& option : entry.options) {
            const QLatin1String name(option.name);
            if (option.kind == exporting::OptionKind::Name) {
                EXPECT_EQ(dialog.order().options.value(name).toString(), QString());
                dialog.setOption(name, 1);
                EXPECT_EQ(dialog.order().options.value(name).toString(), option.names().first());
                continue;
            }
            const auto value = [&] {
                return exporting::valueOf(dialog.order().options, entry.target, name);
            };
            EXPECT_EQ(value(), option.initial) << option.name;
            const int other = option.kind == exporting::OptionKind::Number   ? option.minimum
                              : option.kind == exporting::OptionKind::Choice ? option.choices.back()
                                                                             : 1;
            dialog.setOption(name, other);
            EXPECT_EQ(value(), other) << option.name;
        }
    }
}

TEST_F(OutputTest, ALabelForGlabelsHasAllRecordsInATable)
{
    ExportDialog dialog(path(u"shelf"_s), 5, 0, nullptr);
    dialog.setTarget(exporting::Target::Glabels);
    EXPECT_FALSE(dialog.findChild<RecordChooser*>()->isEnabled());
    dialog.setTarget(exporting::Target::Pdf);
    EXPECT_TRUE(dialog.findChild<RecordChooser*>()->isEnabled());

    const OutputReport report =
        writeOutput(label, orderOf(exporting::Target::Glabels, u"a.glabels"_s), goOn);
    EXPECT_EQ(report.error, QString());
    EXPECT_EQ(report.files, 1);
    EXPECT_TRUE(contentOf(u"a.glabels"_s).contains("src=\"a.glabels.csv\""));
    EXPECT_GT(contentOf(u"a.glabels.csv"_s).count('\n'), 2);
}

TEST_F(OutputTest, TheDialogShowsOnlyTheOptionsOfItsTarget)
{
    ExportDialog dialog(path(u"shelf"_s), 1, 0, nullptr);
    dialog.show();
    const auto* dpi = dialog.findChild<QSpinBox*>(u"dpi"_s);
    ASSERT_NE(dpi, nullptr);
    EXPECT_TRUE(dpi->isVisible());
    dialog.setTarget(exporting::Target::Svg);
    EXPECT_FALSE(dpi->isVisible());
}

TEST_F(OutputTest, RecordsAreTheOneShownOrARun)
{
    RecordChooser chooser(50, 6);
    EXPECT_EQ(chooser.range().first, 6);
    EXPECT_EQ(chooser.range().count, 1);
    chooser.chooseRun(3, 10);
    EXPECT_EQ(chooser.range().first, 2);
    EXPECT_EQ(chooser.range().count, 8);
    chooser.chooseRun(20, 5); // the end is adjusted to the start
    EXPECT_EQ(chooser.range().first, 19);
    EXPECT_EQ(chooser.range().count, 1);
}

TEST_F(OutputTest, ARunIsBounded)
{
    RecordChooser chooser(4'000'000'000, 0);
    chooser.chooseRun(1'000'000, 2'000'000);
    EXPECT_EQ(chooser.range().first, 999'999);
    EXPECT_EQ(chooser.range().count, MaximumRecords);
}

TEST_F(OutputTest, ExportConfirmsReplacingAndReportsTheOutput)
{
    DialogDriver dialogs;
    QWidget window;
    const Prompts prompts(&window);
    const QString file = path(u"a.svg"_s);
    const auto fillIn = [&file](QDialog& dialog) {
        auto& exporting = dynamic_cast<ExportDialog&>(dialog);
        exporting.setTarget(exporting::Target::Svg);
        exporting.setFileName(file);
        exporting.accept();
    };
    dialogs.expect(fillIn);
    EXPECT_EQ(exportLabel(label, 2, prompts, &window), u"Written: "_s + file);
    EXPECT_TRUE(contentOf(u"a.svg"_s).contains("No. 3"));

    dialogs.expect([&](QDialog& dialog) {
        dialogs.expectButton(QMessageBox::No);
        fillIn(dialog);
        dialog.reject();
    });
    EXPECT_EQ(exportLabel(label, 0, prompts, &window), QString());
    EXPECT_TRUE(contentOf(u"a.svg"_s).contains("No. 3"));
}

// The label has a text and a barcode.
TEST_F(OutputTest, ExportToGlabelsShowsWhatBecameOfTheItems)
{
    DialogDriver dialogs;
    QWidget window;
    workbench::ItemValues dashed;
    dashed.type = KestTypes::Ellipse;
    dashed.box.size = {20, 20};
    dashed.pen = workbench::PenValues{Qt::black, 1.0, Qt::DashLine};
    label.canvas->addItem(dashed);
    dialogs.expect([this](QDialog& dialog) {
        auto& exporting = dynamic_cast<ExportDialog&>(dialog);
        exporting.setTarget(exporting::Target::Glabels);
        exporting.setFileName(path(u"a.glabels"_s));
        exporting.accept();
    });
    dialogs.expectButton(QMessageBox::Ok);
    EXPECT_EQ(exportLabel(label, 0, Prompts(&window), &window),
              u"Written: "_s + path(u"a.glabels"_s));
    ASSERT_TRUE(dialogs.isDone());
    const QString shown = dialogs.texts().join(QLatin1Char('\n'));
    EXPECT_TRUE(shown.contains(u"Ellipse: became a picture. gLabels has no dashed lines."_s))
        << shown.toStdString();
    EXPECT_TRUE(shown.contains(u": exact"_s)) << shown.toStdString();
}

TEST_F(OutputTest, AfterASeriesTheLabelShowsItsRecordAgain)
{
    DialogDriver dialogs;
    QWidget window;
    dialogs.expect([this](QDialog& dialog) {
        auto& exporting = dynamic_cast<ExportDialog&>(dialog);
        exporting.setTarget(exporting::Target::Pdf);
        exporting.setFileName(path(u"a.pdf"_s));
        exporting.records().chooseRun(1, 5);
        exporting.accept();
    });
    EXPECT_FALSE(exportLabel(label, 1, Prompts(&window), &window).isEmpty());
    ASSERT_EQ(writeOutput(label, orderOf(exporting::Target::Svg, u"x.svg"_s, {1, 1}), goOn).files,
              1);
    EXPECT_TRUE(contentOf(u"x.svg"_s).contains("No. 2"));
}

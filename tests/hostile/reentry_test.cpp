// What a host may do while an import runs: from the signals about message boxes everything,
// the importer's end included; a second import in the middle of one is refused.

#include "tests/hostile/complete_labels.h"
#include "tests/hostile/importing.h"
#include "tests/support/captured_log.h"
#include "tests/support/test_host/test_host.h"

#include "host/services/tal_message_box.h"
#include "tests/support/canvas_writer/canvas_writer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class Reentry : public testing::Test
{
protected:
    Reentry()
    {
        canvas::TextRecord text;
        text.header.width = u"2"_s; // stretched, which gives a note in a box
        text.content = u"Net weight"_s;
        QFile file(withBox);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(CanvasWriter(2000024).start().add(text).bytes());
    }
    ~Reentry() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    [[nodiscard]] int refusals() const
    {
        return int(log.messages().filter(u"while another one runs"_s).size());
    }

    QTemporaryDir folder;
    const QString withBox = folder.filePath(u"label.cnv"_s);
    CapturedLog log;
    TestHost host;
    std::unique_ptr<LegacyTemplateImporter> importer =
        std::make_unique<LegacyTemplateImporter>(host.canvas(), host.files(), host.datasources());
};

} // namespace

TEST_F(Reentry, AnImportFromThePopupIsRefused)
{
    bool nested = true;
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupShowSignal, importer.get(),
                     [&] { nested = importer->importLabelFromTavrelFile(withBox); });
    EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
    EXPECT_FALSE(nested);
    EXPECT_EQ(refusals(), 1);
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(host.count(u"completeCanvasLoading"_s), 1);
}

TEST_F(Reentry, AnImportFromAHostsOwnCallIsRefusedWhateverTheFormat)
{
    const CompleteLabels labels;
    for (const ReaderKind outer :
         {ReaderKind::Tavrel, ReaderKind::Orvanta, ReaderKind::OpenDocument}) {
        for (const ReaderKind inner :
             {ReaderKind::Tavrel, ReaderKind::Orvanta, ReaderKind::OpenDocument}) {
            const int before = host.itemCount();
            const int refused = refusals();
            host.behavior().onImportItem = [&] {
                EXPECT_FALSE(importBy(*importer, inner, labels.path(inner)));
            };
            EXPECT_TRUE(importBy(*importer, outer, labels.path(outer)));
            const int added = host.itemCount() - before;
            int expected = 0;
            for (const auto& [type, count] : CompleteLabels::items(outer)) {
                expected += count;
            }
            EXPECT_EQ(added, expected);
            EXPECT_EQ(refusals() - refused, added);
        }
    }
}

TEST_F(Reentry, TheCommandIsRefusedToo)
{
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupShowSignal, importer.get(),
                     [&] { importer->importLegacyLabel(QString()); });
    EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
    EXPECT_EQ(refusals(), 1);
}

TEST_F(Reentry, AfterAnImportTheNextOneMayRunEvenFromTheBoxThatGoes)
{
    QPointer<QWidget> box;
    int runs = 0;
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupShowSignal, importer.get(),
                     [&](QWidget* shown) { box = shown; });
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupHideSignal, importer.get(), [&] {
        if (++runs == 1) {
            EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
        }
    });
    EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
    const QPointer<QWidget> first = box;
    Q_EMIT qobject_cast<TalMessageBox*>(first.data())->popupHideSignal();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(host.itemCount(), 2);
    EXPECT_NE(box, first);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    EXPECT_FALSE(box.isNull()) << "the second import's box is still there";
}

TEST_F(Reentry, TheImporterMayGoWhenTheBoxIsShown)
{
    QPointer<QWidget> box;
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupShowSignal,
                     QCoreApplication::instance(), [&](QWidget* shown) {
                         box = shown;
                         importer.reset();
                     });
    EXPECT_FALSE(importer->importLabelFromTavrelFile(withBox));
    EXPECT_TRUE(box.isNull()) << "the box was the importer's";
    EXPECT_EQ(host.count(u"completeCanvasLoading"_s), 0) << "the canvas may be gone, too";
}

TEST_F(Reentry, TheImporterMayGoWhenAnEarlierBoxIsWithdrawn)
{
    EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupHideSignal,
                     QCoreApplication::instance(), [&] { importer.reset(); });
    EXPECT_FALSE(importer->importLabelFromTavrelFile(withBox));
    EXPECT_EQ(importer, nullptr);
}

TEST_F(Reentry, TheImporterMayGoWhenTheUserClosesTheBox)
{
    QPointer<QWidget> box;
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupShowSignal, importer.get(),
                     [&](QWidget* shown) { box = shown; });
    QObject::connect(importer.get(), &LegacyTemplateImporter::popupHideSignal,
                     QCoreApplication::instance(), [&] { importer.reset(); });
    EXPECT_TRUE(importer->importLabelFromTavrelFile(withBox));
    Q_EMIT qobject_cast<TalMessageBox*>(box.data())->popupHideSignal();
    EXPECT_EQ(importer, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(box.isNull());
}

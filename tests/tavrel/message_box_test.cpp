// The lifetime of an import's only message box.

#include "tests/tavrel/reader_fixture.h"

#include <QCoreApplication>
#include <QEvent>

using namespace tavrel_test;

namespace {

class MessageBox : public ReaderTest
{
protected:
    bool importWithIssue() { return import(LabelFile().shape({}).barcode(true, 1)); }
    [[nodiscard]] TalMessageBox* lastBox() const { return services.boxes.last().box; }
    static void runEventLoopOnce()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QSignalSpy shown{&reader, SIGNAL(popupShowSignal(QWidget*))};
    QSignalSpy hidden{&reader, SIGNAL(popupHideSignal())};
};

TEST_F(MessageBox, IsNotMadeWhenAllWentWell)
{
    EXPECT_TRUE(import(LabelFile().shape({})));
    EXPECT_TRUE(services.boxes.isEmpty());
    EXPECT_EQ(shown.count(), 0);
}

TEST_F(MessageBox, IsAnnouncedOnceAndKept)
{
    EXPECT_TRUE(importWithIssue());
    ASSERT_EQ(services.boxes.size(), 1);
    const FakeServices::Box& box = services.boxes.first();
    EXPECT_EQ(box.title, QStringLiteral("Warning: Import issues."));
    EXPECT_EQ(box.text, QStringLiteral("Unsupported barcode symbols."));
    EXPECT_EQ(box.buttons, int(QMessageBox::Ok));
    EXPECT_EQ(box.defaultButton, int(QMessageBox::Ok));
    EXPECT_EQ(box.detail, QString());
    EXPECT_EQ(box.captionCount, 0);
    ASSERT_EQ(shown.count(), 1);
    EXPECT_EQ(shown.first().first().value<QWidget*>(), box.box);
    EXPECT_EQ(hidden.count(), 0);
    runEventLoopOnce();
    EXPECT_FALSE(box.box.isNull());
}

TEST_F(MessageBox, IsWithdrawnAndDeletedWhenTheUserClosesIt)
{
    EXPECT_TRUE(importWithIssue());
    Q_EMIT lastBox()->popupHideSignal();
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_FALSE(services.boxes.first().box.isNull()) << "not in its own signal";
    runEventLoopOnce();
    EXPECT_TRUE(services.boxes.first().box.isNull());
    EXPECT_EQ(hidden.count(), 1);
}

TEST_F(MessageBox, MayBeClosedWhileItIsAnnounced)
{
    QObject::connect(&reader, &LegacyTavrel::popupShowSignal, &reader, [](QWidget* popup) {
        Q_EMIT qobject_cast<TalMessageBox*>(popup)->popupHideSignal();
    });
    EXPECT_TRUE(importWithIssue());
    EXPECT_EQ(hidden.count(), 1);
    runEventLoopOnce();
    EXPECT_TRUE(services.boxes.first().box.isNull());
}

TEST_F(MessageBox, OfALaterImportTakesThePlaceOfOneThatIsStillThere)
{
    EXPECT_TRUE(importWithIssue());
    EXPECT_TRUE(importWithIssue());
    EXPECT_EQ(shown.count(), 2);
    EXPECT_EQ(hidden.count(), 1);
    runEventLoopOnce();
    EXPECT_TRUE(services.boxes.first().box.isNull());
    EXPECT_FALSE(services.boxes.last().box.isNull());
    Q_EMIT lastBox()->popupHideSignal();
    EXPECT_EQ(hidden.count(), 2);
}

TEST_F(MessageBox, StaysWhenALaterImportHasNothingToReport)
{
    EXPECT_TRUE(importWithIssue());
    EXPECT_TRUE(import(LabelFile().shape({})));
    EXPECT_EQ(hidden.count(), 0);
    EXPECT_FALSE(services.boxes.first().box.isNull());
}

TEST_F(MessageBox, ImportFromTheHidingSignalKeepsItsOwnBox)
{
    bool again = true;
    QObject::connect(&reader, &LegacyTavrel::popupHideSignal, &reader, [&] {
        if (std::exchange(again, false)) {
            EXPECT_TRUE(importWithIssue());
        }
    });
    EXPECT_TRUE(importWithIssue());
    Q_EMIT lastBox()->popupHideSignal();
    runEventLoopOnce();
    EXPECT_TRUE(services.boxes.first().box.isNull());
    EXPECT_FALSE(services.boxes.last().box.isNull());
}

TEST_F(MessageBox, DeletedByItsHostLeavesNothingBehind)
{
    EXPECT_TRUE(importWithIssue());
    delete lastBox();
    EXPECT_TRUE(importWithIssue());
    EXPECT_EQ(hidden.count(), 0);
    reader.messageBoxHidingSlot();
    EXPECT_EQ(hidden.count(), 1);
    reader.messageBoxHidingSlot();
    EXPECT_EQ(hidden.count(), 2) << "the signal is all that there is without a box";
}

TEST_F(MessageBox, GoesWithTheReader)
{
    {
        LegacyTavrel other(&fake.canvas, &fake.datasources);
        const QString label = written(LabelFile().shape({}).barcode(true, 1).bytes());
        EXPECT_TRUE(other.importLabelFromFile(label));
        Q_EMIT lastBox()->popupHideSignal(); // withdrawn, and no event loop runs
        EXPECT_TRUE(other.importLabelFromFile(label));
    }
    ASSERT_EQ(services.boxes.size(), 2);
    EXPECT_TRUE(services.boxes.first().box.isNull());
    EXPECT_TRUE(services.boxes.last().box.isNull());
}

} // namespace

// The lifetime of an import's only message box.

#include "tests/tavrel/reader_fixture.h"

#include <QCoreApplication>
#include <QEvent>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel_test;

namespace {

class MessageBox : public ReaderTest
{
protected:
    bool importWithIssue() { return import(LabelFile().shape({}).barcode(true, 5)); }
    [[nodiscard]] TalMessageBox* lastBox() const { return boxes.last(); }
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
    EXPECT_TRUE(host.callsOn(u"messagebox"_s).isEmpty());
    EXPECT_EQ(shown.count(), 0);
}

TEST_F(MessageBox, IsAnnouncedOnceAndKept)
{
    EXPECT_TRUE(importWithIssue());
    ASSERT_EQ(boxes.size(), 1);
    const QPointer<TalMessageBox> box = boxes.first();
    EXPECT_EQ(box->windowTitle(), u"Warning: Import issues."_s);
    EXPECT_EQ(textOf(box), u"Unsupported barcode symbols."_s);
    EXPECT_EQ(box->property("buttons"), int(QMessageBox::Ok));
    EXPECT_EQ(box->property("defaultButton"), int(QMessageBox::Ok));
    EXPECT_EQ(box->property("detail"), QString());
    EXPECT_EQ(box->property("captions"), 0);
    ASSERT_EQ(shown.count(), 1);
    EXPECT_EQ(shown.first().first().value<QWidget*>(), box);
    EXPECT_EQ(hidden.count(), 0);
    runEventLoopOnce();
    EXPECT_FALSE(box.isNull());
}

TEST_F(MessageBox, IsWithdrawnAndDeletedWhenTheUserClosesIt)
{
    EXPECT_TRUE(importWithIssue());
    Q_EMIT lastBox()->popupHideSignal();
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_FALSE(boxes.first().isNull()) << "not in its own signal";
    runEventLoopOnce();
    EXPECT_TRUE(boxes.first().isNull());
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
    EXPECT_TRUE(boxes.first().isNull());
}

TEST_F(MessageBox, OfALaterImportTakesThePlaceOfOneThatIsStillThere)
{
    EXPECT_TRUE(importWithIssue());
    EXPECT_TRUE(importWithIssue());
    EXPECT_EQ(shown.count(), 2);
    EXPECT_EQ(hidden.count(), 1);
    runEventLoopOnce();
    EXPECT_TRUE(boxes.first().isNull());
    EXPECT_FALSE(boxes.last().isNull());
    Q_EMIT lastBox()->popupHideSignal();
    EXPECT_EQ(hidden.count(), 2);
}

TEST_F(MessageBox, StaysWhenALaterImportHasNothingToReport)
{
    EXPECT_TRUE(importWithIssue());
    EXPECT_TRUE(import(LabelFile().shape({})));
    EXPECT_EQ(hidden.count(), 0);
    EXPECT_FALSE(boxes.first().isNull());
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
    EXPECT_TRUE(boxes.first().isNull());
    EXPECT_FALSE(boxes.last().isNull());
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
        LegacyTavrel other(host.canvas(), host.datasources());
        collectBoxes(other);
        const QString label = written(LabelFile().shape({}).barcode(true, 5).bytes());
        EXPECT_TRUE(other.importLabelFromFile(label));
        Q_EMIT lastBox()->popupHideSignal(); // withdrawn, and no event loop runs
        EXPECT_TRUE(other.importLabelFromFile(label));
    }
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_TRUE(boxes.first().isNull());
    EXPECT_TRUE(boxes.last().isNull());
}

} // namespace

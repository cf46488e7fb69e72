// A thousand files, good and bad, through one importer on one canvas: it takes no memory for
// what it has read, and every file gives what it gives to an importer that is new, but for
// what a reader has to keep: symbol databases that are open, and of OpenDocument files the
// page, its unit and the styles.

#include "tests/hostile/importing.h"
#include "tests/hostile/many_labels.h"
#include "tests/support/test_host/test_host.h"

#include "importer/reader_choice.h"
#include "tavrel/item_header.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// The memory held by a sanitizer's allocator says nothing about ours.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool MemoryIsMeasured = false;
#else
constexpr bool MemoryIsMeasured = true;
#endif

qint64 bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

void runEventLoopOnce()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A trace without what may differ: the number that a symbol database happens to have, when it
/// was opened, and how far the process-wide number of items had come.
QByteArray comparable(const QByteArray& trace, qint64 firstItemNumber)
{
    static const QRegularExpression database(u"symboldb:\\d+"_s);
    static const QRegularExpression zValue(u"\"z\":([-+.e0-9]+)"_s);
    QByteArrayList lines;
    for (const QByteArray& line : trace.split('\n')) {
        if (line.contains("\"setDatabasePath\"")) {
            continue;
        }
        QString text = QString::fromUtf8(line);
        text.replace(database, u"symboldb"_s);
        const QRegularExpressionMatch match = zValue.match(text);
        if (match.hasMatch()) {
            const double z = match.captured(1).toDouble() - double(firstItemNumber);
            text.replace(zValue, u"\"z\":%1"_s.arg(z, 0, 'g', 9));
        }
        lines.append(text.toUtf8());
    }
    return lines.join('\n');
}

/// An importer with the host that it has for life.
struct LivingImporter
{
    TestHost host;
    LegacyTemplateImporter importer{host.canvas(), host.files(), host.datasources()};

    QByteArray trace(const Label& label)
    {
        // Only the binary reader counts items.
        const bool isNumbered = label.reader == ReaderKind::Tavrel;
        const qint64 first = isNumbered ? tavrel::takeItemNumber() + 1 : 0;
        recorder::RecordingHost& recorder = host.recorder();
        recorder.reset();
        const bool isImported = importBy(importer, label.reader, label.path);
        recorder.hideMessageBoxes();
        recorder.writeItemStates();
        recorder.trace().end(isImported);
        recorder.reset();
        const QByteArray trace = comparable(host.takeTrace(), first);
        runEventLoopOnce();
        return trace;
    }
};

/// What each label gives to an importer that has read no other, or, for OpenDocument, the good
/// ones of that format in turn, once.
QHash<QString, QByteArray> expectedTraces(const QList<Label>& labels)
{
    QHash<QString, QByteArray> traces;
    LivingImporter openDocument;
    for (const Label& label : labels) {
        if (label.reader == ReaderKind::OpenDocument) {
            (void)openDocument.trace(label);
        }
    }
    for (const Label& label : labels) {
        const bool carriesOver = label.reader == ReaderKind::OpenDocument;
        traces.insert(label.path,
                      carriesOver ? openDocument.trace(label) : LivingImporter().trace(label));
    }
    return traces;
}

TEST(LongLife, OfAThousandImportsLeavesNothingBehind)
{
    constexpr int imports = 1000;
    const ManyLabels files(QStringLiteral(LABELPORT_SAMPLES));
    const QList<Label>& labels = files.labels();
    ASSERT_GT(labels.size(), 60);
    const auto expected = expectedTraces(labels);

    LivingImporter living;
    for (const Label& label : labels) {
        (void)living.trace(label); // once around, until all that is kept is there
    }
    int good = 0;
    int bad = 0;
    const qint64 before = bytesInUse();
    for (int i = 0; i < imports; ++i) {
        const Label& label = labels.at(i % labels.size());
        const QByteArray trace = living.trace(label);
        (trace.endsWith("{\"result\":true}\n") ? good : bad) += 1;
        ASSERT_EQ(trace, expected.value(label.path)) << qPrintable(label.path) << ", import " << i;
    }
    EXPECT_GT(good, imports / 3);
    EXPECT_GT(bad, imports / 6);
    const qint64 growth = bytesInUse() - before;
    RecordProperty("growth_bytes", int(growth));
    if (MemoryIsMeasured) {
        // A kept item, box or document of every import would be far more.
        EXPECT_LT(growth, 256 * 1024) << "bytes after " << imports << " imports";
    }
    std::printf("%d imports: %d good, %d bad; %lld bytes more in use\n", imports, good, bad,
                static_cast<long long>(growth));
}

} // namespace

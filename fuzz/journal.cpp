// A damaged journal, as after a power failure: its complete records are known, and stay known
// after records are added and replaced ones removed.

#include "archive/journal.h"
#include "fuzz/harness.h"
#include "fuzz/scratch_folder.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

using Records = QList<std::optional<archive::JournalRecord>>;

constexpr char FileName[] = ".labelport-journal.jsonl";

archive::Inputs inputs()
{
    archive::Inputs list;
    for (const char* name : {"/in/a.cnv", "/in/b.odt", "/in/intact.qmtx"}) {
        list.append({QString::fromLatin1(name), QString::fromLatin1(name), {}});
    }
    return list;
}

archive::JournalRecord intactRecord()
{
    return {{u"/in/intact.qmtx"_s, 12, 34},
            u"options"_s,
            u"1.0"_s,
            archive::FileOutcome::Done,
            {},
            {{u"intact.png"_s, 56, 78}},
            {}};
}

// The journal's records of all inputs, after adding a record if one is given.
Records recordsOf(const archive::JournalRecord* added = nullptr, bool isRewriting = false)
{
    archive::Journal journal;
    const QString folder = QFileInfo(scratchPath(FileName)).path();
    if (!journal.open(folder, {}, inputs(), isRewriting).isEmpty()) {
        qFatal("a damaged journal cannot be opened");
    }
    if (added != nullptr && !journal.append(*added)) {
        qFatal("nothing can be added to a damaged journal");
    }
    Records records;
    for (qsizetype index = 0; index < inputs().size(); ++index) {
        records.append(journal.find(index, u"options"_s));
    }
    return records;
}

void checkWriting(const archive::JournalRecord& record)
{
    const QByteArray line = archive::lineOf(record);
    const auto again = archive::recordFromLine(line);
    if (line.count('\n') != 1 || !again || archive::lineOf(*again) != line) {
        qFatal("a record that was written is read as another");
    }
    // Must only read, for all paths.
    (void)archive::untouchedOutputs(record.outputs, u"/nowhere"_s);
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    if (input.contains("intact")) {
        return; // A later record of this file would replace the first.
    }
    const archive::JournalRecord intact = intactRecord();
    writeScratch(FileName, archive::lineOf(intact) + input);
    const Records first = recordsOf(&intact);
    if (first.last() != intact) {
        qFatal("damage behind a record has hidden it");
    }
    for (const auto& record : first) {
        if (record) {
            checkWriting(*record);
        }
    }
    if (recordsOf() != first) {
        qFatal("a record that was added is lost, or another one with it");
    }
    if (recordsOf(nullptr, true) != first || recordsOf() != first) {
        qFatal("a rewritten journal differs");
    }
}

#include "importer/reader_choice.h"

#include <gtest/gtest.h>

namespace {

struct ChoiceRow
{
    const char* fileName;
    ReaderKind reader;
};

const ChoiceRow Rows[] = {
    {"label.cnv", ReaderKind::Tavrel},
    {"label.roc", ReaderKind::Tavrel},
    {"label.qmtx", ReaderKind::Orvanta},
    {"label.odt", ReaderKind::OpenDocument},
    {"label.odg", ReaderKind::OpenDocument},
    // Letters of either case.
    {"LABEL.CNV", ReaderKind::Tavrel},
    {"label.Roc", ReaderKind::Tavrel},
    {"LABEL.QMTX", ReaderKind::Orvanta},
    {"label.ODG", ReaderKind::OpenDocument},
    {"label.OdT", ReaderKind::OpenDocument},
    // All that stands behind the first dot is the suffix.
    {"a.b.qmtx", ReaderKind::Tavrel},
    {"a.tar.odt", ReaderKind::Tavrel},
    {"shelf.old.odt", ReaderKind::Tavrel},
    {"label..odg", ReaderKind::Tavrel},
    // Nothing that is known.
    {"label", ReaderKind::Tavrel},
    {"label.", ReaderKind::Tavrel},
    {"label.txt", ReaderKind::Tavrel},
    {"label.odp", ReaderKind::Tavrel},
    {"label.qmtxx", ReaderKind::Tavrel},
    {"qmtx", ReaderKind::Tavrel},
    {"", ReaderKind::Tavrel},
    // Dots of the folder do not count.
    {"/labels.2003/old.d/label.odt", ReaderKind::OpenDocument},
    {"/labels.odt/label.cnv", ReaderKind::Tavrel},
    {".qmtx", ReaderKind::Orvanta},
};

TEST(ReaderChoice, GoesByAllSuffixesTogether)
{
    for (const ChoiceRow& row : Rows) {
        EXPECT_EQ(readerForFile(QLatin1String(row.fileName)), row.reader) << row.fileName;
    }
}

} // namespace

#include "importer/reader_choice.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

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
    // Everything after the first dot is the suffix.
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

TEST(ReaderChoice, ofToolsGoesByTheLastSuffix)
{
    const ChoiceRow rows[] = {{"Label 3.5 inch.odg", ReaderKind::OpenDocument},
                              {"shelf.old.QMTX", ReaderKind::Orvanta},
                              {"template.ott", ReaderKind::OpenDocument},
                              {"template.v2.OTG", ReaderKind::OpenDocument},
                              {"old.odt.cnv", ReaderKind::Tavrel},
                              {"no such file.xyz", ReaderKind::Tavrel}};
    for (const ChoiceRow& row : rows) {
        EXPECT_EQ(readerByNameOrContent(QLatin1String(row.fileName)), row.reader) << row.fileName;
    }
    EXPECT_EQ(readerForFile(u"template.ott"_s), ReaderKind::Tavrel)
        << "the import command does not know templates";
}

TEST(ReaderChoice, ofToolsGoesByTheContentIfTheSuffixIsUnknown)
{
    const QTemporaryDir folder;
    const std::pair<QByteArray, ReaderKind> contents[] = {
        {"PK\x03\x04", ReaderKind::OpenDocument},
        {"<?xml version=\"1.0\"?>", ReaderKind::Orvanta},
        {"\xEF\xBB\xBF \n<label/>", ReaderKind::Orvanta},
        {QByteArray("\xFF\xFE<\0?\0", 6), ReaderKind::Orvanta},
        {QByteArray("\0\0\0\1", 4), ReaderKind::Tavrel},
        {"", ReaderKind::Tavrel}};
    for (const auto& [bytes, reader] : contents) {
        QFile file(folder.filePath(u"label.v2"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_EQ(readerByNameOrContent(file.fileName()), reader) << bytes.toHex().constData();
    }
}

TEST(ReaderChoice, knowsReadersByTheirNames)
{
    for (const Reader& reader : Readers) {
        EXPECT_EQ(readerOfName(reader.name), reader.kind);
        EXPECT_EQ(readerOf(reader.kind).name, reader.name);
    }
    EXPECT_FALSE(readerOfName(u"qmtx"_s));
}

} // namespace

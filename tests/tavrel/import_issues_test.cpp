#include "tavrel/import_issues.h"

#include <gtest/gtest.h>

using tavrel::ImportIssues;

namespace {

const QString SymbolIssue =
    QStringLiteral("Errors reading symbol items.\nPlease update legacy Tavrel "
                   "to its latest version and re-save file.");
const QString Barcodes = QStringLiteral("Unsupported barcode symbols.");
const QString Datasource = QStringLiteral("Datasource not connected.");

TEST(ImportIssues, NothingToReportIsAnEmptyText)
{
    ImportIssues issues;
    EXPECT_EQ(issues.text(), QString());
    issues.addNote(QString());
    EXPECT_EQ(issues.text(), QString());
}

TEST(ImportIssues, EachIssueIsReportedAlone)
{
    ImportIssues symbols;
    symbols.symbolErrors = true;
    EXPECT_EQ(symbols.text(), SymbolIssue);
    ImportIssues barcodes;
    barcodes.barcodeErrors = true;
    EXPECT_EQ(barcodes.text(), Barcodes);
    ImportIssues database;
    database.databaseLinked = true;
    EXPECT_EQ(database.text(), Datasource);
    ImportIssues note;
    note.addNote(QStringLiteral("a note"));
    EXPECT_EQ(note.text(), QStringLiteral("a note"));
}

TEST(ImportIssues, SymbolsAndBarcodesAreListedOnePerLine)
{
    ImportIssues issues;
    issues.barcodeErrors = true;
    issues.symbolErrors = true;
    EXPECT_EQ(issues.text(), SymbolIssue + QLatin1Char('\n') + Barcodes);
}

TEST(ImportIssues, AllTogetherKeepTheirOrder)
{
    ImportIssues issues;
    issues.databaseLinked = true;
    issues.addNote(QStringLiteral("one"));
    issues.addNote(QString());
    issues.addNote(QStringLiteral("two"));
    issues.barcodeErrors = true;
    issues.symbolErrors = true;
    EXPECT_EQ(issues.text(), SymbolIssue + QLatin1Char('\n') + Barcodes +
                                 QStringLiteral("\none\ntwo\n") + Datasource);
}

} // namespace

#include "tavrel/import_issues.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using tavrel::ImportIssues;

namespace {

const QString SymbolIssue = u"Errors reading symbol items.\nPlease update legacy Tavrel "
                            "to its latest version and re-save file."_s;
const QString Barcodes = u"Unsupported barcode symbols."_s;
const QString Datasource = u"Datasource not connected."_s;

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
    note.addNote(u"a note"_s);
    EXPECT_EQ(note.text(), u"a note"_s);
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
    issues.addNote(u"one"_s);
    issues.addNote(QString());
    issues.addNote(u"two"_s);
    issues.barcodeErrors = true;
    issues.symbolErrors = true;
    EXPECT_EQ(issues.text(),
              SymbolIssue + QLatin1Char('\n') + Barcodes + u"\none\ntwo\n"_s + Datasource);
}

} // namespace

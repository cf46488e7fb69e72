#include "tavrel/bounds.h"
#include "tavrel/import_issues.h"

#include <gtest/gtest.h>

using tavrel::ImportIssues;

namespace {

const QString Symbols = QStringLiteral("Errors reading symbol items.\nPlease update legacy Tavrel "
                                       "to its latest version and re-save file.");
const QString Barcodes = QStringLiteral("Unsupported barcode symbols.");
const QString Datasource = QStringLiteral("Datasource not connected.");

TEST(ImportIssues, NothingToTellIsAnEmptyText)
{
    ImportIssues issues;
    EXPECT_EQ(issues.text(), QString());
    EXPECT_TRUE(issues.addNote(QString()));
    EXPECT_EQ(issues.text(), QString());
}

TEST(ImportIssues, EachIssueStandsAlone)
{
    ImportIssues symbols;
    symbols.symbolErrors = true;
    EXPECT_EQ(symbols.text(), Symbols);
    ImportIssues barcodes;
    barcodes.barcodeErrors = true;
    EXPECT_EQ(barcodes.text(), Barcodes);
    ImportIssues database;
    database.databaseLinked = true;
    EXPECT_EQ(database.text(), Datasource);
    ImportIssues note;
    EXPECT_TRUE(note.addNote(QStringLiteral("a note")));
    EXPECT_EQ(note.text(), QStringLiteral("a note"));
}

TEST(ImportIssues, SymbolsAndBarcodesStandOneBelowTheOther)
{
    ImportIssues issues;
    issues.barcodeErrors = true;
    issues.symbolErrors = true;
    EXPECT_EQ(issues.text(), Symbols + QLatin1Char('\n') + Barcodes);
}

TEST(ImportIssues, AllTogetherKeepTheirOrder)
{
    ImportIssues issues;
    issues.databaseLinked = true;
    EXPECT_TRUE(issues.addNote(QStringLiteral("one")));
    EXPECT_TRUE(issues.addNote(QString()));
    EXPECT_TRUE(issues.addNote(QStringLiteral("two")));
    issues.barcodeErrors = true;
    issues.symbolErrors = true;
    EXPECT_EQ(issues.text(),
              Symbols + QLatin1Char('\n') + Barcodes + QStringLiteral("\none\ntwo\n") + Datasource);
}

TEST(ImportIssues, NotesAreBounded)
{
    ImportIssues issues;
    EXPECT_TRUE(issues.addNote(QString(tavrel::MaximumNoteCharacters - 10, QLatin1Char('x'))));
    EXPECT_FALSE(issues.addNote(QString(11, QLatin1Char('y'))));
    EXPECT_FALSE(issues.text().contains(QLatin1Char('y')));
    EXPECT_TRUE(issues.addNote(QStringLiteral("short")));
}

} // namespace

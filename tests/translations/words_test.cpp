// Translated texts that must have a certain content.

#include "translations/program_language.h"
#include "window/actions/actions.h"
#include "window/review/issues.h"
#include "workbench/barcodes/barcode_encoder.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/document/label_file.h"
#include "workbench/import/label_import.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using translations::ProgramLanguage;
using window::MenuId;

namespace {

const QStringList EnglishLocale{u"en"_s};
const QStringList GermanLocale{u"de"_s};
const QStringList FrenchLocale{u"fr"_s};

constexpr MenuId Menus[] = {MenuId::File,   MenuId::Edit,   MenuId::View, MenuId::Colors,
                            MenuId::Panels, MenuId::Record, MenuId::Help};

class Words : public ::testing::Test
{
protected:
    QString write(const char* name, const QByteArray& bytes)
    {
        const QString path = m_folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

private:
    QTemporaryDir m_folder;
};

QString mnemonic(const QString& text)
{
    const qsizetype at = text.indexOf(u'&');
    return at < 0 ? QString() : text.mid(at + 1, 1).toUpper();
}

/// Each text must have a mnemonic, and each letter must be unique.
void expectDifferentMnemonics(const QStringList& texts)
{
    QSet<QString> seen;
    for (const QString& text : texts) {
        const QString letter = mnemonic(text);
        EXPECT_FALSE(letter.isEmpty()) << qPrintable(text);
        EXPECT_FALSE(seen.contains(letter)) << qPrintable(text);
        seen.insert(letter);
    }
}

TEST_F(Words, MnemonicsWithinAMenuAreDifferent)
{
    for (const QStringList& languages : {GermanLocale, FrenchLocale}) {
        const ProgramLanguage language(languages);
        const window::Actions actions;
        QMap<MenuId, QStringList> texts;
        for (const MenuId menu : Menus) {
            for (const QAction* action : actions.ofMenu(menu)) {
                texts[menu].append(action->text());
            }
        }
        // Added by the window.
        texts[MenuId::File].append(
            QCoreApplication::translate("window::MainWindow", "Open &Recent"));
        texts[MenuId::View].append(window::menuTitle(MenuId::Colors));
        QStringList titles;
        for (const MenuId menu : Menus) {
            expectDifferentMnemonics(texts.value(menu));
            if (menu != MenuId::Colors) {
                titles.append(window::menuTitle(menu));
            }
        }
        expectDifferentMnemonics(titles);
    }
}

// The reader translates this message, and it is recognized in every language.
TEST_F(Words, WhyAFileIsRefused)
{
    const QString file = write("old.cnv", QByteArray("\0\0\0\0\0\x1e\x84\x8f", 8));
    for (const auto& language : {EnglishLocale, GermanLocale, FrenchLocale}) {
        const ProgramLanguage program(language);
        const QString error = workbench::importLabel(file).error;
        EXPECT_TRUE(error.contains(u"2000015"_s)) << qPrintable(error);
        EXPECT_FALSE(error.contains(u"2000024"_s)) << qPrintable(error);
    }
}

TEST_F(Words, WhyABarcodeIsNotDrawn)
{
    const ProgramLanguage language(GermanLocale);
    workbench::barcodes::BarcodeRequest request;
    request.symbology = 14;
    request.content = u"x"_s;
    const QString error = workbench::barcodes::encode(request).error;
    EXPECT_TRUE(
        error.startsWith(u"EAN mit Prüfziffer: Der Inhalt passt nicht zu dieser Barcodeart ("_s))
        << qPrintable(error);
}

TEST_F(Words, WhichFieldOfASavedLabelIsWrong)
{
    const QString file = write("a.label", R"({"format": "labelport-label", "version": 1,
        "label": {"page": {"size": "wide"}, "datasources": [], "items": []}})");
    const ProgramLanguage language(FrenchLocale);
    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
    EXPECT_EQ(workbench::document::openLabel(file, canvas, sources),
              QString::fromUtf8("Le fichier d’étiquette est endommagé\u00a0: page.size doit être "
                                "une largeur et une hauteur."));
}

// The report of an import is English.
TEST_F(Words, IssuesOfALabelInTheWindow)
{
    window::OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    migration::Finding finding;
    finding.code = u"over-page-edge"_s;
    finding.text = u"English"_s;
    label.report.changed = {finding};
    label.report.repaired = {{u"groups-dissolved"_s, u"English"_s, 1},
                             {u"lists-replaced"_s, u"English"_s, 2}};
    const std::pair<QStringList, QStringList> rows[] = {
        {EnglishLocale,
         {u"Items extend beyond the edge of the page: that part is not printed."_s,
          u"1 group dissolved"_s, u"2 lists replaced by paragraphs"_s}},
        {GermanLocale,
         {u"Objekte ragen über den Seitenrand hinaus: Dieser Teil wird nicht gedruckt."_s,
          u"1 Gruppe aufgelöst"_s, u"2 Listen durch Absätze ersetzt"_s}},
    };
    for (const auto& [languages, expected] : rows) {
        const ProgramLanguage language(languages);
        QStringList texts;
        for (const window::Issue& issue : window::currentIssues(label)) {
            texts.append(issue.text);
        }
        EXPECT_EQ(texts, expected);
    }
}

} // namespace

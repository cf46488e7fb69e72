// The import command: the question, the dialog, the reader, the saving, in this order.

#include "file_dialog_driver.h"
#include "importer_fixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

using ImportCommand = ImporterTest;

TEST_F(ImportCommand, TakesOneStepAfterTheOther)
{
    FileDialogDriver::pick(file(u"shelf.cnv"_s));
    m_importer->importLegacyLabel(u"open.label"_s);

    const QStringList expected{
        u"asked about open.label, may discard"_s,
        u"label type ''"_s,
        u"tavrel made"_s,
        u"tavrel reads shelf.cnv"_s,
        u"save 'shelf' in %1 as type ''"_s.arg(folder()),
    };
    EXPECT_EQ(journal().events, expected);
    EXPECT_EQ(m_fileController.askedAbout, canvasModel());
    EXPECT_EQ(rememberedFolder(), QVariant(folder()));
}

TEST_F(ImportCommand, RemembersTheFolderBetweenTheLabelTypeAndTheReader)
{
    QSettings().setValue(u"dir/import"_s, u"/before"_s);
    FileDialogDriver::pick(file(u"shelf.cnv"_s));
    m_importer->importLegacyLabel(QString());
    EXPECT_EQ(journal().folderAtLabelType, QVariant(u"/before"_s));
    EXPECT_EQ(journal().folderAtReading, QVariant(folder()));
}

TEST_F(ImportCommand, StopsWhenTheUserKeepsTheChanges)
{
    m_fileController.mayGoOn = false;
    m_importer->importLegacyLabel(u"open.label"_s);

    EXPECT_EQ(journal().events, QStringList{u"asked about open.label, may discard"_s});
    EXPECT_FALSE(rememberedFolder().isValid());
}

TEST_F(ImportCommand, StopsWhenTheDialogIsCanceled)
{
    QSettings().setValue(u"dir/import"_s, u"/before"_s);
    FileDialogDriver::cancel();
    m_importer->importLegacyLabel(QString());

    EXPECT_EQ(journal().events, QStringList{u"asked about , may discard"_s});
    EXPECT_EQ(rememberedFolder(), QVariant(u"/before"_s));
}

TEST_F(ImportCommand, SavesNothingWhenTheReaderFails)
{
    journal().readersSucceed = false;
    FileDialogDriver::pick(file(u"broken.qmtx"_s));
    m_importer->importLegacyLabel(QString());

    // The type is announced and the folder remembered all the same.
    const QStringList expected{
        u"asked about , may discard"_s,
        u"label type ''"_s,
        u"orvanta made"_s,
        u"orvanta reads broken.qmtx"_s,
    };
    EXPECT_EQ(journal().events, expected);
    EXPECT_EQ(rememberedFolder(), QVariant(folder()));
}

struct RoadRow
{
    const char* fileName;
    const char* reader;
    const char* baseName;
};

const RoadRow Roads[] = {
    {"LABEL.CNV", "tavrel", "LABEL"},       {"label.Roc", "tavrel", "label"},
    {"LABEL.QMTX", "orvanta", "LABEL"},     {"label.ODG", "opendocument", "label"},
    {"label.odt", "opendocument", "label"}, {"a.b.qmtx", "tavrel", "a.b"},
    {"a.tar.odt", "tavrel", "a.tar"},       {"shelf.old.odt", "tavrel", "shelf.old"},
    {"nosuffix", "tavrel", "nosuffix"},     {"label.xyz", "tavrel", "label"},
};

TEST_F(ImportCommand, ChoosesTheReaderByAllSuffixesAndSavesWithoutTheLast)
{
    for (const RoadRow& row : Roads) {
        SCOPED_TRACE(row.fileName);
        journal().events.clear();
        const QString name = QString::fromLatin1(row.fileName);
        FileDialogDriver::pick(file(name));
        m_importer->importLegacyLabel(QString());

        const QString read = u"%1 reads %2"_s.arg(QLatin1String(row.reader), name);
        const QString saved =
            u"save '%1' in %2 as type ''"_s.arg(QLatin1String(row.baseName), folder());
        ASSERT_GE(journal().events.size(), 2);
        EXPECT_EQ(journal().events.at(journal().events.size() - 2), read);
        EXPECT_EQ(journal().events.last(), saved);
    }
}

// --- the dialog ---

TEST_F(ImportCommand, OffersOneFilterForEachFormatAndPreselectsAll)
{
    bool looked = false;
    FileDialogDriver::inspect([&](const QFileDialog& dialog) {
        looked = true;
        const QStringList filters{
            u"Legacy Tavrel File (*.cnv *.roc)"_s,
            u"Orvanta File (*.qmtx)"_s,
            u"OpenOffice File (*.odt *.odg)"_s,
            u"All Legacy Files (*.cnv *.roc *.qmtx *.odt *.odg)"_s,
        };
        EXPECT_EQ(dialog.nameFilters(), filters);
        EXPECT_EQ(dialog.selectedNameFilter(), filters.last());
        EXPECT_EQ(dialog.windowTitle(), u"Import Label"_s);
        EXPECT_EQ(dialog.directory().absolutePath(), defaultImportFolder());
        EXPECT_EQ(dialog.parentWidget(), nullptr);
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.options(), QFileDialog::Options());
    });
    m_importer->importLegacyLabel(QString());
    EXPECT_TRUE(looked);
}

TEST_F(ImportCommand, AlwaysStartsInTheDefaultFolder)
{
    FileDialogDriver::pick(file(u"shelf.cnv"_s));
    m_importer->importLegacyLabel(QString());
    ASSERT_NE(folder(), defaultImportFolder());

    QString directory;
    FileDialogDriver::inspect(
        [&directory](const QFileDialog& dialog) { directory = dialog.directory().absolutePath(); });
    m_importer->importLegacyLabel(QString());
    EXPECT_EQ(directory, defaultImportFolder());
}

/// A translator that returns capitals and records the requested texts.
class Shouter : public QTranslator
{
public:
    struct Request
    {
        QString context;
        QString text;
        QString comment;
        bool operator==(const Request&) const = default;
    };
    mutable QList<Request> requests;

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char* comment,
                                    int /*n*/) const override
    {
        const Request request{QString::fromLatin1(context), QString::fromLatin1(text),
                              QString::fromLatin1(comment)};
        if (request.context != QLatin1String("QObject") || request.comment.isEmpty()) {
            return {};
        }
        requests.append(request);
        return request.text.toUpper();
    }
};

TEST_F(ImportCommand, UsesTheLanguageOfTheHostsTranslator)
{
    Shouter shouter;
    QApplication::installTranslator(&shouter);
    QStringList filters;
    QString selected;
    QString title;
    FileDialogDriver::inspect([&](const QFileDialog& dialog) {
        filters = dialog.nameFilters();
        selected = dialog.selectedNameFilter();
        title = dialog.windowTitle();
    });
    m_importer->importLegacyLabel(QString());
    QApplication::removeTranslator(&shouter);

    // The patterns are put in after the translation, and stay as they are.
    EXPECT_EQ(filters, (QStringList{
                           u"LEGACY TAVREL FILE (*.cnv *.roc)"_s,
                           u"ORVANTA FILE (*.qmtx)"_s,
                           u"OPENOFFICE FILE (*.odt *.odg)"_s,
                           u"ALL LEGACY FILES (*.cnv *.roc *.qmtx *.odt *.odg)"_s,
                       }));
    EXPECT_EQ(selected, filters.last());
    EXPECT_EQ(title, u"IMPORT LABEL"_s);
    for (const char* text : {"All Legacy Files %1", "OpenOffice File %1", "Orvanta File %1",
                             "Legacy Tavrel File %1"}) {
        EXPECT_TRUE(shouter.requests.contains(
            {u"QObject"_s, QLatin1String(text), u"Filter for Open File dialog"_s}))
            << text;
    }
    EXPECT_TRUE(
        shouter.requests.contains({u"QObject"_s, u"Import Label"_s, u"Dialog to open a file."_s}));
}

} // namespace

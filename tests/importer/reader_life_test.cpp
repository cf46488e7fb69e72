// How the importer keeps its readers: made when first needed, once, and destroyed in order.

#include "importer_fixture.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

using ReaderLife = ImporterTest;

const QString File = u"file"_s;

QStringList made(const QStringList& events)
{
    return events.filter(u" made"_s);
}

TEST_F(ReaderLife, BeginsWithTheFirstFile)
{
    EXPECT_EQ(journal().events, QStringList());

    EXPECT_TRUE(m_importer->importLabelFromOpenOfficeFile(File));
    EXPECT_EQ(made(journal().events), QStringList{u"opendocument made"_s});
    EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    EXPECT_EQ(made(journal().events).size(), 3);
}

TEST_F(ReaderLife, ServesEveryFurtherFile)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
        EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
        EXPECT_TRUE(m_importer->importLabelFromOpenOfficeFile(File));
    }
    EXPECT_EQ(made(journal().events).size(), 3);
    EXPECT_EQ(journal().events.size(), 3 + 9);
}

TEST_F(ReaderLife, GetsTheHostsCanvasAndDataSources)
{
    const auto expectHost = [this] {
        EXPECT_EQ(journal().lastCanvasModel, canvasModel());
        EXPECT_EQ(journal().lastDatasourceController, datasourceController());
        journal().lastCanvasModel = nullptr;
        journal().lastDatasourceController = nullptr;
    };
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    expectHost();
    EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
    expectHost();
    EXPECT_TRUE(m_importer->importLabelFromOpenOfficeFile(File));
    expectHost();
}

TEST_F(ReaderLife, ResultIsTheReaders)
{
    journal().readersSucceed = false;
    EXPECT_FALSE(m_importer->importLabelFromTavrelFile(File));
    EXPECT_FALSE(m_importer->importLabelFromOrvantaFile(File));
    EXPECT_FALSE(m_importer->importLabelFromOpenOfficeFile(File));
    journal().readersSucceed = true;
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
    EXPECT_TRUE(m_importer->importLabelFromOpenOfficeFile(File));
}

TEST_F(ReaderLife, SignalsGoOutOnceHoweverManyImports)
{
    const QSignalSpy shown(m_importer.get(), &LegacyTemplateImporter::popupShowSignal);
    const QSignalSpy hidden(m_importer.get(), &LegacyTemplateImporter::popupHideSignal);
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(hidden.count(), 1);
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    EXPECT_EQ(shown.count(), 2);
    EXPECT_EQ(hidden.count(), 2);
}

TEST_F(ReaderLife, EndsInAFixedOrder)
{
    // Whatever the order in which they were made.
    EXPECT_TRUE(m_importer->importLabelFromOpenOfficeFile(File));
    EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
    EXPECT_TRUE(m_importer->importLabelFromTavrelFile(File));
    journal().events.clear();
    m_importer.reset();
    EXPECT_EQ(journal().events, (QStringList{
                                    u"tavrel destroyed"_s,
                                    u"orvanta destroyed"_s,
                                    u"opendocument destroyed"_s,
                                }));
}

TEST_F(ReaderLife, EndsOnlyForReadersThatWereMade)
{
    EXPECT_TRUE(m_importer->importLabelFromOrvantaFile(File));
    journal().events.clear();
    m_importer.reset();
    EXPECT_EQ(journal().events, QStringList{u"orvanta destroyed"_s});
}

TEST_F(ReaderLife, AReaderThatCouldNotBeMadeIsTriedAgain)
{
    using Import = bool (LegacyTemplateImporter::*)(const QString&);
    for (const Import import : {Import(&LegacyTemplateImporter::importLabelFromTavrelFile),
                                Import(&LegacyTemplateImporter::importLabelFromOrvantaFile),
                                Import(&LegacyTemplateImporter::importLabelFromOpenOfficeFile)}) {
        journal().events.clear();
        journal().nextReaderThrows = true;
        EXPECT_THROW((void)(m_importer.get()->*import)(File), std::runtime_error);
        EXPECT_EQ(journal().events, QStringList());
        EXPECT_TRUE((m_importer.get()->*import)(File));
        EXPECT_EQ(made(journal().events).size(), 1);
    }
}

TEST_F(ReaderLife, AnImportWithinAnImportReadsNothingAndReturnsFalse)
{
    using Import = bool (LegacyTemplateImporter::*)(const QString&);
    for (const Import import : {Import(&LegacyTemplateImporter::importLabelFromTavrelFile),
                                Import(&LegacyTemplateImporter::importLabelFromOrvantaFile),
                                Import(&LegacyTemplateImporter::importLabelFromOpenOfficeFile)}) {
        journal().events.clear();
        bool nested = true;
        journal().duringImport = [&] { nested = (m_importer.get()->*import)(File); };
        EXPECT_TRUE((m_importer.get()->*import)(File));
        EXPECT_FALSE(nested);
        EXPECT_EQ(journal().events.filter(u" reads "_s).size(), 1);
        EXPECT_TRUE((m_importer.get()->*import)(File)) << "not busy afterwards";
    }
}

TEST_F(ReaderLife, TheImporterHasNoParentAndTwoSignals)
{
    EXPECT_EQ(m_importer->parent(), nullptr);
    const QMetaObject* meta = m_importer->metaObject();
    EXPECT_STREQ(meta->className(), "LegacyTemplateImporter");
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 2);
    EXPECT_EQ(meta->method(meta->methodOffset()).methodSignature(), "popupShowSignal(QWidget*)");
    EXPECT_EQ(meta->method(meta->methodOffset() + 1).methodSignature(), "popupHideSignal()");
}

} // namespace

// The shared library on a host that is compiled into another file. The library shows
// nothing but its two classes, so every cast from an item to a facet crosses between two
// copies of the type information.

#include "importer/legacy_template_importer.h"
#include "recorder/recording_host.h"
#include "supply/legacy_supply_info.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class ImporterLibrary : public ::testing::Test
{
protected:
    ImporterLibrary() { m_out.open(QIODevice::WriteOnly); }

    [[nodiscard]] static QString sample(const char* name)
    {
        return QStringLiteral(LABELPORT_SAMPLES "/") + QLatin1String(name);
    }
    /// How many calls of a name the items have had.
    [[nodiscard]] qsizetype itemCalls(const char* name) const
    {
        const QByteArray call = QByteArray("\"call\":\"") + name + '"';
        qsizetype calls = 0;
        for (const QByteArray& line : m_out.data().split('\n')) {
            calls += line.startsWith("{\"on\":\"item:") && line.contains(call) ? 1 : 0;
        }
        return calls;
    }

    QBuffer m_out;
    recorder::RecordingHost m_host{m_out};
    LegacyTemplateImporter m_importer{m_host.canvasModel(), m_host.fileController(),
                                      m_host.datasourceController()};
};

TEST_F(ImporterLibrary, ReachesTheFacetsOfTheHostsItems)
{
    ASSERT_TRUE(m_importer.importLabelFromTavrelFile(sample("tavrel/parcel_2000023.roc")));
    // Of an item, of the pen, of the text, of a single class: all by casts of the library.
    EXPECT_GT(itemCalls("setItemSize"), 0);
    EXPECT_GT(itemCalls("setPenWidth"), 0);
    EXPECT_GT(itemCalls("setTextColor"), 0);
    EXPECT_GT(itemCalls("importTextProperties"), 0);
    EXPECT_GT(itemCalls("setDatasourceId"), 0);
    EXPECT_GT(itemCalls("setLineLength"), 0);
}

TEST_F(ImporterLibrary, TakesTheServicesOutOfTheProgram)
{
    const QSignalSpy shown(&m_importer, &LegacyTemplateImporter::popupShowSignal);
    const QSignalSpy hidden(&m_importer, &LegacyTemplateImporter::popupHideSignal);
    ASSERT_TRUE(m_importer.importLabelFromTavrelFile(sample("tavrel/parcel_2000023.roc")));
    EXPECT_TRUE(m_out.data().contains("{\"on\":\"symbolcreator\""));
    EXPECT_TRUE(m_out.data().contains("{\"on\":\"symboldb:1\""));

    // This program has no symbol databases beside it, so the reader has something to say.
    ASSERT_EQ(shown.count(), 1);
    EXPECT_TRUE(m_out.data().contains("{\"on\":\"messagebox\""));
    EXPECT_EQ(hidden.count(), 0);
    m_host.hideMessageBoxes();
    EXPECT_EQ(hidden.count(), 1);
}

TEST_F(ImporterLibrary, ContinuesAfterFilesThatFail)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(u"missing"_s);
    EXPECT_FALSE(m_importer.importLabelFromTavrelFile(missing));
    EXPECT_FALSE(m_importer.importLabelFromOrvantaFile(missing));
    EXPECT_FALSE(m_importer.importLabelFromOpenOfficeFile(missing));
    EXPECT_TRUE(m_importer.importLabelFromTavrelFile(sample("tavrel/address_2000016.cnv")));
}

TEST_F(ImporterLibrary, BringsItsTablesWithIt)
{
    // Resources of an object inside the library; a program that never names them gets them.
    for (const char* table : {"LabelType.csv", "RibbonType.csv", "color1.csv"}) {
        const QString path = u":/tables/csv/"_s + QLatin1String(table);
        EXPECT_TRUE(QFile::exists(path)) << table;
    }
}

} // namespace

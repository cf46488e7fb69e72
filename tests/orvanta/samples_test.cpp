#include "tests/orvanta/reader_fixture.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

using Samples = ReaderFixture;

QString samplePath(const QString& name)
{
    return QStringLiteral(LABELPORT_SAMPLES "/orvanta/%1.qmtx").arg(name);
}

} // namespace

TEST_F(Samples, AreImportedCompletelyAndWithoutALogLine)
{
    const struct
    {
        const char* name;
        const char* page;
        int items;
        qsizetype datasources;
        qsizetype symbols;
    } rows[] = {
        {"asset_tag", "importCanvasParameters 198 81 false false", 7, 2, 0},
        {"book_label", "importCanvasParameters 216 288 false true", 10, 4, 0},
        {"jar_label", "importCanvasParameters 288 216 false false", 8, 2, 1},
        {"parcel_label", "importCanvasParameters 288 432 false true", 18, 4, 2},
        {"shapes_sheet", "importCanvasParameters 372 276 false false", 40, 0, 0},
        {"shelf_label", "importCanvasParameters 252 108 false false", 7, 2, 0},
        {"vial_label", "importCanvasParameters 252 90 false false", 8, 4, 1},
        {"warning_sign", "importCanvasParameters 360 252 false false", 11, 1, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        host.recorder().reset();
        host.forgetCalls();
        EXPECT_TRUE(reader->importLabelFromFile(samplePath(QString::fromLatin1(row.name))));
        EXPECT_EQ(callsOf("canvas").first(), QString::fromLatin1(row.page));
        EXPECT_EQ(host.itemCount(), row.items);
        EXPECT_EQ(callsOf("datasources").size(), 2 * row.datasources);
        EXPECT_EQ(callsOf("factory").filter(u"create 1000d"_s).size(), row.symbols);
        EXPECT_TRUE(host.calls().filter(u"pixmapImportActions 0x0"_s).isEmpty());
        EXPECT_TRUE(host.calls().filter(u"d1p1"_s).isEmpty());
    }
    EXPECT_EQ(logText(), QString());
}

TEST_F(Samples, AreAllInTheTableAbove)
{
    const QDir folder(QStringLiteral(LABELPORT_SAMPLES "/orvanta"));
    EXPECT_EQ(folder.entryList({u"*.qmtx"_s}, QDir::Files).size(), 8);
}

#include "supply/legacy_supply_info.h"
#include "tests/supply/palette.h"
#include "tests/support/captured_log.h"

#include <QAbstractItemModelTester>
#include <QResource>

#include <set>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

// Both must be outside any namespace.
void registerSupplyTables()
{
    Q_INIT_RESOURCE(labelport_supply_tables);
}

void unregisterSupplyTables()
{
    Q_CLEANUP_RESOURCE(labelport_supply_tables);
}

namespace {

constexpr int labelRows = 412;
constexpr int ribbonRows = 11;

const QStringList tablePaths = {u":/tables/csv/LabelType.csv"_s, u":/tables/csv/RibbonType.csv"_s,
                                u":/tables/csv/color1.csv"_s};

QColor rgb(const char* text)
{
    return QColor::fromString(QLatin1String(text));
}

TEST(SupplyTables, AreStoredAsHostsExpectThem)
{
    const QResource labels(tablePaths[0]);
    const QResource ribbons(tablePaths[1]);
    const QResource colors(tablePaths[2]);
    ASSERT_TRUE(labels.isValid() && ribbons.isValid() && colors.isValid());
    EXPECT_EQ(labels.compressionAlgorithm(), QResource::ZlibCompression);
    EXPECT_EQ(ribbons.compressionAlgorithm(), QResource::NoCompression);
    EXPECT_EQ(colors.compressionAlgorithm(), QResource::NoCompression);
}

TEST(SupplyTables, EndEachLineWithCarriageReturnAndLineFeed)
{
    for (const QString& path : tablePaths) {
        SCOPED_TRACE(path.toStdString());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        EXPECT_TRUE(content.endsWith("\r\n"));
        EXPECT_EQ(content.count('\n'), content.count("\r\n"));
        EXPECT_EQ(content.count('\r'), content.count("\r\n"));
    }
}

TEST(SupplyTables, HaveTheirHeaderLines)
{
    const char* const headers[] = {
        "SKU,Name,Printer,Color Index,Background File,Format,Orientation,Roll Width (inches),"
        "Label Length (inches),Stripe Color Index,Stripe Width (inches),Material,Flat Width\r\n",
        "SKU,Name,Printer,Color\r\n", " Index,Color,\r\n"};
    for (int table = 0; table < 3; ++table) {
        QFile file(tablePaths[table]);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readLine(), QByteArray(headers[table]));
    }
}

TEST(SupplyTables, AreModelsAsViewsExpectThem)
{
    const int rows[] = {labelRows, ribbonRows, 98};
    const int columns[] = {13, 4, 2};
    for (int table = 0; table < 3; ++table) {
        SCOPED_TRACE(tablePaths[table].toStdString());
        CsvTableModel model(1);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        ASSERT_TRUE(model.setFileName(tablePaths[table]));
        EXPECT_EQ(model.rowCount(), rows[table]);
        EXPECT_EQ(model.headerData(columns[table], Qt::Horizontal), QVariant());
    }
}

TEST(LegacySupplyInfo, LoadsWithoutAComplaint)
{
    const CapturedLog log;
    const LegacySupplyInfo supplies;
    EXPECT_TRUE(log.records().isEmpty());
}

TEST(LegacySupplyInfo, GivesThePalette)
{
    const LegacySupplyInfo supplies;
    for (int index = 0; index < int(expectedPalette.size()); ++index) {
        const PaletteEntry& expected = expectedPalette[size_t(index)];
        EXPECT_EQ(supplies.primaryColor(index), rgb(expected.color)) << index;
        EXPECT_EQ(supplies.primaryData(index, 0).toString(), QString::number(index));
        EXPECT_EQ(supplies.primaryData(index, 1).toString(), QLatin1String(expected.color));
        EXPECT_EQ(supplies.primaryData(index, 2).toString(), QLatin1String(expected.name));
    }
    EXPECT_EQ(supplies.primaryColor(0), QColor(Qt::white));
    EXPECT_EQ(supplies.primaryColor(1), QColor(Qt::white));
    EXPECT_EQ(supplies.primaryColor(2), QColor(Qt::black));
}

TEST(LegacySupplyInfo, GivesWhiteOutsideThePalette)
{
    const LegacySupplyInfo supplies;
    for (const int index : {-1, 98, 1000, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(supplies.primaryColor(index), QColor(Qt::white)) << index;
    }
    EXPECT_FALSE(supplies.primaryData(98, 0).isValid());
    EXPECT_FALSE(supplies.primaryData(-1, 0).isValid());
    EXPECT_FALSE(supplies.primaryData(0, -1).isValid());
    EXPECT_FALSE(supplies.primaryData(0, 3).isValid());
}

TEST(LegacySupplyInfo, ShowsColorNamesOnlyOnceADataLineWasParsed)
{
    const LegacySupplyInfo supplies;
    EXPECT_FALSE(supplies.primaryData(5, 2).isValid());
    EXPECT_EQ(supplies.primaryColor(0), QColor(Qt::white));
    EXPECT_EQ(supplies.primaryData(5, 2).toString(), u"color_silver_gray"_s);
}

TEST(LegacySupplyInfo, StartsItsLabelsWithTheGenericOnes)
{
    const char* const names[] = {"Custom", "Continuous Solid", "Continuous Striped",
                                 "Blackmark Sensed"};
    LegacySupplyInfo supplies;
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(supplies.labelData(row, 0), QVariant(QString()));
        EXPECT_EQ(supplies.labelData(row, 1).toString(), QLatin1String(names[row]));
        EXPECT_EQ(supplies.labelData(row, 2).toString(), u"FFFFFFFF"_s);
        EXPECT_EQ(supplies.labelData(row, 5).toString(), QString::number(row));
        EXPECT_EQ(supplies.getLabelName(row), QLatin1String(names[row]));
    }
}

TEST(LegacySupplyInfo, HasTheRowsThatOldLabelsNeed)
{
    const LegacySupplyInfo supplies;
    EXPECT_TRUE(supplies.labelData(labelRows - 1, 12).isValid());
    EXPECT_FALSE(supplies.labelData(labelRows, 0).isValid());
    EXPECT_FALSE(supplies.labelData(0, 13).isValid());
    EXPECT_TRUE(supplies.ribbonData(ribbonRows - 1, 3).isValid());
    EXPECT_FALSE(supplies.ribbonData(ribbonRows, 0).isValid());
    EXPECT_FALSE(supplies.ribbonData(0, 4).isValid());
}

TEST(LegacySupplyInfo, EveryTableRowIsWellFormed)
{
    const LegacySupplyInfo supplies;
    std::set<QString> partNumbers;
    for (int row = 4; row < labelRows; ++row) {
        SCOPED_TRACE(row);
        partNumbers.insert(supplies.labelData(row, 0).toString());
        EXPECT_FALSE(supplies.labelData(row, 1).toString().isEmpty());
        bool isHexadecimal = false;
        supplies.labelData(row, 2).toString().toUInt(&isHexadecimal, 16);
        EXPECT_TRUE(isHexadecimal);
        for (const int column : {3, 5, 6, 7, 8, 9, 10, 11, 12}) {
            bool isNumber = false;
            const double value = supplies.labelData(row, column).toString().toDouble(&isNumber);
            EXPECT_TRUE(isNumber && value >= 0.0) << column;
        }
        EXPECT_LT(supplies.labelData(row, 3).toInt(), 98);
    }
    EXPECT_EQ(partNumbers.size(), size_t(labelRows - 4));
}

TEST(LegacySupplyInfo, GivesLabelColorsThroughThePalette)
{
    LegacySupplyInfo supplies;
    std::set<QRgb> seen;
    for (int row = 0; row < labelRows; ++row) {
        const int index = supplies.labelData(row, 3).toInt();
        EXPECT_EQ(supplies.getLabelColor(row), supplies.primaryColor(index));
        seen.insert(supplies.getLabelColor(row).rgb());
    }
    EXPECT_GT(seen.size(), 10U);
    EXPECT_EQ(supplies.getLabelColor(-1), QColor(Qt::white));
    EXPECT_EQ(supplies.getLabelColor(labelRows), QColor(Qt::white));
}

TEST(LegacySupplyInfo, GivesRibbonColors)
{
    const LegacySupplyInfo supplies;
    for (int row = 0; row < ribbonRows; ++row) {
        const QColor written = QColor::fromString(supplies.ribbonData(row, 3).toString());
        ASSERT_TRUE(written.isValid());
        EXPECT_EQ(supplies.getRibbonColor(row), written);
    }
    EXPECT_EQ(supplies.getRibbonColor(-1), QColor(Qt::black));
    EXPECT_EQ(supplies.getRibbonColor(ribbonRows), QColor(Qt::black));
}

TEST(LegacySupplyInfo, NamesLabelsByPartNumberAndName)
{
    const LegacySupplyInfo supplies;
    const QString name = supplies.labelData(4, 1).toString();
    EXPECT_TRUE(name.startsWith(u'"') && name.endsWith(u'"')) << name.toStdString();
    EXPECT_EQ(supplies.getLabelName(4), supplies.labelData(4, 0).toString() + u": "_s + name);
    EXPECT_EQ(supplies.getLabelName(-1), QString());
    EXPECT_EQ(supplies.getLabelName(labelRows), QString());
}

TEST(LegacySupplyInfo, NeverHasABackground)
{
    LegacySupplyInfo supplies;
    for (const int row : {-1, 0, 4, labelRows}) {
        EXPECT_TRUE(supplies.getLabelBackground(row).isNull());
    }
}

// An integrator's own tables: other content under the same paths.
class OtherSupplyTables : public testing::Test
{
protected:
    OtherSupplyTables() { unregisterSupplyTables(); }
    ~OtherSupplyTables() override { registerSupplyTables(); }
};

TEST_F(OtherSupplyTables, MissingOnesGiveDefaults)
{
    const CapturedLog log;
    LegacySupplyInfo supplies;
    QStringList expected;
    for (const QString& path : tablePaths) {
        expected << u"\"%1\" does not exist"_s.arg(path) << u"Could not open  \"%1\""_s.arg(path);
    }
    EXPECT_EQ(log.messages(), expected);

    EXPECT_FALSE(supplies.labelData(0, 0).isValid());
    EXPECT_FALSE(supplies.ribbonData(0, 0).isValid());
    EXPECT_FALSE(supplies.primaryData(0, 0).isValid());
    EXPECT_EQ(supplies.primaryColor(2), QColor(Qt::white));
    EXPECT_EQ(supplies.getLabelColor(0), QColor(Qt::white));
    EXPECT_EQ(supplies.getRibbonColor(1), QColor(Qt::black));
    EXPECT_EQ(supplies.getLabelName(0), QString());
}

TEST_F(OtherSupplyTables, AreReadByTheSameRules)
{
    ASSERT_TRUE(QResource::registerResource(QStringLiteral(OTHER_TABLES)));
    {
        LegacySupplyInfo supplies;
        // The first row of an index counts; one with an unreadable color is skipped.
        EXPECT_EQ(supplies.primaryColor(7), rgb("#010203"));
        EXPECT_EQ(supplies.primaryColor(5), rgb("#070809"));
        EXPECT_EQ(supplies.primaryColor(8), QColor(Qt::white));
        // A text that is not a number counts as 0, in the palette and in the label table.
        EXPECT_EQ(supplies.primaryColor(0), rgb("#0a0b0c"));
        EXPECT_EQ(supplies.getLabelColor(2), rgb("#0a0b0c"));
        EXPECT_EQ(supplies.getLabelColor(-1), rgb("#0a0b0c"));
        EXPECT_EQ(supplies.getLabelColor(0), rgb("#010203"));

        EXPECT_EQ(supplies.getLabelName(0), u"Nameless number"_s);
        EXPECT_EQ(supplies.getLabelName(1), u"PN-1"_s);
        EXPECT_EQ(supplies.getLabelName(2), u"PN-2: \"2\" M\u00fcll\""_s);
        EXPECT_EQ(supplies.getLabelName(3), QString());

        EXPECT_EQ(supplies.getRibbonColor(0), rgb("#164473"));
        EXPECT_EQ(supplies.getRibbonColor(1), QColor(Qt::black));
        EXPECT_EQ(supplies.getRibbonColor(2), QColor(Qt::black));
        EXPECT_EQ(supplies.getRibbonColor(3), rgb("teal"));
    }
    EXPECT_TRUE(QResource::unregisterResource(QStringLiteral(OTHER_TABLES)));
}

} // namespace

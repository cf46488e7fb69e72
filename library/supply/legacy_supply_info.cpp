#include "supply/legacy_supply_info.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int HeaderRows = 1;

namespace label_column {
constexpr int PartNumber = 0;
constexpr int Name = 1;
constexpr int ColorIndex = 3;
} // namespace label_column

namespace ribbon_column {
constexpr int Color = 3;
} // namespace ribbon_column

namespace palette_column {
constexpr int Index = 0;
constexpr int Color = 1;
} // namespace palette_column

QVariant cellOf(const CsvTableModel& table, int row, int column)
{
    return table.data(table.index(row, column), Qt::DisplayRole);
}

} // namespace

LegacySupplyInfo::LegacySupplyInfo()
    : m_labelTable(HeaderRows)
    , m_ribbonTable(HeaderRows)
    , m_colorTable(HeaderRows)
{
    m_labelTable.setFileName(u":/tables/csv/LabelType.csv"_s);
    m_ribbonTable.setFileName(u":/tables/csv/RibbonType.csv"_s);
    m_colorTable.setFileName(u":/tables/csv/color1.csv"_s);
}

LegacySupplyInfo::~LegacySupplyInfo() = default;

QVariant LegacySupplyInfo::labelData(int row, int column) const
{
    return cellOf(m_labelTable, row, column);
}

QVariant LegacySupplyInfo::ribbonData(int row, int column) const
{
    return cellOf(m_ribbonTable, row, column);
}

QVariant LegacySupplyInfo::primaryData(int row, int column) const
{
    return cellOf(m_colorTable, row, column);
}

QColor LegacySupplyInfo::primaryColor(int index) const
{
    for (int row = 0; row < m_colorTable.rowCount(); ++row) {
        if (primaryData(row, palette_column::Index).toInt() != index) {
            continue;
        }
        const QColor color = QColor::fromString(primaryData(row, palette_column::Color).toString());
        if (color.isValid()) {
            return color;
        }
    }
    return Qt::white;
}

QColor LegacySupplyInfo::getLabelColor(int row)
{
    return primaryColor(labelData(row, label_column::ColorIndex).toInt());
}

QColor LegacySupplyInfo::getRibbonColor(int row) const
{
    const QColor color = QColor::fromString(ribbonData(row, ribbon_column::Color).toString());
    return color.isValid() ? color : QColor(Qt::black);
}

QString LegacySupplyInfo::getLabelName(int row) const
{
    const QString partNumber = labelData(row, label_column::PartNumber).toString();
    const QString name = labelData(row, label_column::Name).toString();
    const bool both = !partNumber.isEmpty() && !name.isEmpty();
    return partNumber + (both ? u": "_s : QString()) + name;
}

QPixmap LegacySupplyInfo::getLabelBackground(int)
{
    return {};
}

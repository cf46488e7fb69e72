#include "supply/legacy_supply_info.h"

namespace {

constexpr int headerRows = 1;

namespace label_column {
constexpr int partNumber = 0;
constexpr int name = 1;
constexpr int colorIndex = 3;
} // namespace label_column

namespace ribbon_column {
constexpr int color = 3;
} // namespace ribbon_column

namespace palette_column {
constexpr int index = 0;
constexpr int color = 1;
} // namespace palette_column

QVariant cellOf(const CsvTableModel& table, int row, int column)
{
    return table.data(table.index(row, column), Qt::DisplayRole);
}

} // namespace

LegacySupplyInfo::LegacySupplyInfo()
    : m_labelTable(headerRows)
    , m_ribbonTable(headerRows)
    , m_colorTable(headerRows)
{
    m_labelTable.setFileName(QStringLiteral(":/tables/csv/LabelType.csv"));
    m_ribbonTable.setFileName(QStringLiteral(":/tables/csv/RibbonType.csv"));
    m_colorTable.setFileName(QStringLiteral(":/tables/csv/color1.csv"));
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
        if (primaryData(row, palette_column::index).toInt() != index) {
            continue;
        }
        const QColor color = QColor::fromString(primaryData(row, palette_column::color).toString());
        if (color.isValid()) {
            return color;
        }
    }
    return Qt::white;
}

QColor LegacySupplyInfo::getLabelColor(int row)
{
    return primaryColor(labelData(row, label_column::colorIndex).toInt());
}

QColor LegacySupplyInfo::getRibbonColor(int row) const
{
    const QColor color = QColor::fromString(ribbonData(row, ribbon_column::color).toString());
    return color.isValid() ? color : QColor(Qt::black);
}

QString LegacySupplyInfo::getLabelName(int row) const
{
    const QString partNumber = labelData(row, label_column::partNumber).toString();
    const QString name = labelData(row, label_column::name).toString();
    const bool both = !partNumber.isEmpty() && !name.isEmpty();
    return partNumber + (both ? QStringLiteral(": ") : QString()) + name;
}

QPixmap LegacySupplyInfo::getLabelBackground(int)
{
    return {};
}

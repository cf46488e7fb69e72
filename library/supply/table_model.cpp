#include "supply/table_model.h"

#include <Logger.h>

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

constexpr int CellAlignment = static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter);

QString spreadsheetName(int column)
{
    QString name;
    for (int n = column; n >= 0; n = n / 26 - 1) {
        name.prepend(QChar(u'A' + n % 26));
    }
    return name;
}

// Makes header names unique.
class UniqueNames
{
public:
    QString take(const QString& wanted)
    {
        QString name = wanted;
        // Continue at the last number of this name: a taken number stays taken, and a header line
        // of a hundred thousand equal names would otherwise need quadratic time.
        for (int& last = m_lastNumber[wanted]; m_taken.contains(name);) {
            name = wanted + QString::number(++last);
        }
        m_taken.insert(name);
        return name;
    }

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_lastNumber;
};

} // namespace

TableModel::TableModel(int headerRows)
    : m_headerRows(headerRows)
{}

int TableModel::rowCount(const QModelIndex& parent) const
{
    // An empty file has fewer lines than headers.
    return parent.isValid() ? 0 : std::max(0, fileRowCount() - m_headerRows);
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : fileColumnCount();
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        // Reading a cell may parse its line and replace the cached one. The table's content does
        // not change, so callers may treat data() as const.
        return const_cast<TableModel*>(this)->cell(index.row() + m_headerRows, index.column());
    }
    return role == Qt::TextAlignmentRole ? QVariant(CellAlignment) : QVariant();
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole) {
        return CellAlignment;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return QString::number(qint64(section) + 1);
    }
    if (m_headerRows == 0) {
        return spreadsheetName(section);
    }
    const bool known = section >= 0 && section < m_headerNames.size();
    return known ? QVariant(m_headerNames.at(section)) : QVariant();
}

QString TableModel::fileName() const
{
    return m_fileName;
}

bool TableModel::setFileName(const QString& name)
{
    beginResetModel();
    const bool opened = openFile(name);
    if (opened) {
        m_fileName = name;
        m_headerNames = m_headerRows == 0 ? QStringList() : uniqueHeaderNames();
    } else {
        CuteMessageLogger(loggerInstance(), Logger::Error, "table_model", __LINE__, Q_FUNC_INFO)
                .write()
            << "Could not open " << name;
    }
    endResetModel();
    return opened;
}

QStringList TableModel::uniqueHeaderNames()
{
    UniqueNames names;
    QStringList all;
    for (int column = 0; column < fileColumnCount(); ++column) {
        const QString text = cell(0, column);
        all.append(names.take(text.isEmpty() ? spreadsheetName(column) : text));
    }
    return all;
}

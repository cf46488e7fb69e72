// Indexes and parses a CSV file and reads each of its cells.

#include "fuzz/harness.h"
#include "supply/csv_table_model.h"

#include <QModelIndex>

#include <algorithm>

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    CsvTableModel model(1);
    if (!model.setFileName(file.path())) {
        return;
    }
    for (int row = -1; row < std::min(model.rowCount(), 64); ++row) {
        for (int column = 0; column < std::min(model.columnCount(), 64); ++column) {
            (void)model.data(model.index(row, column), Qt::DisplayRole);
        }
    }
}

// A table with the records of a label. The first bytes select the options.

#include "fuzz/harness.h"
#include "workbench/datasources/csv_table.h"

#include <QSet>

#include <array>

void fuzzOneInput(const QByteArray& input)
{
    using namespace workbench::datasources;
    constexpr std::array encodings{CsvEncoding::Detect, CsvEncoding::Utf8, CsvEncoding::Utf16,
                                   CsvEncoding::Windows1252};
    constexpr std::array separators{'\0', ',', ';', '\t'};
    const auto choice = static_cast<std::size_t>(input.isEmpty() ? 0 : input.at(0));
    CsvOptions options;
    options.encoding = encodings.at(choice % encodings.size());
    options.separator = QLatin1Char(separators.at(choice / 4 % separators.size()));
    options.hasHeader = choice / 16 % 2 == 0;
    const CsvTable table = parseCsv(input.mid(1), options);
    if (!table.error.isEmpty()) {
        return;
    }
    const QSet<QString> names(table.fields.cbegin(), table.fields.cend());
    if (table.fields.isEmpty() || names.size() != table.fields.size() ||
        names.contains(QString())) {
        qFatal("columns have no names of their own");
    }
    if (table.fields.size() > MaximumCsvColumns || table.cells.size() > MaximumCsvCells ||
        table.cells.size() % table.fields.size() != 0) {
        qFatal("a record is incomplete, or the table is larger than its limits");
    }
}

#include "supply/csv_table_model.h"

#include "supply/csv_fields.h"
#include "supply/csv_line_starts.h"

#include <Logger.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr size_t InitialOffsetCapacity = 16;

void logError(int line, const char* function, const char* format, const QString& text)
{
    CuteMessageLogger(loggerInstance(), Logger::Error, "csv_table_model", line, function)
        .write(format, text.toLocal8Bit().constData());
}

int countWithoutTrailingEmpty(const QStringList& fields)
{
    const auto last = std::find_if(fields.crbegin(), fields.crend(),
                                   [](const QString& field) { return !field.isEmpty(); });
    return static_cast<int>(std::distance(last, fields.crend()));
}

} // namespace

CsvTableModel::CsvTableModel(int headerRows)
    : TableModel(headerRows)
{
    m_lineOffsets.reserve(InitialOffsetCapacity);
}

CsvTableModel::~CsvTableModel() = default;

bool CsvTableModel::openFile(const QString& name)
{
    if (!QFile::exists(name)) {
        logError(__LINE__, Q_FUNC_INFO, "\"%s\" does not exist", name);
        return false;
    }
    reset();
    m_file.setFileName(name);
    if (!m_file.open(QIODevice::ReadOnly)) {
        const QString message = QObject::tr("Could not open file \"%1\" (%2).")
                                    .arg(name, QString::number(static_cast<int>(m_file.error())));
        logError(__LINE__, Q_FUNC_INFO, "CSV File Open Warning: %s", message);
        return false;
    }
    m_openResult = findLineStarts();
    if (!m_openResult) {
        logError(__LINE__, Q_FUNC_INFO, "\"%s\" is too large for a table", name);
        reset();
        return false;
    }
    parseRow(0);
    setHeaderNames(m_lineFields);
    return true;
}

int CsvTableModel::fileRowCount() const
{
    return m_lineCount;
}

int CsvTableModel::fileColumnCount() const
{
    return m_columnCount;
}

QString CsvTableModel::cell(int line, int column)
{
    if (!parseRow(line) || column < 0 || column >= m_lineFields.size()) {
        return {};
    }
    return m_lineFields.at(column);
}

bool CsvTableModel::parseRow(int line)
{
    if (line < 0 || line >= m_lineCount) {
        CuteMessageLogger(loggerInstance(), Logger::Error, "csv_table_model", __LINE__, Q_FUNC_INFO)
            .write("Invalid row number (%d)", line);
        return false;
    }
    if (line == m_parsedLine) {
        return true;
    }
    const qint64 start = m_lineOffsets[static_cast<size_t>(line)];
    const qint64 length = m_lineOffsets[static_cast<size_t>(line) + 1] - start;
    if (length > MaximumLineBytes) {
        logError(__LINE__, Q_FUNC_INFO, "\"%s\" has a line that is too long", m_file.fileName());
        return false;
    }
    m_file.seek(start);
    const QByteArray bytes = m_file.read(length);
    if (bytes.size() < length) {
        // Not logged: the lookup uses its default, as for a missing row.
        return false;
    }
    m_lineFields = csvFields(bytes);
    m_parsedLine = line;
    m_columnCount = std::max(m_columnCount, countWithoutTrailingEmpty(m_lineFields));
    return true;
}

void CsvTableModel::reset()
{
    m_lineOffsets.clear();
    m_lineCount = 0;
    m_columnCount = 0;
    m_parsedLine = -1;
    m_lineFields.clear();
    setHeaderNames({});
    m_file.close();
    m_openResult = false;
}

bool CsvTableModel::findLineStarts()
{
    CsvLineStarts starts(std::move(m_lineOffsets));
    std::array<char, 16 * 1024> piece;
    for (qint64 length = 0; (length = m_file.read(piece.data(), piece.size())) > 0;) {
        starts.take({piece.data(), static_cast<size_t>(length)});
        if (starts.position() > MaximumFileBytes || starts.offsets().size() > MaximumLines) {
            return false;
        }
    }
    starts.finish();
    m_lineOffsets = starts.takeOffsets();
    m_lineCount = static_cast<int>(m_lineOffsets.size()) - 1;
    return true;
}

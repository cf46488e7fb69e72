#pragma once

#include "supply/table_model.h"

#include <QFile>

#include <vector>

/// A table of comma-separated values that is read from its file on demand.
///
/// Opening a file finds the offset of each line. A line is parsed when one of its cells is needed,
/// and the last parsed line is kept, so memory holds one offset per line and one line.
///
/// The column count is the largest number of fields of the lines parsed so far, so columns without
/// a header name appear only after a line with such columns was parsed.
class CsvTableModel : public TableModel
{
    Q_OBJECT

public:
    /// Files with more lines are refused. Far above any real table, as are the other limits.
    static constexpr int MaximumLines = 1 << 20;
    static constexpr qint64 MaximumFileBytes = qint64(1) << 25; ///< Larger files are refused.
    static constexpr qint64 MaximumLineBytes = qint64(1) << 20; ///< Longer lines cannot be read.

    /// A model without a file. `headerRows` is the number of header lines at the file's start.
    explicit CsvTableModel(int headerRows);
    ~CsvTableModel() override;

    /// Opens the file and finds its lines. If the file does not exist, the model is unchanged;
    /// after any other failure it is empty. The file stays open.
    bool openFile(const QString& name) override;
    [[nodiscard]] int fileRowCount() const override;
    /// The largest number of fields of any line parsed so far.
    [[nodiscard]] int fileColumnCount() const override;
    [[nodiscard]] QString cell(int line, int column) override;

    /// Parses a line, counted with the headers. Returns false if there is no such line (logged) or
    /// it cannot be read (not logged); the line parsed before is then kept.
    bool parseRow(int line);

private:
    void reset();
    [[nodiscard]] bool findLineStarts();

    /// Start of each line, and the end of the last one.
    std::vector<qint64> m_lineOffsets;
    int m_lineCount = 0;
    int m_columnCount = 0;
    int m_parsedLine = -1;
    bool m_openResult = false;
    QStringList m_lineFields;
    QFile m_file;
};

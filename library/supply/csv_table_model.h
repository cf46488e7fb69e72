#pragma once

#include "supply/table_model.h"

#include <QFile>

#include <vector>

/// A table of comma-separated values that stays in its file.
///
/// Opening notes where each line starts; a line is parsed when a cell of it is asked for, and
/// the last parsed line is kept. Memory is one offset per line and that one line.
///
/// The column count is the largest number of fields seen in any line parsed so far, so columns
/// that the header line does not name show up only once a line that has them was parsed.
class CsvTableModel : public TableModel
{
    Q_OBJECT

public:
    /// Files of more lines or bytes than these are refused, far above any real table.
    static constexpr int maximumLines = 1 << 20;
    static constexpr qint64 maximumFileBytes = qint64(1) << 25; ///< See maximumLines.
    /// A longer line is refused when it is asked for.
    static constexpr qint64 maximumLineBytes = qint64(1) << 20;

    /// A model without a file. `headerRows` is the number of header lines at the file's start.
    explicit CsvTableModel(int headerRows);
    ~CsvTableModel() override;

    /// Opens the file and notes its lines. A file that does not exist leaves the model as it
    /// was; any other failure leaves it empty. The file stays open.
    bool openFile(const QString& name) override;
    [[nodiscard]] int fileRowCount() const override;
    /// The largest number of fields of any line parsed so far.
    [[nodiscard]] int fileColumnCount() const override;
    [[nodiscard]] QString cell(int line, int column) override;

    /// Makes a line, counted with the headers, the parsed one. False when there is no such line
    /// (logged) or it cannot be read (not logged); the line parsed before then stays.
    bool parseRow(int line);

private:
    void reset();
    [[nodiscard]] bool findLineStarts();

    /// Where each line starts, and where the last one ends.
    std::vector<qint64> m_lineOffsets;
    int m_lineCount = 0;
    int m_columnCount = 0;
    int m_parsedLine = -1;
    bool m_openResult = false;
    QStringList m_lineFields;
    QFile m_file;
};

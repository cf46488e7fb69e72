#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

/// A read-only table model over the lines of one file.
///
/// The first lines of the file may be headers, which are no rows of the model. What a line and
/// a cell are is the derived class's affair.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A model without a file. `headerRows` is the number of header lines at the file's start.
    explicit TableModel(int headerRows);

    /// Number of lines behind the headers, never below zero; 0 for a valid parent.
    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// As fileColumnCount(); 0 for a valid parent.
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The cell's text, its alignment (left and vertically centred), or nothing.
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    /// Row numbers from 1 at the side. On top the header names, or the letters of a spreadsheet
    /// (A to Z, AA ...) when the file has no header line.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    /// The file last opened with success.
    [[nodiscard]] virtual QString fileName() const;
    /// Opens a file and builds the header names: an empty name becomes the spreadsheet letters,
    /// a repeated one gets a number. Logs and returns false when it cannot be opened.
    virtual bool setFileName(const QString& name);
    /// Opens a file, without building header names. Logs and returns false on failure.
    virtual bool openFile(const QString& name) = 0;
    /// Number of all lines, the headers included.
    [[nodiscard]] virtual int fileRowCount() const = 0;
    [[nodiscard]] virtual int fileColumnCount() const = 0; ///< Number of columns known so far.
    /// Text of a cell, with line 0 the file's first. Empty outside the file.
    [[nodiscard]] virtual QString cell(int line, int column) = 0;

protected:
    void setHeaderNames(const QStringList& names) { m_headerNames = names; } ///< One a column.
    [[nodiscard]] const QStringList& headerNames() const
    {
        return m_headerNames;
    } ///< One a column.

private:
    [[nodiscard]] QStringList uniqueHeaderNames();

    int m_headerRows;
    QString m_fileName;
    QStringList m_headerNames;
};

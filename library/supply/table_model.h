#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

/// A read-only table model of the lines of a file.
///
/// The first lines of the file may be headers, which are not rows of the model. Derived classes
/// define lines and cells.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A model without a file. `headerRows` is the number of header lines at the file's start.
    explicit TableModel(int headerRows);

    /// Number of lines after the headers, at least 0; 0 for a valid parent.
    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The same as fileColumnCount(); 0 for a valid parent.
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The cell's text, its alignment (left and vertically centered), or nothing.
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    /// Vertically row numbers from 1; horizontally the header names, or the letters of a
    /// spreadsheet (A to Z, AA ...) if the file has no header line.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    /// The file that was last opened successfully.
    [[nodiscard]] virtual QString fileName() const;
    /// Opens a file and builds the header names: an empty name becomes the spreadsheet letters,
    /// a repeated one gets a number. If the file cannot be opened, logs it and returns false.
    virtual bool setFileName(const QString& name);
    /// Opens a file, without building header names. Logs and returns false on failure.
    virtual bool openFile(const QString& name) = 0;
    /// Number of all lines, including the headers.
    [[nodiscard]] virtual int fileRowCount() const = 0;
    [[nodiscard]] virtual int fileColumnCount() const = 0; ///< Number of columns known so far.
    /// Text of a cell; line 0 is the first of the file. Empty outside the file.
    [[nodiscard]] virtual QString cell(int line, int column) = 0;

protected:
    /// One name per column.
    void setHeaderNames(const QStringList& names) { m_headerNames = names; }
    /// One name per column.
    [[nodiscard]] const QStringList& headerNames() const { return m_headerNames; }

private:
    [[nodiscard]] QStringList uniqueHeaderNames();

    int m_headerRows;
    QString m_fileName;
    QStringList m_headerNames;
};

#pragma once

#include "window/sources/csv_mapping.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace window {

/// Connects a CSV file with a label: how the file is read, and which items show which columns.
class CsvDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @param source identifier of the file's data source; -1 if it is new
    CsvDialog(const workbench::Canvas& canvas, int source, QWidget* parent);

    /// Reads a file, which replaces the records, and proposes columns for the items.
    void readFile(const QString& fileName, const workbench::datasources::CsvOptions& options = {});
    /// Shows records that were read before.
    void showTable(const QString& fileName, const workbench::datasources::CsvOptions& options,
                   const workbench::datasources::CsvTable& table);

    [[nodiscard]] const QString& fileName() const { return m_fileName; }
    [[nodiscard]] workbench::datasources::CsvOptions options() const;
    [[nodiscard]] const workbench::datasources::CsvTable& table() const { return m_table; }
    /// The items with the columns that the user has selected.
    [[nodiscard]] QList<MappedItem> mapping() const;
    /// The column of a row of the list of items, for tests.
    void selectColumn(int row, const QString& column);
    /// User-visible; why the file cannot be connected; empty if it can.
    [[nodiscard]] QString problem() const;

private:
    [[nodiscard]] QWidget* makeFileForm();
    void readAgain();
    void chooseFile();
    void showOptions(const workbench::datasources::CsvOptions& options);
    void showItems();
    void showRecords();

    const workbench::Canvas& m_canvas;
    int m_source;
    QString m_fileName;
    workbench::datasources::CsvTable m_table;
    QList<MappedItem> m_items;

    QLabel* m_file;
    QComboBox* m_separator;
    QComboBox* m_encoding;
    QCheckBox* m_header;
    QTableWidget* m_itemTable;
    QTableWidget* m_preview;
    QLabel* m_note;
    QPushButton* m_connect = nullptr;
};

} // namespace window

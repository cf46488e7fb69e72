#include "window/sources/csv_dialog.h"

#include "window/properties/item_description.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace window {

namespace {

using workbench::datasources::CsvEncoding;
using workbench::datasources::CsvOptions;
using workbench::datasources::CsvTable;

constexpr qsizetype PreviewedRecords = 100;
constexpr int ItemColumn = 0;
constexpr int FieldColumn = 1;

QTableWidget* makePreview(const QString& name, QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->setAccessibleName(name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->setTabKeyNavigation(false);
    return table;
}

QTableWidgetItem* cell(const QString& text)
{
    auto* item = new QTableWidgetItem(text);
    item->setToolTip(text);
    return item;
}

} // namespace

CsvDialog::CsvDialog(const workbench::Canvas& canvas, int source, QWidget* parent)
    : QDialog(parent)
    , m_canvas(canvas)
    , m_source(source)
    , m_file(new QLabel(this))
    , m_separator(new QComboBox(this))
    , m_encoding(new QComboBox(this))
    , m_header(new QCheckBox(tr("The first line &names the columns"), this))
    , m_itemTable(makePreview(tr("Items and their columns"), this))
    , m_preview(makePreview(tr("Records of the file"), this))
    , m_note(new QLabel(this))
{
    setWindowTitle(tr("Connect CSV File"));
    resize(760, 600);
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_file->setTextFormat(Qt::PlainText);
    m_file->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_connect = buttons->addButton(tr("&Connect"), QDialogButtonBox::AcceptRole);
    m_connect->setDefault(true);
    auto* items = new QLabel(tr("&Items of the label"), this);
    items->setBuddy(m_itemTable);
    auto* records = new QLabel(tr("&Records"), this);
    records->setBuddy(m_preview);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeFileForm());
    layout->addWidget(items);
    layout->addWidget(m_itemTable, 2);
    layout->addWidget(records);
    layout->addWidget(m_preview, 2);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &CsvDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CsvDialog::reject);
}

QWidget* CsvDialog::makeFileForm()
{
    m_separator->addItem(tr("Detect"), QChar());
    m_separator->addItem(tr("Comma"), QChar(u','));
    m_separator->addItem(tr("Semicolon"), QChar(u';'));
    m_separator->addItem(tr("Tab"), QChar(u'\t'));
    m_separator->addItem(tr("Bar"), QChar(u'|'));
    m_separator->setAccessibleName(tr("Separator"));
    for (const QString& name : {tr("Detect"), tr("UTF-8"), tr("UTF-16"), tr("Windows-1252")}) {
        m_encoding->addItem(name); // in the order of CsvEncoding
    }
    m_encoding->setAccessibleName(tr("Encoding"));
    m_header->setChecked(true);
    auto* panel = new QWidget(this);
    auto* choose = new QPushButton(tr("C&hoose…"), panel);
    auto* again = new QPushButton(tr("Read &Again"), panel);
    auto* file = new QHBoxLayout;
    file->addWidget(m_file, 1);
    file->addWidget(choose);
    file->addWidget(again);
    auto* form = new QFormLayout(panel);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("File"), file);
    form->addRow(tr("&Separator"), m_separator);
    form->addRow(tr("&Encoding"), m_encoding);
    form->addRow(QString(), m_header);
    connect(choose, &QPushButton::clicked, this, &CsvDialog::chooseFile);
    connect(again, &QPushButton::clicked, this, &CsvDialog::readAgain);
    connect(m_separator, &QComboBox::activated, this, &CsvDialog::readAgain);
    connect(m_encoding, &QComboBox::activated, this, &CsvDialog::readAgain);
    connect(m_header, &QCheckBox::clicked, this, &CsvDialog::readAgain);
    return panel;
}

void CsvDialog::chooseFile()
{
    const QString fileName =
        QFileDialog::getOpenFileName(this, windowTitle(), QFileInfo(m_fileName).path(),
                                     tr("CSV files (*.csv *.tsv *.txt);;All files (*)"));
    if (!fileName.isEmpty()) {
        readFile(fileName);
    }
}

void CsvDialog::readAgain()
{
    readFile(m_fileName, options());
}

void CsvDialog::readFile(const QString& fileName, const CsvOptions& options)
{
    showTable(fileName, options, workbench::datasources::readCsv(fileName, options));
}

void CsvDialog::showTable(const QString& fileName, const CsvOptions& options, const CsvTable& table)
{
    m_fileName = fileName;
    m_table = table;
    m_file->setText(fileName);
    showOptions(options);
    showItems();
    showRecords();
    m_note->setText(table.error);
    m_connect->setEnabled(table.error.isEmpty());
}

void CsvDialog::showOptions(const CsvOptions& options)
{
    m_separator->setCurrentIndex(std::max(m_separator->findData(options.separator), 0));
    m_encoding->setCurrentIndex(static_cast<int>(options.encoding));
    m_header->setChecked(options.hasHeader);
}

CsvOptions CsvDialog::options() const
{
    return {m_separator->currentData().toChar(),
            static_cast<CsvEncoding>(m_encoding->currentIndex()), m_header->isChecked()};
}

void CsvDialog::showItems()
{
    m_items = proposedMapping(m_canvas, m_table, m_source);
    m_itemTable->setRowCount(0);
    m_itemTable->setColumnCount(2);
    m_itemTable->setHorizontalHeaderLabels({tr("Item"), tr("Shows column")});
    m_itemTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_itemTable->verticalHeader()->hide();
    m_itemTable->setRowCount(static_cast<int>(m_items.size()));
    for (int row = 0; row < m_itemTable->rowCount(); ++row) {
        const QString title = itemTitle(m_items.at(row).item->values());
        m_itemTable->setItem(row, ItemColumn, cell(title));
        auto* columns = new QComboBox(m_itemTable);
        columns->setAccessibleName(title);
        columns->addItem(tr("– not from this file –"), QString());
        for (const QString& field : std::as_const(m_table.fields)) {
            columns->addItem(field, field);
        }
        columns->setCurrentIndex(columns->findData(m_items.at(row).column));
        m_itemTable->setCellWidget(row, FieldColumn, columns);
    }
}

void CsvDialog::showRecords()
{
    m_preview->clear();
    m_preview->setColumnCount(static_cast<int>(m_table.fields.size()));
    m_preview->setHorizontalHeaderLabels(m_table.fields);
    m_preview->setRowCount(static_cast<int>(std::min(m_table.records(), PreviewedRecords)));
    for (int row = 0; row < m_preview->rowCount(); ++row) {
        for (int column = 0; column < m_preview->columnCount(); ++column) {
            m_preview->setItem(row, column,
                               cell(m_table.cells.at(row * m_table.fields.size() + column)));
        }
    }
    m_preview->resizeColumnsToContents();
}

QList<MappedItem> CsvDialog::mapping() const
{
    QList<MappedItem> mapping = m_items;
    for (int row = 0; row < m_itemTable->rowCount(); ++row) {
        const auto* columns = qobject_cast<QComboBox*>(m_itemTable->cellWidget(row, FieldColumn));
        mapping[row].column = columns->currentData().toString();
    }
    return mapping;
}

void CsvDialog::selectColumn(int row, const QString& column)
{
    auto* columns = qobject_cast<QComboBox*>(m_itemTable->cellWidget(row, FieldColumn));
    columns->setCurrentIndex(columns->findData(column));
}

QString CsvDialog::problem() const
{
    return m_note->text();
}

} // namespace window

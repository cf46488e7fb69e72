#pragma once

#include <QWidget>

class QLabel;
class QSpinBox;
class QTableView;
class QToolButton;

namespace workbench::datasources {
class DatasourceController;
}

namespace window {

class Actions;
class SourceTableModel;

/// The data sources of a label, and the record that it shows.
class SourcePanel final : public QWidget
{
    Q_OBJECT

public:
    /// The buttons trigger the record actions.
    explicit SourcePanel(const Actions& actions, QWidget* parent = nullptr);

    /// Shows the sources at a record counted from 0. Null empties the panel.
    void show(const workbench::datasources::DatasourceController* sources, qint64 record);
    [[nodiscard]] QTableView& table() { return *m_table; }
    /// The identifier of the selected source, else of the first one; -1 if there is none.
    [[nodiscard]] int currentSource() const;
    [[nodiscard]] QSpinBox& recordBox() { return *m_record; }

Q_SIGNALS:
    /// The user chose another record, counted from 0.
    void recordRequested(qint64 record);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeRecordBar(const Actions& actions);

    SourceTableModel* m_model;
    QTableView* m_table;
    QSpinBox* m_record;
    QLabel* m_count;
};

} // namespace window

#pragma once

#include "window/output/output_job.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace window {

class RecordChooser;

/// Asks what to export: the format, the file, the resolution of pictures, the records.
class ExportDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @param suggestedName name of the file; its suffix follows the format
    /// @param recordCount   how many records the label has
    /// @param shownRecord   the record that it shows, counted from 0
    ExportDialog(const QString& suggestedName, qint64 recordCount, qint64 shownRecord,
                 QWidget* parent);

    [[nodiscard]] OutputOrder order() const;

    // The fields of the dialog, for tests and callers that fill them in.
    void setFormat(OutputFormat format);
    void setFileName(const QString& fileName);
    void setDpi(int dpi);
    [[nodiscard]] RecordChooser& records() { return *m_records; }

    void accept() override;

private:
    void buildForm();
    void followFormat();
    void browse();
    void followInput();
    [[nodiscard]] OutputFormat format() const;
    [[nodiscard]] bool mayReplaceExisting();
    [[nodiscard]] bool askReplace(const QString& fileName);

    QComboBox* m_format;
    QLineEdit* m_fileName;
    QPushButton* m_browse;
    QSpinBox* m_dpi;
    RecordChooser* m_records;
    QLabel* m_note;
    QPushButton* m_export = nullptr;
};

} // namespace window

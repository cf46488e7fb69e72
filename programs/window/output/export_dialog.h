#pragma once

#include "window/output/output_job.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLabel;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace window {

class RecordChooser;

/// Asks what to export: the target, the file, the options of the target, the records.
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
    void setTarget(exporting::Target target);
    void setFileName(const QString& fileName);
    /// Sets an option of the current target; one that it does not have is ignored.
    void setOption(QLatin1String name, int value);
    [[nodiscard]] RecordChooser& records() { return *m_records; }

    void accept() override;

private:
    /// A field of the form for one option of a target.
    struct OptionField
    {
        const exporting::TargetOption* option;
        QWidget* editor;
    };

    void buildForm();
    void addOptionFields(QFormLayout& form);
    void followTarget();
    void browse();
    void followInput();
    [[nodiscard]] exporting::Target target() const;
    [[nodiscard]] bool mayReplaceExisting();
    [[nodiscard]] bool askReplace(const QString& fileName);

    QComboBox* m_target;
    QLineEdit* m_fileName;
    QPushButton* m_browse;
    QFormLayout* m_form;
    std::vector<OptionField> m_options;
    RecordChooser* m_records;
    QLabel* m_note;
    QPushButton* m_export = nullptr;
};

} // namespace window

#pragma once

#include "printing/print_batch.h"
#include "printing/print_queue.h"
#include "window/label/open_label.h"
#include "window/output/output_job.h"

#include <QDialog>
#include <QElapsedTimer>

#include <functional>
#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace window {

class PagePreview;
class RecordChooser;
class SheetEditor;

/// Asks what to print, on which paper and printer, and shows the pages. It proposes paper of the
/// label's own size, whatever paper the printer usually has.
class PrintDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @param label       the open label; shows the record again after each change
    /// @param shownRecord counted from 0
    PrintDialog(OpenLabel& label, qint64 shownRecord, const printing::Printers& printers,
                QWidget* parent);
    ~PrintDialog() override;

    /// The selected printer; empty for a PDF file.
    [[nodiscard]] QString printer() const;
    /// The labels to print; null if the input is wrong. Valid as long as this dialog.
    [[nodiscard]] std::shared_ptr<const printing::PrintBatch> batch() const { return m_batch; }

    /// Writes the documents to a folder. If that was stopped, there are none.
    [[nodiscard]] OutputReport write(const QString& folder, const Progress& progress,
                                     QList<printing::PrintDocument>& documents);

    /// Adds labels of files; shows the files that cannot be opened.
    void addLabels(const QStringList& fileNames);
    // Parts of the dialog, for tests.
    [[nodiscard]] SheetEditor& sheet() { return *m_sheet; }
    [[nodiscard]] RecordChooser& records() { return *m_records; }
    [[nodiscard]] QSpinBox& copies() { return *m_copies; }
    [[nodiscard]] QString problem() const;
    /// The preview stops after so many milliseconds: a sheet may have many large labels.
    void setPreviewLimit(qint64 milliseconds) { m_previewLimit = milliseconds; }
    [[nodiscard]] QString pageText() const;

    void accept() override;

private:
    void fillPrinters(const printing::Printers& printers);
    [[nodiscard]] QWidget* makeForm();
    [[nodiscard]] QWidget* makeLabelList();
    [[nodiscard]] QWidget* makePreview();
    void alignForms();
    void askForLabels();
    void removeLabel();
    void refresh();
    void showPage(qint64 page);
    void finishPreview(bool isComplete);
    [[nodiscard]] QString addAll(printing::PrintBatch& batch);
    [[nodiscard]] RecordRange recordsOf(const OpenLabel& label) const;

    OpenLabel& m_label;
    qint64 m_shownRecord;
    std::vector<std::unique_ptr<OpenLabel>> m_added;
    std::shared_ptr<const printing::PrintBatch> m_batch;
    qint64 m_page = 0;
    std::function<bool()> m_mayShow; ///< asked before each record is painted
    QElapsedTimer m_previewTime;
    qint64 m_previewLimit = 1000; ///< milliseconds

    QComboBox* m_printer;
    QListWidget* m_labels;
    QPushButton* m_remove = nullptr;
    RecordChooser* m_records;
    QSpinBox* m_copies;
    SheetEditor* m_sheet;
    PagePreview* m_preview;
    QLabel* m_note;
    QLabel* m_pageText;
    QToolButton* m_back = nullptr;
    QToolButton* m_forward = nullptr;
    QPushButton* m_print = nullptr;
};

} // namespace window

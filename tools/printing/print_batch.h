#pragma once

#include "printing/print_document.h"

#include <vector>

namespace printing {

/// A label of a batch, with the records to print of it.
struct BatchLabel
{
    QString name;
    QSizeF page; ///< points
    qint64 records = 0;
    ShowLabel show; ///< gets the number of a record within these
};

/// One PDF document for a printer.
struct PrintDocument
{
    QString file;
    QString media; ///< paper, as CUPS names it
    bool operator==(const PrintDocument&) const = default;
};

/// Labels for one command. Those for the same paper are one document, in which they share sheets;
/// a job of a printer has one paper.
class PrintBatch
{
public:
    /// The sheet for labels of a size in millimeters; none for paper of their own size.
    using SheetFor = std::function<std::optional<Sheet>(const QSizeF& label)>;

    /// @param layout its sheet is replaced by sheetFor
    PrintBatch(SheetFor sheetFor, PrintLayout layout);

    /// Adds a label. Returns the user-visible reason if it cannot be printed like this.
    [[nodiscard]] QString add(const BatchLabel& label);

    /// Number of printed labels, copies included.
    [[nodiscard]] qint64 labels() const;
    [[nodiscard]] qint64 pages() const;
    /// Size of a page in points; the number is in range.
    [[nodiscard]] QSizeF pageSize(qint64 page) const;
    /// The sheet of a page; null for paper of the label's size.
    [[nodiscard]] const Sheet* sheetOf(qint64 page) const;
    /// Paints a page; false if a label stopped.
    [[nodiscard]] bool paint(QPainter& painter, qint64 page) const;

    /// Writes the documents to a folder. Returns the user-visible error; empty on success, and if
    /// a label stopped.
    [[nodiscard]] QString write(const QString& folder, QList<PrintDocument>& written) const;

private:
    struct Part
    {
        BatchLabel label;
        qint64 start; ///< number of its first record in the document
    };
    struct Document
    {
        PrintLayout layout;
        QSizeF page; ///< points
        qint64 count = 0;
        std::vector<Part> parts;

        [[nodiscard]] bool accepts(const std::optional<Sheet>& sheet, const QSizeF& size) const;
        [[nodiscard]] LabelSeries series() const;
        [[nodiscard]] QString media() const;
    };

    /// The document of a page, which becomes the number within that document.
    [[nodiscard]] const Document& documentOf(qint64& page) const;

    SheetFor m_sheetFor;
    PrintLayout m_layout;
    std::vector<Document> m_documents;
};

} // namespace printing

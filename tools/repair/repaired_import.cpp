#include "repair/repaired_import.h"

#include "repair/apply_plan.h"

#include <QCoreApplication>
#include <QTemporaryFile>

#include <new>

namespace repair {

namespace {

workbench::ImportResult importPackage(const QByteArray& package)
{
    QTemporaryFile file;
    if (!file.open() || file.write(package) != package.size() || !file.flush()) {
        return {};
    }
    return workbench::importLabel(file.fileName(), ReaderKind::OpenDocument);
}

// What does not fit on the page is left to the next one. The heights of texts are known only now.
void endFullPage(DocumentRepair& document, const PageEnd& end, RepairedPage& repaired,
                 workbench::ImportResult& result)
{
    std::optional<RepairedPage> shorter = document.breakPage(end);
    if (!shorter) {
        return;
    }
    workbench::ImportResult again = importPackage(shorter->package);
    if (again.isImported()) {
        applyPlan(*again.canvas, shorter->plan);
        result = std::move(again);
        shorter->repairs = std::move(repaired.repairs);
        repaired = *std::move(shorter);
    }
}

RepairedImport importPage(DocumentRepair& document, int page)
{
    RepairedImport import;
    std::optional<RepairedPage> repaired = document.takePage(page);
    if (!repaired) {
        return import;
    }
    import.result = importPackage(repaired->package);
    if (import.result.isImported()) {
        if (const auto end = applyPlan(*import.result.canvas, repaired->plan)) {
            endFullPage(document, *end, *repaired, import.result);
        }
        import.repairs = std::move(repaired->repairs);
        import.package = std::move(repaired->package);
        import.pageCount = document.pageCount();
    }
    return import;
}

// The repaired document is larger than the original, which may still fit into memory.
RepairedImport importFirstPage(const QString& fileName)
{
    try {
        auto document = std::make_shared<DocumentRepair>(fileName);
        RepairedImport import = importPage(*document, 1);
        if (import.pageCount > 1) {
            import.document = std::move(document);
        }
        return import;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

RepairedImport importFurtherPage(DocumentRepair& document, int page)
{
    try {
        return importPage(document, page);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

RepairedImport importRepaired(const QString& fileName)
{
    RepairedImport import = importFirstPage(fileName);
    if (!import.isRepaired()) {
        import.result = workbench::importLabel(fileName, ReaderKind::OpenDocument);
        if (import.result.isImported()) {
            import.result.issues.append(
                {.text = QCoreApplication::translate(
                     "repair", "The document could not be repaired: it was imported as it is "
                               "written.")});
        }
    }
    return import;
}

} // namespace repair

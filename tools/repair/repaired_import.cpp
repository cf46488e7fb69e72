#include "repair/repaired_import.h"

#include "repair/apply_plan.h"

#include <QTemporaryFile>

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

} // namespace

RepairedImport importRepaired(const QString& fileName, int page)
{
    RepairedImport import;
    if (const auto repaired = repairPage(fileName, page)) {
        import.result = importPackage(repaired->package);
        if (import.result.isImported()) {
            applyPlan(*import.result.canvas, repaired->plan);
            import.repairs = repaired->repairs;
            import.pageCount = repaired->pageCount;
            import.isRepaired = true;
            return import;
        }
    }
    import.result = workbench::importLabel(fileName, ReaderKind::OpenDocument);
    return import;
}

} // namespace repair

// Repairs a document, imports the result, and paints it:
//
//     repaired_picture DOCUMENT PICTURE.png DPI [PAGE]
//
// Prints the repairs.

#include "repair/repaired_import.h"

#include "workbench/rendering/page_image.h"

#include <QApplication>
#include <QTextStream>

#include <algorithm>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        out << "Usage: repaired_picture DOCUMENT PICTURE.png DPI [PAGE]\n";
        return 2;
    }
    const int page = std::max(1, arguments.value(4).toInt());
    repair::RepairedImport import = repair::importRepaired(arguments[1]);
    if (page > 1 && import.document) {
        import = repair::importFurtherPage(*import.document, page);
    }
    if (!import.result.isImported()) {
        out << import.result.error << '\n';
        return 1;
    }
    out << (import.isRepaired() ? "repaired" : "as written") << ", page " << page << " of "
        << import.pageCount << '\n';
    for (const repair::Repair& each : import.repairs) {
        out << each.code << ": " << repair::repairText(each) << '\n';
    }
    const auto picture = workbench::renderPage(*import.result.canvas, arguments[3].toDouble());
    return picture.image.save(arguments[2]) ? 0 : 1;
}

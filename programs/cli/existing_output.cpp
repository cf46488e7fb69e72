#include "cli/existing_output.h"

#include "archive/publish.h"
#include "console/file_name.h"
#include "exporting/export_file.h"
#include "exporting/glabels_export.h"
#include "workbench/document/label_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace cli {
namespace {

using namespace Qt::StringLiterals;

struct ExistingOutputTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::ExistingOutput)
};

/// Longest records that are compared, in bytes.
constexpr qint64 LargestRecords = 256 * 1024 * 1024;

/// The marks of our outputs are near their beginnings: metadata in a picture before the pixels, a
/// description in a drawing, the producer in a document, the format in a report.
QByteArray headOf(const QString& fileName)
{
    constexpr qint64 headLength = 4096;
    const console::ReachablePath reachable(fileName);
    QFile file(reachable.path());
    return file.open(QIODevice::ReadOnly) ? file.read(headLength) : QByteArray();
}

bool isOurPicture(const QByteArray& head)
{
    // A text chunk: keyword, NUL, text. Without libpng, which prints errors itself.
    return head.startsWith("\x89PNG\r\n\x1A\n") &&
           (head.contains(QByteArray("tEXtSoftware\0LabelPort", 22)) ||
            head.contains(QByteArray("iTXtSoftware\0\0\0\0\0LabelPort", 26)));
}

bool isOurDrawingOrDocument(QByteArray head)
{
    head.replace('\0', ""); // texts of a document have two bytes for each letter
    return head.contains("<desc>LabelPort</desc>") ||
           (head.startsWith("%PDF-") && head.contains(exporting::SoftwareMark));
}

bool isOurPrinterFile(const QByteArray& head)
{
    return head.startsWith("^XA^FX" + QByteArray(exporting::SoftwareMark) + "^FS");
}

/// Records next to a label for gLabels, which has their checksum. Edited records are not ours.
bool areOurRecords(const QString& fileName)
{
    constexpr qsizetype suffixLength = 4;
    const console::ReachablePath reachable(fileName);
    QFile file(reachable.path());
    return file.open(QIODevice::ReadOnly) && file.size() <= LargestRecords &&
           exporting::areRecordsOf(headOf(fileName.chopped(suffixLength)), file.readAll());
}

bool isOurReport(const QByteArray& head)
{
    return head.contains("\"labelport-report\"") ||
           head.contains("<meta name=\"generator\" content=\"LabelPort\">");
}

} // namespace

bool isOurOutput(const QString& fileName)
{
    if (console::kindOf(fileName) != console::FileKind::File) {
        return false;
    }
    const QString suffix = QFileInfo(fileName).suffix();
    if (suffix == "label"_L1) {
        const console::ReachablePath reachable(fileName);
        return workbench::document::isUneditedImport(reachable.path());
    }
    if (suffix == "csv"_L1) {
        return areOurRecords(fileName);
    }
    const QByteArray head = headOf(fileName);
    // The content decides: --output may give any name.
    return isOurPicture(head) || isOurDrawingOrDocument(head) || isOurPrinterFile(head) ||
           exporting::isUneditedGlabels(head);
}

QString reportNameProblem(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix != "json"_L1 && suffix != "html"_L1) {
        return ExistingOutputTr::tr("A report is a file that ends in .json or .html, not \"%1\".")
            .arg(fileName);
    }
    return console::isUtf8FileName(fileName)
               ? QString()
               : ExistingOutputTr::tr("The name of a report must be valid UTF-8: \"%1\".")
                     .arg(fileName);
}

QString reportProblem(const QString& fileName, bool mayOverwrite)
{
    const QFileInfo info(fileName);
    const QFileInfo folder(info.path());
    if (info.isDir()) {
        return archive::folderInPlaceMessage(fileName);
    }
    if (!folder.isDir()) {
        return archive::cannotWrite(
            fileName, ExistingOutputTr::tr("the folder \"%1\" does not exist").arg(info.path()));
    }
    if (!folder.isWritable()) {
        return archive::cannotWrite(
            fileName, ExistingOutputTr::tr("the folder \"%1\" is not writable").arg(info.path()));
    }
    const bool isForeign =
        !mayOverwrite && info.exists() && info.size() > 0 && !isOurReport(headOf(fileName));
    return isForeign ? ExistingOutputTr::tr(
                           "\"%1\" exists and is not a report of labelport. Use --force to "
                           "overwrite it.")
                           .arg(fileName)
                     : QString();
}

} // namespace cli

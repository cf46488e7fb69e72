#include "workbench/import/file_check.h"

#include "limits/zip/zip_directory.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

struct FileCheckTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::FileCheck)
};

// In bytes. A manifest has a few hundred for each member.
constexpr qint64 LargestManifest = 4LL * 1024 * 1024;

} // namespace

QString fileAccessError(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (fileName.isEmpty()) {
        return FileCheckTr::tr("No file was named.");
    }
    if (!info.exists() && info.isSymLink()) {
        return FileCheckTr::tr("The link points to a file that does not exist.");
    }
    if (!info.exists()) {
        return FileCheckTr::tr("The file does not exist.");
    }
    if (info.isDir()) {
        return FileCheckTr::tr("This is a folder, not a file.");
    }
    if (!info.isFile()) {
        return FileCheckTr::tr("This is not a regular file.");
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return FileCheckTr::tr("The file cannot be opened: %1.").arg(file.errorString());
    }
    return file.size() == 0 ? FileCheckTr::tr("The file is empty.") : QString();
}

QString misnamedFileHint(const QString& fileName, ReaderKind reader)
{
    const std::optional<ReaderKind> content = readerOfContent(headOfFile(fileName));
    if (!content || *content == reader) {
        return {};
    }
    const QString hint =
        *content == ReaderKind::OpenDocument
            ? FileCheckTr::tr(
                  "The file is a zip package, as OpenDocument files are, but it was read as "
                  "\"%1\". If it is an OpenDocument file, rename it so that it ends in "
                  "\".odt\" or \".odg\", or use --reader %2.")
            : FileCheckTr::tr(
                  "The file is XML, but it was read as \"%1\". If it is an XML label, rename "
                  "it so that it ends in \".qmtx\", or use --reader %2.");
    return hint.arg(readerOf(reader).name, readerOf(*content).name);
}

bool isPasswordProtected(const QString& fileName)
{
    ziplimits::ZipDirectory package;
    if (package.open(fileName)) {
        return false;
    }
    const auto manifest = package.read(u"META-INF/manifest.xml"_s, LargestManifest);
    return manifest && manifest->contains("encryption-data");
}

QString passwordProtectedMessage()
{
    return FileCheckTr::tr(
        "The document is protected by a password. Open it in an office program, save "
        "it without a password, and import it again.");
}

} // namespace workbench

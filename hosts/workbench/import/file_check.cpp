#include "workbench/import/file_check.h"

#include "importer/reader_choice.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace workbench {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(workbench::FileCheck)
};

QByteArray headOf(const QString& fileName)
{
    constexpr qint64 headLength = 256;
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.read(headLength) : QByteArray();
}

bool looksLikeXml(QByteArray head)
{
    head.replace('\0', "");
    head.replace("\xEF\xBB\xBF", "").replace("\xFE\xFF", "").replace("\xFF\xFE", "");
    return head.trimmed().startsWith('<');
}

} // namespace

QString whyFileCannotBeRead(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (fileName.isEmpty()) {
        return Words::tr("No file was named.");
    }
    if (!info.exists()) {
        return Words::tr("There is no such file.");
    }
    if (info.isDir()) {
        return Words::tr("This is a folder, not a file.");
    }
    if (!info.isFile()) {
        return Words::tr("This is not a regular file.");
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return Words::tr("The file cannot be opened: %1.").arg(file.errorString());
    }
    return file.size() == 0 ? Words::tr("The file is empty.") : QString();
}

QString howNameMisleads(const QString& fileName)
{
    if (readerForFile(fileName) != ReaderKind::Tavrel) {
        return {};
    }
    const QByteArray head = headOf(fileName);
    if (head.startsWith("PK\x03\x04")) {
        return Words::tr(
            "The file is a zip package, as OpenDocument files are, but by its name it is a "
            "binary label. If it is an OpenDocument file, rename it so that its only dot "
            "is that of \".odt\" or \".odg\".");
    }
    if (looksLikeXml(head)) {
        return Words::tr(
            "The file is XML, but by its name it is a binary label. If it is an XML label, "
            "rename it so that its only dot is that of \".qmtx\".");
    }
    return {};
}

} // namespace workbench

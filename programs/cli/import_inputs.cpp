#include "cli/import_inputs.h"

#include "archive/journal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <cstdio>

namespace cli {
namespace {

QString standardInputError(const QString& reason)
{
    return QCoreApplication::translate("cli::ImportInputs",
                                       "Standard input cannot be kept for the import: %1.")
        .arg(reason);
}

/// Copies standard input; returns why it failed, else nothing.
QString spool(QTemporaryFile& file)
{
    QFile input;
    if (!file.open() || !input.open(stdin, QIODevice::ReadOnly)) {
        return standardInputError(file.errorString());
    }
    constexpr qint64 blockSize = 1024 * 1024;
    qint64 total = 0;
    for (QByteArray block = input.read(blockSize); !block.isEmpty();
         block = input.read(blockSize)) {
        total += block.size();
        if (file.write(block) != block.size()) {
            return standardInputError(file.errorString());
        }
        if (total > MaximumInputBytes) {
            return standardInputError(
                QCoreApplication::translate("cli::ImportInputs", "it is longer than any label"));
        }
    }
    return file.flush() ? QString() : standardInputError(file.errorString());
}

void addStandardInput(ImportInputs& inputs)
{
    inputs.standardInput = std::make_unique<QTemporaryFile>();
    inputs.error = spool(*inputs.standardInput);
    inputs.list.inputs.append({inputs.standardInput->fileName(), QStringLiteral("stdin"), {}});
}

/// The names of a list; `error` says why it could not be read.
QStringList namesListedIn(const ImportOptions& options, QString& error)
{
    QFile list(options.filesFrom);
    const bool isOpen = options.filesFrom == QLatin1String("-")
                            ? list.open(stdin, QIODevice::ReadOnly)
                            : list.open(QIODevice::ReadOnly);
    if (!isOpen) {
        error = QCoreApplication::translate("cli::ImportInputs",
                                            "The list of files %1 cannot be read: %2.")
                    .arg(options.filesFrom, list.errorString());
        return {};
    }
    return archive::readNames(list, options.isNullSeparated, error);
}

} // namespace

ImportInputs findInputs(const ImportOptions& options)
{
    ImportInputs inputs;
    archive::InputRequest request;
    request.arguments = options.files;
    const bool readsLabel = request.arguments.removeAll(QStringLiteral("-")) > 0;
    if (!options.filesFrom.isEmpty()) {
        request.arguments += namesListedIn(options, inputs.error);
    }
    request.suffixes = importedSuffixes();
    request.base = options.base;
    request.outputFolder = options.outputDir;
    // Saved labels are outputs and inputs: those that we made here are not imported again.
    const QSet<QString> saved =
        archive::Journal::outputsIn(options.outputDir, QStringLiteral(".label"));
    request.isOutput = [&saved](const QString& path) {
        return !saved.isEmpty() &&
               saved.contains(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    };
    if (inputs.error.isEmpty()) {
        inputs.list = archive::listInputs(request);
    }
    if (inputs.error.isEmpty() && readsLabel) {
        addStandardInput(inputs);
    }
    return inputs;
}

QStringList importedSuffixes()
{
    return {QStringLiteral("cnv"), QStringLiteral("roc"), QStringLiteral("qmtx"),
            QStringLiteral("odt"), QStringLiteral("odg"), QStringLiteral("label")};
}

} // namespace cli

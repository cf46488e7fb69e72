#include "cli/import_inputs.h"

#include "archive/journal.h"
#include "console/file_name.h"
#include "console/standard_input.h"
#include "importer/reader_choice.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

void addStandardInput(ImportInputs& inputs)
{
    inputs.standardInput = std::make_unique<QTemporaryFile>();
    inputs.error = console::copyStandardInput(*inputs.standardInput);
    inputs.list.inputs.append({inputs.standardInput->fileName(), u"stdin"_s, {}});
    inputs.list.readable.append(inputs.standardInput->fileName());
}

/// The names of a list; `error` has the reason if it could not be read.
QStringList namesListedIn(const ImportOptions& options, QString& error)
{
    const console::ReachablePath reachable(options.filesFrom);
    QFile list(reachable.path());
    const bool isOpen = options.filesFrom == "-"_L1 ? list.open(stdin, QIODevice::ReadOnly)
                                                    : list.open(QIODevice::ReadOnly);
    if (!isOpen) {
        error = QCoreApplication::translate("cli::ImportInputs",
                                            "Cannot read the list of files \"%1\": %2.")
                    .arg(options.filesFrom, list.errorString());
        return {};
    }
    bool isNoList = false;
    const QStringList names = archive::readNames(list, options.isNullSeparated, isNoList);
    if (isNoList) {
        error =
            QCoreApplication::translate("cli::ImportInputs", "\"%1\" is not a list of file names.")
                .arg(options.filesFrom);
    }
    return names;
}

} // namespace

ImportInputs findInputs(const ImportOptions& options)
{
    ImportInputs inputs;
    archive::InputRequest request;
    request.arguments = options.files;
    const bool readsLabel = request.arguments.removeAll(u"-"_s) > 0;
    if (!options.filesFrom.isEmpty()) {
        request.arguments += namesListedIn(options, inputs.error);
    }
    request.suffixes = importedSuffixes();
    request.base = options.base;
    request.outputFolder = options.outputDir;
    // Saved labels are both outputs and inputs: one that was made of another input of this command
    // is not imported again.
    request.sourcesOfOutputs = archive::Journal::sourcesOfOutputs(options.outputDir, u".label"_s);
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
    QStringList suffixes;
    for (const Reader& reader : Readers) {
        for (const QLatin1String suffix : reader.suffixes) {
            if (!suffix.isEmpty()) {
                suffixes.append(suffix);
            }
        }
    }
    return suffixes + QStringList{u"label"_s};
}

} // namespace cli

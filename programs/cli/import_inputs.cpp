#include "cli/import_inputs.h"

#include "archive/journal.h"
#include "archive/prepared_list.h"
#include "console/file_name.h"
#include "console/output.h"
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

struct ImportInputsTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::ImportInputs)
};

/// A prepared list is complete: its output names were chosen for its files.
QString problemOfPreparedList(const ImportOptions& options)
{
    const bool isAlone = options.files.isEmpty() && options.base.isEmpty() &&
                         options.shard.isEverything() && !options.isNullSeparated;
    return isAlone ? QString()
                   : ImportInputsTr::tr(
                         "\"%1\" was written by \"labelport list\": it excludes other files, "
                         "--base, --shard and --null.")
                         .arg(options.filesFrom);
}

void takePreparedList(const ImportOptions& options, QIODevice& device, ImportInputs& inputs)
{
    inputs.error = problemOfPreparedList(options);
    if (!inputs.error.isEmpty()) {
        return;
    }
    QString reason;
    archive::PreparedList list = archive::readPreparedList(device, reason);
    if (!reason.isEmpty()) {
        inputs.error = ImportInputsTr::tr("Cannot read the list of files \"%1\": %2.")
                           .arg(options.filesFrom, reason);
        return;
    }
    inputs.list.inputs = std::move(list.inputs);
    inputs.list.readable = std::move(list.readable);
    inputs.part = PreparedPart{list.shard, std::move(list.names)};
}

/// Adds the files of a list, if it is not a prepared one.
void addListed(const ImportOptions& options, archive::InputCollector& collector,
               ImportInputs& inputs)
{
    const console::ReachablePath reachable(options.filesFrom);
    QFile list(reachable.path());
    const bool isOpen = options.filesFrom == "-"_L1 ? list.open(stdin, QIODevice::ReadOnly)
                                                    : list.open(QIODevice::ReadOnly);
    if (!isOpen) {
        inputs.error = ImportInputsTr::tr("Cannot read the list of files \"%1\": %2.")
                           .arg(options.filesFrom, list.errorString());
    } else if (archive::isPreparedList(list.peek(archive::PreparedListStart))) {
        takePreparedList(options, list, inputs);
    } else if (!archive::readNames(list, options.isNullSeparated,
                                   [&](const QString& name) { collector.add(name); })) {
        inputs.error =
            ImportInputsTr::tr("\"%1\" is not a list of file names.").arg(options.filesFrom);
    }
}

} // namespace

ImportInputs findInputs(const ImportOptions& options)
{
    ImportInputs inputs;
    archive::InputRequest request;
    request.suffixes = importedSuffixes();
    request.base = options.base;
    request.outputFolder = options.outputDir;
    // Saved labels are both outputs and inputs: one that was made of another input of this command
    // is not imported again.
    request.outputSuffix = u".label"_s;
    request.visitOutputs = [&](const archive::OutputVisitor& visit) {
        archive::Journal::visitOutputs(options.outputDir, request.outputSuffix, visit);
    };
    archive::InputCollector collector(request);
    if (!options.filesFrom.isEmpty()) {
        addListed(options, collector, inputs);
    }
    if (!inputs.error.isEmpty() || inputs.part) {
        return inputs;
    }
    for (const QString& file : options.files) {
        if (file != "-"_L1) {
            collector.add(file);
        }
    }
    inputs.list = collector.take();
    if (options.files.contains("-"_L1)) {
        addStandardInput(inputs);
    }
    return inputs;
}

void printUnreadableFolders(const archive::InputList& list)
{
    for (const archive::UnreadableFolder& folder : list.unreadable) {
        console::printMessage(
            ImportInputsTr::tr("Cannot search folder \"%1\": %2.").arg(folder.path, folder.reason));
    }
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

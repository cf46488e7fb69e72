#include "window/sources/source_commands.h"

#include "window/sources/csv_dialog.h"
#include "window/sources/source_dialog.h"
#include "workbench/datasources/csv_source.h"
#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/system_source.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using workbench::datasources::CsvSource;
using workbench::datasources::CsvTable;
using workbench::datasources::SequenceSource;
using workbench::datasources::SourceValues;
using workbench::datasources::SystemSource;

struct SourceCommandsTr
{
    Q_DECLARE_TR_FUNCTIONS(window::SourceCommands)
};

constexpr int NoSource = -1;

int csvSourceOf(const QList<SourceValues>& sources)
{
    const auto found = std::find_if(sources.begin(), sources.end(), [](const SourceValues& source) {
        return source.kind == CsvSource::Kind;
    });
    return found == sources.end() ? NoSource : found->id;
}

int nextId(const QList<SourceValues>& sources)
{
    int last = 0;
    for (const SourceValues& source : sources) {
        last = std::max(last, source.id);
    }
    return last + 1;
}

void replaceSource(QList<SourceValues>& sources, const SourceValues& changed)
{
    const auto found =
        std::find_if(sources.begin(), sources.end(),
                     [&changed](const SourceValues& source) { return source.id == changed.id; });
    if (found == sources.end()) {
        sources.append(changed);
    } else {
        *found = changed;
    }
}

// Items that change: those with another column, and those that leave the file.
QList<Binding> bindingsFor(const QList<MappedItem>& mapping, int id)
{
    QList<Binding> bindings;
    for (const MappedItem& mapped : mapping) {
        const workbench::DatasourceValues now = mapped.item->datasource();
        workbench::DatasourceValues wanted = now;
        if (!mapped.column.isEmpty()) {
            wanted = {id, {mapped.column}};
        } else if (now.id == id) {
            wanted = {};
        }
        if (wanted != now) {
            bindings.append({mapped.item, wanted});
        }
    }
    return bindings;
}

std::unique_ptr<QUndoCommand> runCsvDialog(CsvDialog& dialog, OpenLabel& label,
                                           const ChangeSources::Changed& changed)
{
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    QList<SourceValues> sources = label.sources->values();
    const int existing = csvSourceOf(sources);
    const int id = existing == NoSource ? nextId(sources) : existing;
    replaceSource(sources,
                  {id,
                   CsvSource::Kind.toString(),
                   CsvSource::propertiesOf(dialog.fileName(), dialog.options(), dialog.table()),
                   {}});
    return std::make_unique<ChangeSources>(SourceCommandsTr::tr("Connect CSV File"), label, sources,
                                           bindingsFor(dialog.mapping(), id), changed);
}

std::unique_ptr<QUndoCommand> editCsv(OpenLabel& label, const SourceValues& source,
                                      const ChangeSources::Changed& changed, QWidget* window)
{
    CsvTable table;
    table.fields = source.properties.value(u"Fields"_s).toStringList();
    table.cells = source.properties.value(u"Cells"_s).toStringList();
    CsvDialog dialog(*label.canvas, source.id, window);
    dialog.showTable(CsvSource::fileOf(source.properties), CsvSource::optionsOf(source.properties),
                     table);
    return runCsvDialog(dialog, label, changed);
}

// Of a new data source, as a user is likely to want it.
QVariantMap firstProperties(const QString& kind)
{
    if (kind == SequenceSource::Kind) {
        return {{u"Start"_s, 1}, {u"End"_s, 100}, {u"Step"_s, 1}};
    }
    if (kind == SystemSource::Kind) {
        return {{u"DateFormat"_s, u"yyyy-MM-dd"_s}, {u"TimeFormat"_s, QString()}};
    }
    return {};
}

// Of texts and barcodes that do not show this data source yet.
QList<Binding> bindingsTo(int id, const QList<workbench::CanvasItem*>& items)
{
    QList<Binding> bindings;
    for (workbench::CanvasItem* item : items) {
        const workbench::ItemValues values = item->values();
        if (values.datasource && values.datasource->id != id && !values.placement.readOnly) {
            bindings.append({item, {id, {}}});
        }
    }
    return bindings;
}

} // namespace

std::unique_ptr<QUndoCommand> connectCsv(OpenLabel& label, const ChangeSources::Changed& changed,
                                         QWidget* window)
{
    const QString folder =
        QFileInfo(label.fileName.isEmpty() ? label.suggestedName : label.fileName).path();
    const QString fileName = QFileDialog::getOpenFileName(
        window, SourceCommandsTr::tr("Connect CSV File"), folder,
        SourceCommandsTr::tr("CSV files (*.csv *.tsv *.txt);;All files (*)"));
    if (fileName.isEmpty()) {
        return nullptr;
    }
    CsvDialog dialog(*label.canvas, csvSourceOf(label.sources->values()), window);
    dialog.readFile(QFileInfo(fileName).absoluteFilePath());
    return runCsvDialog(dialog, label, changed);
}

std::unique_ptr<QUndoCommand> editSource(OpenLabel& label, int id,
                                         const ChangeSources::Changed& changed, QWidget* window)
{
    QList<SourceValues> sources = label.sources->values();
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [id](const SourceValues& source) { return source.id == id; });
    if (found == sources.end()) {
        return nullptr;
    }
    if (found->kind == CsvSource::Kind) {
        return editCsv(label, *found, changed, window);
    }
    SourceDialog dialog(*found, window);
    if (!SourceDialog::canEdit(found->kind) || dialog.exec() != QDialog::Accepted ||
        dialog.source() == *found) {
        return nullptr;
    }
    replaceSource(sources, dialog.source());
    return std::make_unique<ChangeSources>(SourceCommandsTr::tr("Edit Data Source"), label, sources,
                                           QList<Binding>(), changed);
}

std::unique_ptr<QUndoCommand> addSource(OpenLabel& label, const QString& kind,
                                        const QList<workbench::CanvasItem*>& items,
                                        const ChangeSources::Changed& changed, QWidget* window)
{
    QList<SourceValues> sources = label.sources->values();
    const int id = nextId(sources);
    SourceDialog dialog({id, kind, firstProperties(kind), {}}, window);
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    sources.append(dialog.source());
    return std::make_unique<ChangeSources>(SourceCommandsTr::tr("Add Data Source"), label, sources,
                                           bindingsTo(id, items), changed);
}

std::unique_ptr<QUndoCommand> showSource(OpenLabel& label, int id,
                                         const QList<workbench::CanvasItem*>& items,
                                         const ChangeSources::Changed& changed, QWidget* window)
{
    const QList<SourceValues> sources = label.sources->values();
    if (csvSourceOf(sources) == id) {
        return editSource(label, id, changed, window);
    }
    const QList<Binding> bindings = bindingsTo(id, items);
    if (bindings.isEmpty() || label.sources->source(id) == nullptr) {
        return nullptr;
    }
    return std::make_unique<ChangeSources>(SourceCommandsTr::tr("Show Data Source"), label, sources,
                                           bindings, changed);
}

} // namespace window

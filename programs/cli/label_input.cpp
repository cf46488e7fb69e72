#include "cli/label_input.h"

#include "workbench/document/label_file.h"

#include <QFileInfo>

namespace cli {
namespace {

using namespace Qt::StringLiterals;

bool isSavedLabel(const QByteArray& head)
{
    return head.trimmed().startsWith('{') && head.contains("\"labelport-label\"");
}

std::optional<ReaderKind> selectedReader(const QString& name, const QString& path)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    const bool isSaved =
        suffix == "label"_L1 || (!readerOfSuffix(suffix) && isSavedLabel(headOfFile(path)));
    return isSaved ? std::nullopt : std::optional(readerByNameOrContent(name, path));
}

OpenedLabel openSaved(const QString& path)
{
    OpenedLabel label;
    auto canvas = std::make_unique<workbench::Canvas>();
    auto datasources = std::make_unique<workbench::datasources::DatasourceController>();
    label.error = workbench::document::openLabel(path, *canvas, *datasources);
    if (label.error.isEmpty()) {
        label.canvas = std::move(canvas);
        label.datasources = std::move(datasources);
    }
    return label;
}

OpenedLabel opened(repair::RepairedImport import)
{
    OpenedLabel label{std::move(import.result)};
    label.repairs = std::move(import.repairs);
    label.package = std::move(import.package);
    label.pageCount = import.pageCount;
    label.document = std::move(import.document);
    return label;
}

} // namespace

LabelInput::LabelInput(const QString& file, const QString& name, std::optional<ReaderKind> reader)
    : m_reachable(file)
    , m_reader(reader ? reader : selectedReader(name, m_reachable.path()))
{}

OpenedLabel openLabel(const LabelInput& input, bool asWritten)
{
    if (!input.reader()) {
        return openSaved(input.path());
    }
    if (*input.reader() == ReaderKind::OpenDocument && !asWritten) {
        return opened(repair::importRepaired(input.path()));
    }
    return OpenedLabel{workbench::importLabel(input.path(), *input.reader())};
}

OpenedLabel openFurtherPage(repair::DocumentRepair& document, int page)
{
    return opened(repair::importFurtherPage(document, page));
}

} // namespace cli

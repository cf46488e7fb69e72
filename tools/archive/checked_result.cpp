#include "archive/checked_result.h"

#include "console/file_name.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace archive {
namespace {

using namespace Qt::StringLiterals;

/// "asset.png" or, for a record of a series, "asset-0007.png"; for a further page, "asset-2.png" or
/// "asset-page-2.png".
bool isPlanned(const QString& path, const QString& planned)
{
    if (path == planned) {
        return true;
    }
    const QString tail = u'.' + QFileInfo(planned).suffix();
    const QString head = planned.chopped(tail.size()) + u'-';
    if (!path.startsWith(head) || !path.endsWith(tail) ||
        path.size() <= head.size() + tail.size()) {
        return false;
    }
    QString number = path.mid(head.size(), path.size() - head.size() - tail.size());
    number.remove("page-"_L1).remove(u'-');
    return !number.isEmpty() && std::all_of(number.begin(), number.end(), [](QChar digit) {
        return digit >= u'0' && digit <= u'9';
    });
}

/// A label for gLabels may have a table of records next to it: "asset.glabels.csv".
bool isPlanned(const QString& path, const PlannedFile& planned)
{
    constexpr QLatin1String tableSuffix(".csv");
    const bool isTable = planned.target == "glabels"_L1 && path.endsWith(tableSuffix);
    return isPlanned(path, planned.path) ||
           (isTable && isPlanned(path.chopped(tableSuffix.size()), planned.path));
}

} // namespace

bool isFileIn(const QString& folder, const QString& path)
{
    const QString name = path.section(u'/', -1);
    std::error_code error;
    // The file itself, not the target of a link, which can be anywhere.
    const auto status = std::filesystem::symlink_status(console::systemPath(path), error);
    return !name.isEmpty() && name != ".."_L1 && path == QDir(folder).filePath(name) &&
           status.type() == std::filesystem::file_type::regular;
}

bool checkFiles(FileResult& result, const QString& staging, const QList<PlannedFile>& outputs)
{
    for (StagedFile& file : result.files) {
        const QString path = file.output.path;
        const bool isExpected =
            std::any_of(outputs.begin(), outputs.end(),
                        [&](const PlannedFile& planned) { return isPlanned(path, planned); });
        const std::optional<FileStamp> stamp =
            isExpected && isFileIn(staging, file.staged) ? stampOf(file.staged) : std::nullopt;
        if (!stamp) {
            return false;
        }
        file.output = *stamp;
        file.output.path = path;
    }
    return true;
}

} // namespace archive

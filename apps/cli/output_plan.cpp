#include "apps/cli/output_plan.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace cli {
namespace {

QHash<QString, int> countOutputs(const QList<PlannedOutput>& plan)
{
    QHash<QString, int> uses;
    for (const PlannedOutput& entry : plan) {
        ++uses[entry.output];
    }
    return uses;
}

} // namespace

QList<PlannedOutput> planOutputs(const QStringList& inputs, const QString& folder,
                                 const QString& suffix)
{
    const QDir directory(folder);
    const auto pathOf = [&](const QString& stem) {
        return QDir::cleanPath(directory.filePath(stem + QLatin1Char('.') + suffix));
    };

    QList<PlannedOutput> plan;
    for (const QString& input : inputs) {
        plan.append({input, pathOf(QFileInfo(input).completeBaseName()), false});
    }
    const QHash<QString, int> shortNames = countOutputs(plan);
    for (PlannedOutput& entry : plan) {
        if (shortNames.value(entry.output) > 1) {
            entry.output = pathOf(QFileInfo(entry.input).fileName());
        }
    }
    const QHash<QString, int> finalNames = countOutputs(plan);
    for (PlannedOutput& entry : plan) {
        entry.contested = finalNames.value(entry.output) > 1;
    }
    return plan;
}

} // namespace cli

#include "cli/targets.h"

#include <array>

namespace cli {
namespace {

struct Row
{
    Target target;
    const char* name;
};

constexpr std::array Rows{
    Row{Target::Png, "png"},
    Row{Target::Svg, "svg"},
    Row{Target::Pdf, "pdf"},
    Row{Target::Label, "label"},
};

} // namespace

QString nameOf(Target target)
{
    for (const Row& row : Rows) {
        if (row.target == target) {
            return QLatin1String(row.name);
        }
    }
    return {};
}

std::optional<Target> targetOfName(const QString& name)
{
    for (const Row& row : Rows) {
        if (name == QLatin1String(row.name)) {
            return row.target;
        }
    }
    return std::nullopt;
}

QStringList targetNames()
{
    QStringList names;
    for (const Row& row : Rows) {
        names.append(QLatin1String(row.name));
    }
    return names;
}

} // namespace cli

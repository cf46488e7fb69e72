#include "printing/sheet_presets.h"

#include "printing/sheet_json.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace printing {
using namespace Qt::StringLiterals;
namespace {

QList<Sheet> readPresets()
{
    QFile file(u":/printing/sheets.json"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<Sheet> sheets;
    const QJsonObject content = QJsonDocument::fromJson(file.readAll()).object();
    for (const QJsonValue& row : content.value("sheets"_L1).toArray()) {
        if (const std::optional<Sheet> sheet = sheetFromJson(row.toObject())) {
            sheets.append(*sheet);
        }
    }
    return sheets;
}

} // namespace

const QList<Sheet>& sheetPresets()
{
    static const QList<Sheet> sheets = readPresets();
    return sheets;
}

std::optional<Sheet> sheetOfName(const QString& name, const QSizeF& label)
{
    for (const QString& paper : paperNames()) {
        if (paper.compare(name, Qt::CaseInsensitive) == 0) {
            return plainSheet(paper, label);
        }
    }
    for (const Sheet& sheet : sheetPresets()) {
        if (sheet.names.contains(name, Qt::CaseInsensitive)) {
            return sheet;
        }
    }
    return std::nullopt;
}

QStringList sheetNames()
{
    QStringList names = paperNames();
    for (const Sheet& sheet : sheetPresets()) {
        names.append(sheet.name());
    }
    return names;
}

} // namespace printing

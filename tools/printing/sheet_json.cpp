#include "printing/sheet_json.h"

#include <QJsonArray>

#include <utility>

namespace printing {
using namespace Qt::StringLiterals;
namespace {

QJsonArray pairOf(double first, double second)
{
    return {first, second};
}

/// Two numbers; not finite if there are none, which no sheet accepts.
std::pair<double, double> pairFrom(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    return {array.at(0).toDouble(qQNaN()), array.at(1).toDouble(qQNaN())};
}

QSizeF sizeFrom(const QJsonValue& value)
{
    const auto [width, height] = pairFrom(value);
    return {width, height};
}

} // namespace

QJsonObject toJson(const Sheet& sheet)
{
    return {{u"names"_s, QJsonArray::fromStringList(sheet.names)},
            {u"paper"_s, sheet.paper},
            {u"size"_s, pairOf(sheet.paperSize.width(), sheet.paperSize.height())},
            {u"grid"_s, QJsonArray{sheet.columns, sheet.rows}},
            {u"label"_s, pairOf(sheet.label.width(), sheet.label.height())},
            {u"start"_s, pairOf(sheet.start.x(), sheet.start.y())},
            {u"pitch"_s, pairOf(sheet.pitch.width(), sheet.pitch.height())}};
}

std::optional<Sheet> sheetFromJson(const QJsonObject& object)
{
    Sheet sheet;
    for (const QJsonValue& name : object.value("names"_L1).toArray()) {
        sheet.names.append(name.toString());
    }
    sheet.paper = object.value("paper"_L1).toString();
    sheet.paperSize =
        object.contains("size"_L1) ? sizeFrom(object.value("size"_L1)) : paperSizeOf(sheet.paper);
    const QJsonArray grid = object.value("grid"_L1).toArray();
    sheet.columns = grid.at(0).toInt();
    sheet.rows = grid.at(1).toInt();
    sheet.label = sizeFrom(object.value("label"_L1));
    const auto [left, top] = pairFrom(object.value("start"_L1));
    sheet.start = {left, top};
    sheet.pitch = sizeFrom(object.value("pitch"_L1));
    return problemOf(sheet).isEmpty() ? std::optional(sheet) : std::nullopt;
}

} // namespace printing

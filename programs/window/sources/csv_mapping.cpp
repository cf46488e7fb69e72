#include "window/sources/csv_mapping.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace window {

using namespace Qt::Literals::StringLiterals;

namespace {

using workbench::datasources::CsvTable;

// Records in which contents are looked up.
constexpr qsizetype SearchedRecords = 10'000;

QString contentOf(const workbench::ItemValues& values)
{
    if (values.barcode) {
        return values.barcode->content.simplified();
    }
    return values.text ? values.text->text.simplified() : QString();
}

/// Columns by the texts that suggest them.
class Suggestions
{
public:
    explicit Suggestions(const CsvTable& table)
    {
        for (const QString& field : table.fields) {
            m_names.insert(field.toCaseFolded(), field);
        }
        const qsizetype cells = std::min(table.cells.size(), SearchedRecords * table.fields.size());
        for (qsizetype cell = 0; cell < cells; ++cell) {
            const QString content = table.cells.at(cell).simplified();
            if (!content.isEmpty() && !m_contents.contains(content)) {
                m_contents.insert(content, table.fields.at(cell % table.fields.size()));
            }
        }
    }

    /// Empty if nothing suggests a column.
    [[nodiscard]] QString columnFor(const QString& content) const
    {
        static const QRegularExpression marks(u"^[<\\[{%«$]+\\s*(.*?)\\s*[>\\]}%»$]+$"_s);
        const QRegularExpressionMatch placeholder = marks.match(content);
        const QString name = placeholder.hasMatch() ? placeholder.captured(1) : content;
        const QString column = m_names.value(name.toCaseFolded());
        return column.isEmpty() ? m_contents.value(content) : column;
    }

private:
    QHash<QString, QString> m_names;
    QHash<QString, QString> m_contents;
};

bool canShowColumn(const workbench::ItemValues& values)
{
    return values.datasource && (values.text || values.barcode);
}

} // namespace

QList<MappedItem> proposedMapping(const workbench::Canvas& canvas, const CsvTable& table,
                                  int source)
{
    const Suggestions suggestions(table);
    QList<MappedItem> mapping;
    for (workbench::CanvasItem* item : canvas.items()) {
        const workbench::ItemValues values = item->values();
        if (!canShowColumn(values)) {
            continue;
        }
        QString column;
        if (values.datasource->id >= 0) {
            // Items of another source, a counter for example, are not proposed.
            const QString bound = values.datasource->fields.value(0);
            column =
                values.datasource->id == source && table.fields.contains(bound) ? bound : QString();
        } else {
            column = suggestions.columnFor(contentOf(values));
        }
        mapping.append({item, column});
    }
    return mapping;
}

} // namespace window

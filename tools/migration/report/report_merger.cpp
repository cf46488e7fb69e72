#include "migration/report/report_merger.h"

#include "migration/report/report_lines.h"
#include "migration/report/report_writer.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace migration {

namespace {

/// Where the report of one file is.
struct Place
{
    QString file;
    qsizetype input = 0;
    qint64 offset = 0;
};

struct ReportMergerTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::MergeReports)
};

// Appends the places of all files of a report; returns why that is not possible.
QString findPlaces(const QString& fileName, qsizetype input, std::vector<Place>& places)
{
    ReportLineReader reader(fileName);
    while (const auto line = reader.next()) {
        places.push_back({line->report.file, input, line->offset});
    }
    return reader.error();
}

QString fileTwice(const std::vector<Place>& places)
{
    const auto twice =
        std::adjacent_find(places.begin(), places.end(),
                           [](const Place& a, const Place& b) { return a.file == b.file; });
    return twice == places.end()
               ? QString()
               : ReportMergerTr::tr("The reports contain the file \"%1\" more than once.")
                     .arg(twice->file);
}

} // namespace

QString mergeReports(const QStringList& inputs, const QString& output)
{
    std::vector<Place> places;
    for (qsizetype input = 0; input < inputs.size(); ++input) {
        const QString error = findPlaces(inputs.at(input), input, places);
        if (!error.isEmpty()) {
            return error;
        }
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const Place& a, const Place& b) { return a.file < b.file; });
    const QString twice = fileTwice(places);
    if (!twice.isEmpty()) {
        return twice;
    }
    ReportWriter writer(output);
    for (const Place& place : places) {
        const auto report = ReportLineReader::reportAt(inputs.at(place.input), place.offset);
        if (!report) {
            return ReportMergerTr::tr("The report \"%1\" has changed during the merge.")
                .arg(inputs.at(place.input));
        }
        writer.add(*report);
    }
    return writer.finish();
}

} // namespace migration

#include "migration/report/report_merger.h"

#include "migration/report/report_reader.h"
#include "migration/report/report_writer.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <utility>
#include <vector>

namespace migration {

namespace {

/// The place of one file's report.
struct Place
{
    QString file;
    qsizetype input = 0;
    ReportReader::Entry entry;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::MergeReports", text);
}

std::optional<FileReport> reportAt(const QString& fileName, const ReportReader::Entry& entry)
{
    const QByteArray bytes = ReportReader::bytesOf(fileName, entry);
    return fileReportFromJson(QJsonDocument::fromJson(bytes).object());
}

// Appends the places of all files of a report; gives why that cannot be done.
QString findPlaces(const QString& fileName, qsizetype input, std::vector<Place>& places)
{
    ReportReader finder(fileName);
    while (const auto entry = finder.next()) {
        const auto report = reportAt(fileName, *entry);
        if (!report) {
            return tr("The report %1 has an entry that describes no file.").arg(fileName);
        }
        places.push_back({report->file, input, *entry});
    }
    return finder.error();
}

QString fileTwice(const std::vector<Place>& places)
{
    const auto twice =
        std::adjacent_find(places.begin(), places.end(),
                           [](const Place& a, const Place& b) { return a.file == b.file; });
    return twice == places.end()
               ? QString()
               : tr("The file %1 stands in the reports more than once.").arg(twice->file);
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
        const auto report = reportAt(inputs.at(place.input), place.entry);
        if (!report) {
            return tr("The report %1 has changed meanwhile.").arg(inputs.at(place.input));
        }
        writer.add(*report);
    }
    return writer.finish();
}

} // namespace migration

#include "migration/report/report_lines.h"

#include "limits/json/tree_size.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct ReportLinesTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::ReportLines)
};

// Empty for a line that exceeds a limit or is not a JSON object.
QJsonObject objectOf(QFile& file)
{
    return QJsonDocument::fromJson(readReportLine(file)).object();
}

bool isFirstLine(const QJsonObject& line)
{
    return line[u"format"_s].toString() == QLatin1String(ReportFormat) &&
           line[u"version"_s].toInt() == ReportVersion;
}

} // namespace

QByteArray readReportLine(QIODevice& report)
{
    // One byte more than the limit; Qt keeps another for a terminating zero.
    const QByteArray line = report.readLine(MaximumLine + 2);
    const bool isTooLarge =
        line.size() > MaximumLine || jsonlimits::isLargerThan(line, MaximumLineTree);
    return isTooLarge ? QByteArray() : line;
}

ReportLineReader::ReportLineReader(const QString& fileName)
    : m_file(fileName)
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        m_error = ReportLinesTr::tr("Cannot read \"%1\": %2.").arg(fileName, m_file.errorString());
    }
}

void ReportLineReader::fail(const QString& reason)
{
    m_error = ReportLinesTr::tr("\"%1\" is not a report of LabelPort: %2.")
                  .arg(m_file.fileName(), reason);
}

std::optional<ReportLineReader::Line> ReportLineReader::next()
{
    while (m_error.isEmpty() && !m_file.atEnd()) {
        if (auto line = readLine()) {
            return line;
        }
    }
    if (m_error.isEmpty() && m_lines == 0) {
        fail(ReportLinesTr::tr("it is empty"));
    } else if (m_error.isEmpty() && m_isOpen) {
        fail(ReportLinesTr::tr("its end is missing"));
    }
    return std::nullopt;
}

// Nothing for a line that is not about a file.
std::optional<ReportLineReader::Line> ReportLineReader::readLine()
{
    const qint64 offset = m_file.pos();
    const QJsonObject line = objectOf(m_file);
    ++m_lines;
    if (isFirstLine(line)) {
        m_isOpen = true;
        return std::nullopt;
    }
    if (!m_isOpen) {
        fail(ReportLinesTr::tr("line %1 does not name the format, or an unsupported version of it")
                 .arg(m_lines));
        return std::nullopt;
    }
    if (line.contains(u"totals"_s)) {
        m_isOpen = false;
        return std::nullopt;
    }
    auto report = fileReportFromJson(line);
    if (!report) {
        fail(ReportLinesTr::tr("line %1 does not describe a file").arg(m_lines));
        return std::nullopt;
    }
    return Line{offset, *report};
}

std::optional<FileReport> ReportLineReader::reportAt(const QString& fileName, qint64 offset)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(offset)) {
        return std::nullopt;
    }
    return fileReportFromJson(objectOf(file));
}

} // namespace migration

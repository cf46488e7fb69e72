#include "window/label/import_process.h"

#include "migration/report/report_lines.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString& programOfTests()
{
    static QString program;
    return program;
}

QString program()
{
    return !programOfTests().isEmpty()
               ? programOfTests()
               : QDir(QCoreApplication::applicationDirPath()).filePath(u"labelport"_s);
}

} // namespace

ImportProcess::ImportProcess(QObject* parent)
    : QObject(parent)
{
    connect(&m_process, &QProcess::finished, this, &ImportProcess::noteEnd);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            end({{},
                 tr("Cannot start the program “%1”: %2.")
                     .arg(m_process.program(), m_process.errorString())});
        }
    });
}

ImportProcess::~ImportProcess()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        // Its workers end with it; its outputs are removed with the folder.
        m_process.kill();
        m_process.waitForFinished();
    }
}

void ImportProcess::setProgram(const QString& program)
{
    programOfTests() = program;
}

QString ImportProcess::reportName() const
{
    return m_folder.filePath(u"report.json"_s);
}

void ImportProcess::start(const QStringList& files, Reading reading)
{
    if (!m_folder.isValid()) {
        return end({{}, tr("Cannot create a temporary folder: %1.").arg(m_folder.errorString())});
    }
    QStringList arguments{u"import"_s,   u"--quiet"_s,      u"--to"_s,
                          u"label"_s,    u"--output-dir"_s, m_folder.filePath(u"labels"_s),
                          u"--report"_s, reportName()};
    if (reading == Reading::AsWritten) {
        arguments.append(u"--as-written"_s);
    }
    arguments += u"--"_s;
    arguments += files;
    m_process.start(program(), arguments, QIODevice::ReadOnly);
}

ImportedFiles ImportProcess::run(const QStringList& files, Reading reading)
{
    ImportedFiles result;
    QEventLoop loop;
    connect(this, &ImportProcess::ended, &loop, [&](const ImportedFiles& imported) {
        result = imported;
        loop.quit();
    });
    start(files, reading);
    if (!m_isEnded) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    return result;
}

void ImportProcess::noteEnd()
{
    end(readReports());
}

void ImportProcess::end(const ImportedFiles& files)
{
    if (!m_isEnded) {
        m_isEnded = true;
        Q_EMIT ended(files);
    }
}

ImportedFiles ImportProcess::readReports()
{
    if (!QFile::exists(reportName())) {
        // The program could not start; the last line of its messages has the reason.
        const QString messages = QString::fromLocal8Bit(m_process.readAllStandardError());
        const QString last = messages.trimmed().section(u'\n', -1);
        return {{}, last.isEmpty() ? tr("The import ended without a result.") : last};
    }
    ImportedFiles files;
    migration::ReportLineReader reader(reportName());
    while (std::optional<migration::ReportLineReader::Line> line = reader.next()) {
        files.reports.append(std::move(line->report));
    }
    files.error = reader.error();
    return files;
}

} // namespace window

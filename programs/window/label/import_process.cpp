#include "window/label/import_process.h"

#include "migration/report/report_lines.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProgressDialog>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString& programOfTests()
{
    static QString program;
    return program;
}

int& dialogDelay()
{
    static int milliseconds = 1000;
    return milliseconds;
}

// A window for the dialog; null if there is none, as for a picture of the window.
QWidget* visibleWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() == Qt::Window) {
            return widget;
        }
    }
    return nullptr;
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

void ImportProcess::setDialogDelay(int milliseconds)
{
    dialogDelay() = milliseconds;
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
        QTimer::singleShot(dialogDelay(), &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!m_isEnded) {
        waitInDialog(loop, files.constFirst());
    }
    return result;
}

void ImportProcess::waitInDialog(QEventLoop& loop, const QString& fileName)
{
    QWidget* window = QApplication::activeModalWidget();
    window = window != nullptr ? window : visibleWindow();
    if (window == nullptr) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        return;
    }
    QProgressDialog dialog(window);
    dialog.setWindowTitle(tr("Import"));
    dialog.setWindowModality(Qt::ApplicationModal);
    auto* text = new QLabel(tr("Importing “%1”…").arg(QFileInfo(fileName).fileName()), &dialog);
    text->setTextFormat(Qt::PlainText); // a file name may contain markup
    dialog.setLabel(text);
    dialog.setRange(0, 0);
    connect(&dialog, &QProgressDialog::canceled, this, [this] {
        end({.reports = {}, .error = tr("The import was canceled."), .isCanceled = true});
    });
    dialog.show();
    QApplication::setOverrideCursor(Qt::ArrowCursor); // instead of the wait cursor
    loop.exec();
    QApplication::restoreOverrideCursor();
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

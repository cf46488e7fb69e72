#include "cli/import_reporter.h"

#include "cli/import_events.h"
#include "console/file_name.h"
#include "console/output.h"

#include <QCoreApplication>

namespace cli {
namespace {

using namespace Qt::StringLiterals;

QString counted(const char* text, qint64 count)
{
    return QCoreApplication::translate("cli::ImportReporter", text, nullptr,
                                       static_cast<int>(count));
}

void printAbout(const archive::Input& input, const QString& text)
{
    console::printMessage(u"%1: %2"_s.arg(console::shownFileName(input.shownName), text));
}

} // namespace

ImportReporter::ImportReporter(bool isQuiet, Listing listing)
    : m_isQuiet(isQuiet)
    , m_listing(listing)
    , m_display(!isQuiet && archive::isTerminal(), archive::supportsColor())
{}

void ImportReporter::reportFile(const archive::Delivery& delivery)
{
    const QStringList warnings = m_isQuiet ? QStringList() : delivery.result.warnings;
    const bool listsSomething =
        m_listing == Listing::Events || (!delivery.isResumed && !delivery.written.isEmpty());
    if (listsSomething || !warnings.isEmpty() || !delivery.result.errors.isEmpty()) {
        m_display.clear();
    }
    for (const QString& warning : warnings) {
        printAbout(delivery.input,
                   QCoreApplication::translate("cli::ImportReporter", "Warning: %1").arg(warning));
    }
    list(delivery);
    for (const QString& error : delivery.result.errors) {
        printAbout(delivery.input, error);
    }
}

void ImportReporter::list(const archive::Delivery& delivery) const
{
    if (m_listing == Listing::Events) {
        console::printBytes(fileEvent(delivery));
    } else if (m_listing != Listing::Nothing && !delivery.isResumed) {
        for (const QString& file : delivery.written) {
            console::printFileName(file, m_listing == Listing::NamesWithNull);
        }
    }
}

void ImportReporter::showProgress(const archive::Progress& progress)
{
    m_display.show(progress);
}

void ImportReporter::print(const QString& text)
{
    m_display.clear();
    console::printMessage(text);
}

void ImportReporter::printSummary(const archive::Progress& progress, bool isArchive,
                                  qint64 ignoredFiles)
{
    m_display.clear();
    if (isArchive && !m_isQuiet) {
        QStringList sentences{
            counted(QT_TRANSLATE_N_NOOP("cli::ImportReporter", "%n file(s) imported."),
                    progress.done - progress.failed - progress.skipped)};
        if (progress.skipped > 0) {
            sentences.append(counted(
                QT_TRANSLATE_N_NOOP("cli::ImportReporter", "%n file(s) had been imported before."),
                progress.skipped));
        }
        if (ignoredFiles > 0) {
            sentences.append(
                counted(QT_TRANSLATE_N_NOOP("cli::ImportReporter", "Ignored %n other file(s)."),
                        ignoredFiles));
        }
        console::printMessage(sentences.join(u' '));
    }
    if (progress.failed > 0 && progress.total > 1) {
        console::printMessage(counted(
            QT_TRANSLATE_N_NOOP("cli::ImportReporter", "%n file(s) failed."), progress.failed));
    }
}

} // namespace cli

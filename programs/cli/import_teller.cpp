#include "cli/import_teller.h"

#include "cli/import_inputs.h"
#include "cli/messages.h"

#include <QCoreApplication>

namespace cli {
namespace {

void printAbout(const QString& file, const QString& text)
{
    printMessage(QStringLiteral("%1: %2").arg(file, text));
}

} // namespace

ImportTeller::ImportTeller(bool isQuiet)
    : m_isQuiet(isQuiet)
    , m_display(!isQuiet && archive::isTerminal(), archive::wantsColor())
{}

void ImportTeller::tell(const archive::Delivery& delivery)
{
    const QStringList warnings = m_isQuiet ? QStringList() : delivery.result.warnings;
    const QStringList written = delivery.isResumed ? QStringList() : delivery.written;
    if (!written.isEmpty() || !warnings.isEmpty() || !delivery.result.errors.isEmpty()) {
        m_display.clear();
    }
    for (const QString& warning : warnings) {
        printAbout(delivery.input.shownName,
                   QCoreApplication::translate("cli::ImportTeller", "warning: %1").arg(warning));
    }
    for (const QString& file : written) {
        printResult(file);
    }
    for (const QString& error : delivery.result.errors) {
        printAbout(delivery.input.shownName, error);
    }
}

void ImportTeller::showProgress(const archive::Progress& progress)
{
    m_display.show(progress);
}

void ImportTeller::say(const QString& text)
{
    m_display.clear();
    printMessage(text);
}

void ImportTeller::sumUp(const archive::Progress& progress, bool isArchive, qint64 skippedFiles)
{
    m_display.clear();
    if (isArchive && !m_isQuiet) {
        const qint64 imported = progress.done - progress.failed - progress.skipped;
        printMessage(
            QCoreApplication::translate("cli::ImportTeller",
                                        "%1 of %2 files were imported, %3 had been done before.")
                .arg(imported)
                .arg(progress.total)
                .arg(progress.skipped));
        if (skippedFiles > 0) {
            printMessage(
                QCoreApplication::translate("cli::ImportTeller",
                                            "%1 files were passed over: only names that "
                                            "end in %2 are taken from folders.")
                    .arg(skippedFiles)
                    .arg(QLatin1Char('.') + importedSuffixes().join(QStringLiteral(", ."))));
        }
    }
    if (progress.failed > 0 && progress.total > 1) {
        printMessage(QCoreApplication::translate("cli::ImportTeller", "%1 of %2 files failed.")
                         .arg(progress.failed)
                         .arg(progress.total));
    }
}

} // namespace cli

#pragma once

#include "migration/model/file_report.h"

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QEventLoop;

namespace window {

/// The result of an import of files.
struct ImportedFiles
{
    /// One for each file, in no particular order; FileReport::file is the file's path.
    QList<migration::FileReport> reports;
    /// Why there are no reports, for the user; else empty.
    QString error;
    bool isCanceled = false; ///< by the user
};

/// How documents are imported that can be repaired.
enum class Reading : quint8 { Repaired, AsWritten };

/// Imports files with `labelport import`, which is installed next to this program.
///
/// The files are read in its worker processes: one that is damaged or hostile can neither crash
/// nor block the window.
class ImportProcess final : public QObject
{
    Q_OBJECT

public:
    explicit ImportProcess(QObject* parent = nullptr);
    /// Ends the import; its labels are removed.
    ~ImportProcess() override;

    /// Starts an import; ended() comes later. The object imports once.
    /// @param files absolute paths; their names without suffix must differ
    void start(const QStringList& files, Reading reading = Reading::Repaired);
    /// As start(), and waits for the end. The window is painted meanwhile, but takes no input. A
    /// long import shows a dialog with a button to cancel it.
    [[nodiscard]] ImportedFiles run(const QStringList& files, Reading reading);

    /// For tests, whose program is in another folder.
    static void setProgram(const QString& program);
    /// Milliseconds before run() shows its dialog. For tests, because machines differ.
    static void setDialogDelay(int milliseconds);

Q_SIGNALS:
    void ended(const window::ImportedFiles& files);

private:
    void noteEnd();
    void waitInDialog(QEventLoop& loop, const QString& fileName);
    void end(const ImportedFiles& files);
    [[nodiscard]] QString reportName() const;
    [[nodiscard]] ImportedFiles readReports();

    QTemporaryDir m_folder;
    QProcess m_process;
    bool m_isEnded = false;
};

} // namespace window

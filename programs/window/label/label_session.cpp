#include "window/label/label_session.h"

#include <QCursor>
#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

namespace window {

namespace {

// RAII wait cursor.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

ReadLabel readWaiting(const QString& fileName, Reading reading)
{
    const WaitCursor wait;
    return readLegacyLabel(fileName, reading);
}

ReadLabel readAnyLabel(const QString& fileName)
{
    const WaitCursor wait;
    return isSavedLabel(fileName) ? readSavedLabel(fileName) : readLegacyLabel(fileName);
}

} // namespace

LabelSession::LabelSession(QWidget* window)
    : m_prompts(window)
{
    connect(&m_undoStack, &QUndoStack::cleanChanged, this, &LabelSession::nameChanged);
}

LabelSession::~LabelSession()
{
    // Its commands point to items of the label; emit no signals from here.
    blockSignals(true);
    m_undoStack.blockSignals(true);
    m_undoStack.clear();
}

bool LabelSession::hasUnsavedChanges() const
{
    // An imported label can be imported again.
    return m_label && !m_undoStack.isClean();
}

void LabelSession::openByDialog()
{
    const QString fileName = m_prompts.askOpenFile(m_label ? m_label->suggestedName : QString());
    if (!fileName.isEmpty()) {
        openFile(fileName);
    }
}

bool LabelSession::openFile(const QString& fileName)
{
    if (!confirmDiscard()) {
        return false;
    }
    ReadLabel read = readAnyLabel(fileName);
    if (!read.label) {
        showFailure(fileName, read);
        return false;
    }
    takeFile(fileName, std::move(*read.label));
    return true;
}

QString LabelSession::openFileQuietly(const QString& fileName)
{
    ReadLabel read = readAnyLabel(fileName);
    if (!read.label) {
        return read.error;
    }
    takeFile(fileName, std::move(*read.label));
    return {};
}

std::optional<QString> LabelSession::browse(const QString& fileName)
{
    if (!confirmDiscard()) {
        return std::nullopt;
    }
    ReadLabel read = readAnyLabel(fileName);
    if (read.label) {
        setLabel(std::move(*read.label));
    } else {
        clear();
        Q_EMIT labelReplaced();
    }
    return read.error;
}

bool LabelSession::readAgain(Reading reading)
{
    if (!m_label || m_label->importedFile.isEmpty() || !confirmDiscard()) {
        return false;
    }
    const QString fileName = m_label->importedFile;
    ReadLabel read = readWaiting(fileName, reading);
    if (!read.label) {
        showFailure(fileName, read);
        return false;
    }
    setLabel(std::move(*read.label));
    return true;
}

bool LabelSession::save()
{
    if (!m_label) {
        return false;
    }
    return m_label->fileName.isEmpty() ? saveAs() : saveTo(m_label->fileName);
}

bool LabelSession::saveAs()
{
    if (!m_label) {
        return false;
    }
    const bool isNew = m_label->fileName.isEmpty();
    const QString fileName =
        m_prompts.askSaveFile(isNew ? m_label->suggestedName : m_label->fileName);
    return !fileName.isEmpty() && saveTo(fileName);
}

bool LabelSession::saveTo(const QString& fileName)
{
    const QString error = writeLabel(*m_label, fileName);
    if (!error.isEmpty()) {
        m_prompts.showError(tr("“%1” could not be saved.").arg(QFileInfo(fileName).fileName()),
                            tr("%1\n\nThe label is still open. Save it in another folder with "
                               "“Save As”.")
                                .arg(error));
        return false;
    }
    m_label->fileName = fileName;
    m_undoStack.setClean();
    m_recentFiles.add(fileName);
    Q_EMIT nameChanged();
    Q_EMIT recentFilesChanged();
    Q_EMIT saved(fileName);
    Q_EMIT noticeShown(tr("Saved as %1").arg(fileName));
    return true;
}

bool LabelSession::close()
{
    if (!confirmDiscard()) {
        return false;
    }
    clear();
    Q_EMIT labelReplaced();
    return true;
}

bool LabelSession::confirmDiscard(bool allowDiscard)
{
    if (!hasUnsavedChanges()) {
        return true;
    }
    switch (m_prompts.askUnsavedChanges(displayName(*m_label), allowDiscard)) {
    case Prompts::Changes::Save:
        return save();
    case Prompts::Changes::Discard:
        return true;
    case Prompts::Changes::Cancel:
        break;
    }
    return false;
}

void LabelSession::moveItems(const QList<ItemMove>& moves)
{
    if (!moves.isEmpty()) {
        m_undoStack.push(new MoveItems(moves));
    }
}

void LabelSession::setLabel(OpenLabel label)
{
    clear();
    m_label = std::move(label);
    Q_EMIT labelReplaced();
}

void LabelSession::clear()
{
    Q_EMIT aboutToReplaceLabel();
    m_undoStack.clear();
    m_label.reset();
}

void LabelSession::takeFile(const QString& fileName, OpenLabel label)
{
    setLabel(std::move(label));
    m_recentFiles.add(fileName);
    Q_EMIT recentFilesChanged();
}

void LabelSession::showFailure(const QString& fileName, const ReadLabel& read)
{
    if (read.isCanceled) {
        Q_EMIT noticeShown(read.error);
        return;
    }
    if (!QFileInfo::exists(fileName)) {
        m_recentFiles.remove(fileName);
        Q_EMIT recentFilesChanged();
    }
    m_prompts.showError(tr("“%1” could not be opened.").arg(QFileInfo(fileName).fileName()),
                        read.error);
}

} // namespace window

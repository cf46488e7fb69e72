#include "window/label/prompts.h"

#include "window/label/open_label.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct PromptsTr
{
    Q_DECLARE_TR_FUNCTIONS(window::Prompts)
};

QString folderKey()
{
    return u"window/openFolder"_s;
}

QString startFolder(const QString& besides)
{
    const QString open = besides.isEmpty() ? QString() : QFileInfo(besides).absolutePath();
    for (const QString& folder : {open, QSettings().value(folderKey()).toString()}) {
        if (!folder.isEmpty() && QDir(folder).exists()) {
            return folder;
        }
    }
    return QDir::currentPath();
}

QString openFilters()
{
    return QStringList{
        PromptsTr::tr("All labels (%1)").arg(u"*.label "_s + legacyPatterns()),
        PromptsTr::tr("Saved labels (*.label)"),
        PromptsTr::tr("Legacy labels (%1)").arg(legacyPatterns()),
        PromptsTr::tr("All files (*)"),
    }
        .join(u";;"_s);
}

// File names and reasons may contain text from files, which must not be read as markup.
void setPlainText(QMessageBox& box, const QString& text, const QString& information)
{
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(information);
}

} // namespace

Prompts::Prompts(QWidget* window)
    : m_window(window)
{}

Prompts::Changes Prompts::askUnsavedChanges(const QString& labelName, bool allowDiscard) const
{
    QMessageBox box(m_window);
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(PromptsTr::tr("Unsaved Changes"));
    setPlainText(box, PromptsTr::tr("Save the changes to “%1”?").arg(labelName),
                 PromptsTr::tr("Changes that are not saved will be lost."));
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Cancel);
    if (allowDiscard) {
        box.addButton(QMessageBox::Discard);
    }
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Changes::Save;
    case QMessageBox::Discard:
        return Changes::Discard;
    default:
        return Changes::Cancel;
    }
}

QString Prompts::askOpenFile(const QString& besides) const
{
    const QString fileName = QFileDialog::getOpenFileName(m_window, PromptsTr::tr("Open Label"),
                                                          startFolder(besides), openFilters());
    if (!fileName.isEmpty()) {
        QSettings().setValue(folderKey(), QFileInfo(fileName).absolutePath());
    }
    return fileName;
}

QString Prompts::askFolder() const
{
    const QString folder =
        QFileDialog::getExistingDirectory(m_window, PromptsTr::tr("Open Folder"), startFolder({}));
    if (!folder.isEmpty()) {
        QSettings().setValue(folderKey(), QFileInfo(folder).absoluteFilePath());
    }
    return folder;
}

QString Prompts::askSaveFile(const QString& suggestedName) const
{
    QFileDialog dialog(m_window, PromptsTr::tr("Save Label"),
                       QFileInfo(suggestedName).absolutePath(),
                       PromptsTr::tr("Saved labels (*.label)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(labelSuffix().mid(1));
    dialog.selectFile(QFileInfo(suggestedName).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return dialog.selectedFiles().constFirst();
}

void Prompts::showError(const QString& what, const QString& why) const
{
    QMessageBox box(m_window);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(PromptsTr::tr("LabelPort Workbench"));
    setPlainText(box, what, why);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void Prompts::showResult(const QString& what, const QString& details) const
{
    QMessageBox box(m_window);
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(PromptsTr::tr("LabelPort Workbench"));
    setPlainText(box, what, details);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace window

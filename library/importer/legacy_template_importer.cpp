#include "importer/legacy_template_importer.h"

#include "host/file_controller.h"
#include "host/services/file_controller_tools.h"
#include "importer/open_dialog_filters.h"
#include "importer/reader_choice.h"
#include "messages/refusals.h"
#include "opendocument/open_office_reader.h"
#include "orvanta/legacy_orvanta.h"
#include "tavrel/legacy_tavrel.h"

#include <Logger.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>

using namespace Qt::StringLiterals;

/// RAII flag for a running import; safe if the importer is deleted first.
class LegacyTemplateImporter::RunningImport
{
public:
    explicit RunningImport(LegacyTemplateImporter& importer)
        : m_importer(&importer)
    {
        importer.m_isImporting = true;
    }
    ~RunningImport()
    {
        if (m_importer) {
            m_importer->m_isImporting = false;
        }
    }
    RunningImport(const RunningImport&) = delete;
    RunningImport& operator=(const RunningImport&) = delete;

private:
    QPointer<LegacyTemplateImporter> m_importer;
};

LegacyTemplateImporter::LegacyTemplateImporter(TalCanvasModel* canvasModel,
                                               FileController* fileController,
                                               DatasourceController* datasourceController)
    : QObject(nullptr)
    , m_canvasModel(canvasModel)
    , m_fileController(fileController)
    , m_datasourceController(datasourceController)
{}

LegacyTemplateImporter::~LegacyTemplateImporter()
{
    // The binary reader is first: only it may still show a message box.
    m_tavrelReader.reset();
    m_orvantaReader.reset();
    m_openOfficeReader.reset();
}

void LegacyTemplateImporter::importLegacyLabel(const QString& currentFileName)
{
    if (isBusy(Q_FUNC_INFO) ||
        !m_fileController->checkSaveChanges(m_canvasModel, currentFileName, true)) {
        return;
    }
    const QString fileName = chooseFile();
    if (fileName.isEmpty()) {
        return;
    }
    // Before the file is read: hosts reset the label type here, and a failed import must
    // not leave an old type either.
    m_fileController->emitLabelTypeLoadedSignal(QString());
    rememberFolderOf(fileName);
    const QPointer<LegacyTemplateImporter> self(this);
    if (importByName(fileName) && self) {
        // Removes only the last suffix, although the complete suffix selected the reader:
        // existing labels were saved under these names.
        m_fileController->saveImportedLabelAs(m_importFolder,
                                              QFileInfo(fileName).completeBaseName(), QString());
    }
}

bool LegacyTemplateImporter::importLabelFromTavrelFile(const QString& fileName)
{
    if (isBusy(Q_FUNC_INFO)) {
        return false;
    }
    const RunningImport running(*this);
    if (!m_tavrelReader) {
        m_tavrelReader = std::make_unique<LegacyTavrel>(m_canvasModel, m_datasourceController);
        connect(m_tavrelReader.get(), SIGNAL(popupShowSignal(QWidget*)), this,
                SIGNAL(popupShowSignal(QWidget*)));
        connect(m_tavrelReader.get(), SIGNAL(popupHideSignal()), this, SIGNAL(popupHideSignal()));
    }
    return m_tavrelReader->importLabelFromFile(fileName);
}

bool LegacyTemplateImporter::importLabelFromOrvantaFile(const QString& fileName)
{
    if (isBusy(Q_FUNC_INFO)) {
        return false;
    }
    const RunningImport running(*this);
    if (!m_orvantaReader) {
        m_orvantaReader = std::make_unique<LegacyOrvanta>(m_canvasModel, m_datasourceController);
    }
    return m_orvantaReader->importLabelFromFile(fileName);
}

bool LegacyTemplateImporter::importLabelFromOpenOfficeFile(const QString& fileName)
{
    if (isBusy(Q_FUNC_INFO)) {
        return false;
    }
    const RunningImport running(*this);
    if (!m_openOfficeReader) {
        m_openOfficeReader =
            std::make_unique<OpenOfficeReader>(m_canvasModel, m_datasourceController);
    }
    return m_openOfficeReader->importLabelFromFile(fileName);
}

QString LegacyTemplateImporter::chooseFile()
{
    // Always the host's folder, not the last one used: users are accustomed to it.
    m_importFolder = FileControllerTools::getDefaultImportFolder();
    const OpenDialogFilters filters = openDialogFilters();
    QString preselected = filters.preselected;
    return QFileDialog::getOpenFileName(nullptr,
                                        QObject::tr("Import Label", "Dialog to open a file."),
                                        m_importFolder, filters.all, &preselected);
}

void LegacyTemplateImporter::rememberFolderOf(const QString& fileName)
{
    m_importFolder = QFileInfo(fileName).dir().absolutePath();
    QSettings settings;
    settings.setValue(u"dir/import"_s, m_importFolder);
}

// Readers keep state of the current file, and the canvas is half filled: a second
// import during the first would corrupt both.
bool LegacyTemplateImporter::isBusy(const char* function) const
{
    if (m_isImporting) {
        CuteMessageLogger(loggerInstance(), Logger::Error, "legacy_template_importer", __LINE__,
                          function, refusals::category(refusals::ImportRunning))
            .write("An import is asked for while another one runs; it is refused");
    }
    return m_isImporting;
}

bool LegacyTemplateImporter::importByName(const QString& fileName)
{
    return (this->*readerOf(readerForFile(fileName)).importFile)(fileName);
}

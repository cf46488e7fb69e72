#include "tavrel/legacy_tavrel.h"

#include "host/services/tal_message_box.h"
#include "host/tal_canvas_model.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "supply/legacy_supply_info.h"
#include "tavrel/barcodes.h"
#include "tavrel/datasource_binder.h"
#include "tavrel/file_content.h"
#include "tavrel/file_versions.h"
#include "tavrel/import_issues.h"
#include "tavrel/label_stream.h"
#include "tavrel/pictures.h"
#include "tavrel/shapes.h"
#include "tavrel/tavrel_limits.h"
#include "tavrel/texts.h"

#include <Logger.h>

#include <QDataStream>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace tavrel;

namespace {

enum ItemTypeCode : qint32 {
    TextCode = 0x10000,
    SymbolCode = 0x10001,
    ShapeCode = 0x10002,
    LinearBarcodeCode = 0x10003,
    PictureCode = 0x10004,
    EmptyCode = 0x10005,
    MatrixBarcodeCode = 0x10006,
};

void logError(int line, const char* function, const QString& message, const char* code = nullptr)
{
    CuteMessageLogger(loggerInstance(), Logger::Error, "legacy_tavrel", line, function,
                      refusals::category(code))
        .write("%s", message.toLocal8Bit().constData());
}

void logRefusedItem(int line, const char* function, BuildResult result)
{
    if (result == BuildResult::NoItem) {
        logError(line, function, u"The host made no item for this record, it is left out"_s,
                 refusals::ItemRefused);
    } else if (result == BuildResult::Lost) {
        logError(line, function, u"The host deleted the item when it got it, it is left out"_s,
                 refusals::ItemRefused);
    }
}

// The caller reports a file that cannot be opened; log only the causes that it cannot see.
void logRefusedFile(int line, const char* function, FileContent::Status status, const QString& path)
{
    if (status == FileContent::Status::SpecialFile) {
        logError(line, function, u"Not a regular file: "_s + path, refusals::NotAFile);
    } else if (status == FileContent::Status::TooLarge) {
        logError(line, function, u"Too large for a label: "_s + path, refusals::FileTooLarge);
    }
}

} // namespace

LegacyTavrel::LegacyTavrel(TalCanvasModel* model, DatasourceController* datasourceController)
    : m_model(model)
    , m_classFactory(model->getClassFactory())
    , m_datasourceController(datasourceController)
    , m_supplyInfo(std::make_unique<LegacySupplyInfo>())
{}

LegacyTavrel::~LegacyTavrel()
{
    delete m_messageBox.data();
    for (const QPointer<TalMessageBox>& box : std::as_const(m_withdrawnBoxes)) {
        delete box.data();
    }
}

bool LegacyTavrel::importLabelFromFile(const QString& path)
{
    const FileContent file = loadFile(path);
    if (file.status != FileContent::Status::Loaded) {
        logRefusedFile(__LINE__, Q_FUNC_INFO, file.status, path);
        return false;
    }
    // Labels were written with the stream's default version, byte order and precision.
    QDataStream stream(file.bytes);
    const CanvasHeader header = readCanvasHeader(stream);
    if (!header.isSupported()) {
        const QString message =
            QObject::tr(messages::VersionRefused.text, messages::VersionRefused.comment)
                .arg(header.version)
                .arg(CurrentVersion);
        logError(__LINE__, Q_FUNC_INFO, message + u' ' + path);
        return false;
    }
    skipPicture(stream); // the preview
    importCanvasRecord(stream, header.version);
    importSequenceSettings(stream, header.version);
    const bool databaseLinked = importDatabaseList(stream);
    const QPointer<LegacyTavrel> self(this);
    const bool imported = importCanvasAndItems(stream, header.version, databaseLinked);
    // The host may have deleted the reader and the canvas when it got the message box.
    if (!imported || !self) {
        return false;
    }
    m_model->completeCanvasLoading();
    return true;
}

void LegacyTavrel::importCanvasRecord(QDataStream& stream, quint32 version)
{
    const CanvasRecord record = readCanvasRecord(stream, version);
    m_orientationFlag = record.orientationFlag;
    m_resolution = record.resolution;
    m_model->importCanvasParameters(record.width, record.height, record.canvasFlag,
                                    m_orientationFlag);
    m_model->setCanvasBackgroundColor(m_supplyInfo->getLabelColor(record.labelType));
    m_model->setCanvasDefaultPenColor(m_supplyInfo->getRibbonColor(record.ribbonType));
}

bool LegacyTavrel::importCanvasAndItems(QDataStream& stream, quint32 version, bool databaseLinked)
{
    ImportIssues issues;
    issues.databaseLinked = databaseLinked;
    m_pixelsLeft = MaximumPixelsPerFile;
    m_noteCharactersLeft = MaximumNoteCharacters;
    bool anyItemRead = false;
    for (int count = 0; !stream.atEnd(); ++count) {
        if (count == MaximumItemRecords) {
            logError(__LINE__, Q_FUNC_INFO, u"Too many items, the rest is left out"_s,
                     refusals::TooManyItems);
            break;
        }
        const qint32 typeCode = readInt32(stream);
        const RecordOutcome outcome = importItemRecord(typeCode, stream, version, issues);
        if (outcome == RecordOutcome::Unknown) {
            logError(__LINE__, Q_FUNC_INFO,
                     QString::fromLatin1(messages::RecordTypeUnknown).arg(typeCode));
            if (!anyItemRead) {
                showMessageBox(
                    QObject::tr("Load Error", "Error message title."),
                    QObject::tr(messages::ItemsUnreadable.text, messages::ItemsUnreadable.comment));
                return false;
            }
            break;
        }
        anyItemRead = anyItemRead || outcome == RecordOutcome::Read;
    }
    reportIssues(issues);
    return anyItemRead;
}

LegacyTavrel::RecordOutcome LegacyTavrel::importItemRecord(qint32 typeCode, QDataStream& stream,
                                                           quint32 version, ImportIssues& issues)
{
    switch (typeCode) {
    case TextCode:
        issues.addNote(importTextItem(stream, version));
        return RecordOutcome::Read;
    case SymbolCode:
        if (!importSymbolItem(stream, version)) {
            issues.symbolErrors = true;
            return RecordOutcome::Skipped;
        }
        return RecordOutcome::Read;
    case ShapeCode:
        importShapeItem(stream, version);
        return RecordOutcome::Read;
    case PictureCode:
        importPictureItem(stream, version);
        return RecordOutcome::Read;
    case LinearBarcodeCode:
    case MatrixBarcodeCode:
        if (!importBarcodeItem(stream, version, typeCode == LinearBarcodeCode)) {
            issues.barcodeErrors = true;
            return RecordOutcome::Skipped;
        }
        return RecordOutcome::Read;
    case EmptyCode:
        return RecordOutcome::Skipped;
    default:
        return RecordOutcome::Unknown;
    }
}

void LegacyTavrel::importShapeItem(QDataStream& stream, quint32 version)
{
    const ShapeRecord record = readShapeRecord(stream, fileContext(version), takeItemNumber());
    logRefusedItem(__LINE__, Q_FUNC_INFO, buildShape(hostCanvas(), record));
}

void LegacyTavrel::importPictureItem(QDataStream& stream, quint32 version)
{
    PictureRecord record =
        readPictureRecord(stream, fileContext(version), takeItemNumber(), m_pixelsLeft);
    if (record.picture.refused) {
        logError(__LINE__, Q_FUNC_INFO,
                 u"A picture is damaged or too large, the item is left empty"_s,
                 refusals::PictureUnreadable);
    }
    logRefusedItem(__LINE__, Q_FUNC_INFO,
                   buildPicture(hostCanvas(), std::move(record), m_resolution));
}

QString LegacyTavrel::importTextItem(QDataStream& stream, quint32 version)
{
    const TextRecord record = readTextRecord(stream, fileContext(version), takeItemNumber());
    const DatasourceBinder binder(m_datasourceController, m_sequence);
    const TextOutcome outcome = buildText(hostCanvas(), record, binder);
    logRefusedItem(__LINE__, Q_FUNC_INFO, outcome.result);
    return outcome.scaled ? noteOn(record) : QString();
}

QString LegacyTavrel::noteOn(const TextRecord& record)
{
    if (record.content.size() > m_noteCharactersLeft) {
        logError(__LINE__, Q_FUNC_INFO, u"Too many notes, one is left out"_s,
                 refusals::TooManyNotes);
        return {};
    }
    const QString note = scaledTextNote(record.content, record.fontSize);
    m_noteCharactersLeft -= note.size();
    return note;
}

bool LegacyTavrel::importBarcodeItem(QDataStream& stream, quint32 version, bool linear)
{
    const BarcodeRecord record = readBarcodeRecord(stream, fileContext(version), takeItemNumber());
    if (!isValidSymbology(record.symbology, linear)) {
        return false;
    }
    const DatasourceBinder binder(m_datasourceController, m_sequence);
    logRefusedItem(__LINE__, Q_FUNC_INFO, buildBarcode(hostCanvas(), record, binder));
    return true;
}

bool LegacyTavrel::importSymbolItem(QDataStream& stream, quint32 version)
{
    SymbolRecord record = readSymbolRecord(stream, fileContext(version), takeItemNumber());
    if (record.data.isEmpty()) {
        record.data = m_symbols.getSymbolData(record.name);
    } else {
        m_symbols.convertSvgSymbol(record.data);
    }
    if (record.data.isEmpty()) {
        return false;
    }
    const BuildResult result = buildSymbol(hostCanvas(), record.header, m_resolution, record.data);
    logRefusedItem(__LINE__, Q_FUNC_INFO, result);
    return result == BuildResult::Built;
}

void LegacyTavrel::reportIssues(const ImportIssues& issues)
{
    const QString text = issues.text();
    if (!text.isEmpty()) {
        showMessageBox(QObject::tr("Warning: Import issues.", "Error message title."), text);
    }
}

void LegacyTavrel::showMessageBox(const QString& title, const QString& text)
{
    const QPointer<LegacyTavrel> self(this);
    if (m_messageBox) {
        messageBoxHidingSlot(); // The box of an earlier import is still open.
    }
    if (!self) {
        return;
    }
    m_messageBox = new TalMessageBox(title, text, QMessageBox::Ok, QMessageBox::Ok, QString(), {});
    connect(m_messageBox, &TalMessageBox::popupHideSignal, this,
            &LegacyTavrel::messageBoxHidingSlot);
    Q_EMIT popupShowSignal(m_messageBox);
}

void LegacyTavrel::messageBoxHidingSlot()
{
    // Cleared before the signal: a host may start the next import from it.
    const QPointer<TalMessageBox> box = std::exchange(m_messageBox, nullptr);
    const QPointer<LegacyTavrel> self(this);
    Q_EMIT popupHideSignal();
    if (!box) {
        return;
    }
    // Not at once, because this may run in the box's own signal.
    box->deleteLater();
    // Without an event loop the box is deleted with the reader, unless the signal deleted that.
    if (self) {
        m_withdrawnBoxes.removeAll(nullptr);
        m_withdrawnBoxes.append(box);
    }
}

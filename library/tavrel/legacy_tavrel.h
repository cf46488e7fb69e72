#pragma once

#include "tavrel/file_context.h"
#include "tavrel/sequence_settings.h"
#include "tavrel/symbol_source.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class ClassFactory;
class DatasourceController;
class LegacySupplyInfo;
class QDataStream;
class QWidget;
class TalCanvasModel;
class TalMessageBox;

namespace tavrel {
class ImportIssues;
enum class BuildResult;
struct HostCanvas;
struct TextRecord;
} // namespace tavrel

/// Reads binary canvas files (*.cnv, *.roc) into the host's canvas.
///
/// One reader serves any number of files in turn. Page resolution, counter settings and
/// orientation are those of the last file; the symbol services and the supply tables are
/// kept for the reader's life. Problems that a user should know of are collected and
/// announced in one message box for a file, the rest is logged.
class LegacyTavrel : public QObject
{
    Q_OBJECT
    // So that the signal's argument is known to who listens by name.
    Q_MOC_INCLUDE(<QWidget>)

public:
    /// Both belong to the host and must outlive the reader.
    LegacyTavrel(TalCanvasModel* model, DatasourceController* datasourceController);
    ~LegacyTavrel() override;

    /// Reads one file, from the header to the last item.
    ///
    /// @return true when at least one item was read; the canvas is then complete. False for
    ///         a file that cannot be opened, that is too old (the canvas is not touched
    ///         then) or that has no item that can be read.
    [[nodiscard]] bool importLabelFromFile(const QString& path);

Q_SIGNALS:
    /// Something is to be told to the user. The box stays the reader's.
    void popupShowSignal(QWidget* popup);
    /// The box is about to go: the user closed it, or a later import has another to show.
    void popupHideSignal();

public Q_SLOTS:
    /// Withdraws the box; the box's own signal calls this.
    void messageBoxHidingSlot();

private:
    enum class RecordOutcome {
        Read,    ///< a record that counts for the success of the import
        Skipped, ///< nothing, or nothing that could be used
        Unknown, ///< a code that cannot be read over
    };

    void importCanvasRecord(QDataStream& stream, quint32 version);
    void importSequenceSettings(QDataStream& stream, quint32 version);
    [[nodiscard]] bool importDatabaseList(QDataStream& stream);
    [[nodiscard]] bool importCanvasAndItems(QDataStream& stream, quint32 version,
                                            bool databaseLinked);

    [[nodiscard]] RecordOutcome importItemRecord(qint32 typeCode, QDataStream& stream,
                                                 quint32 version, tavrel::ImportIssues& issues);
    void importShapeItem(QDataStream& stream, quint32 version);
    void importPictureItem(QDataStream& stream, quint32 version);
    [[nodiscard]] QString importTextItem(QDataStream& stream, quint32 version);
    [[nodiscard]] bool importBarcodeItem(QDataStream& stream, quint32 version, bool linear);
    [[nodiscard]] bool importSymbolItem(QDataStream& stream, quint32 version);

    [[nodiscard]] tavrel::FileContext fileContext(quint32 version) const;
    [[nodiscard]] tavrel::HostCanvas hostCanvas() const;
    [[nodiscard]] QString noteOn(const tavrel::TextRecord& record);
    void reportIssues(const tavrel::ImportIssues& issues);
    void showMessageBox(const QString& title, const QString& text);

    TalCanvasModel* m_model;
    ClassFactory* m_classFactory;
    DatasourceController* m_datasourceController;
    tavrel::SymbolSource m_symbols;
    QPointer<TalMessageBox> m_messageBox;
    QList<QPointer<TalMessageBox>> m_withdrawnBoxes; ///< waiting for the event loop
    std::unique_ptr<LegacySupplyInfo> m_supplyInfo;
    bool m_orientationFlag = false;
    tavrel::Resolution m_resolution;
    tavrel::SequenceSettings m_sequence;
    qint64 m_pixelsLeft = 0;            ///< of what the file's pictures may unpack
    qsizetype m_noteCharactersLeft = 0; ///< of what the file's notes may take
};

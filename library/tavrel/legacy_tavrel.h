#pragma once

#include "tavrel/symbols.h"

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
struct TextRecord;
} // namespace tavrel

/// Reads binary canvas files (*.cnv, *.roc) into the host's canvas.
///
/// A reader can import any number of files, one after the other. Page resolution, counter settings
/// and orientation are those of the last file; the symbol services and the supply tables are kept
/// as long as the reader. Each file has at most one message box, with the problems that matter to
/// users; the others are logged.
class LegacyTavrel : public QObject
{
    Q_OBJECT
    // For connections by name, which need the type of the signal's argument.
    Q_MOC_INCLUDE(<QWidget>)

public:
    /// Both belong to the host and must outlive the reader.
    LegacyTavrel(TalCanvasModel* model, DatasourceController* datasourceController);
    ~LegacyTavrel() override;

    /// Reads one file, from the header to the last item.
    ///
    /// @return true if at least one item was read; the canvas is then complete. False if the file
    ///         cannot be opened, if it is too old (the canvas is then unchanged), or if no item
    ///         can be read.
    [[nodiscard]] bool importLabelFromFile(const QString& path);

Q_SIGNALS:
    /// A message for the user. The reader owns the box.
    void popupShowSignal(QWidget* popup);
    /// The box will be deleted: the user closed it, or a later import has another one.
    void popupHideSignal();

public Q_SLOTS:
    /// Withdraws the box. Connected to the box's own signal.
    void messageBoxHidingSlot();

private:
    enum class RecordOutcome {
        Read,    ///< an item; the import succeeds
        Skipped, ///< no item, or an unusable one
        Unknown, ///< an unknown type, whose payload cannot be skipped
    };

    void importCanvasRecord(QDataStream& stream, quint32 version);
    void importSequenceSettings(QDataStream& stream, quint32 version)
    {
        m_sequence = tavrel::readSequenceSettings(stream, version);
    }
    /// @return whether the label is linked to a database file
    [[nodiscard]] static bool importDatabaseList(QDataStream& stream)
    {
        return tavrel::readDatabaseList(stream);
    }
    [[nodiscard]] bool importCanvasAndItems(QDataStream& stream, quint32 version,
                                            bool databaseLinked);

    [[nodiscard]] RecordOutcome importItemRecord(qint32 typeCode, QDataStream& stream,
                                                 quint32 version, tavrel::ImportIssues& issues);
    void importShapeItem(QDataStream& stream, quint32 version);
    void importPictureItem(QDataStream& stream, quint32 version);
    [[nodiscard]] QString importTextItem(QDataStream& stream, quint32 version);
    [[nodiscard]] bool importBarcodeItem(QDataStream& stream, quint32 version, bool linear);
    [[nodiscard]] bool importSymbolItem(QDataStream& stream, quint32 version);

    [[nodiscard]] tavrel::FileContext fileContext(quint32 version) const
    {
        return {version, m_resolution};
    }
    [[nodiscard]] tavrel::HostCanvas hostCanvas() const { return {m_model, m_classFactory}; }
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
    qint64 m_pixelsLeft = 0;            ///< that the file's pictures may still have
    qsizetype m_noteCharactersLeft = 0; ///< that the file's notes may still have
};

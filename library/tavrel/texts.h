#pragma once

#include "tavrel/item_building.h"

#include <QString>
#include <Qt>

/// Text items.
namespace tavrel {

class DatasourceBinder;

/// A text item as the file stores it; the version of the file decides which values exist.
struct TextRecord
{
    /// Width and height are the text's scale: 72 points mean a scale of 1.
    ItemHeader header;
    double fixedWidth = -1.0;  ///< inches; above 0, the box has this width
    double fixedHeight = -1.0; ///< inches; above 0, the box has this height
    QString content;
    QString datasourceText;
    QString datasourceKey;
    quint16 penWidth = 0; ///< points
    qint32 penStyle = 0;
    qint32 fontSize = 0;    ///< whole points
    bool bold = false;      ///< first of the three style flags
    bool italic = false;    ///< second style flag
    bool underline = false; ///< third style flag
    Qt::Alignment alignment;
    bool inverse = false;
    bool transparentBackground = false;
    bool optionA = false; ///< of unknown meaning, for ITextLabelItem::setOptionA()
    bool optionB = false; ///< stored after option A, for ITextLabelItem::setOptionB()
};

/// Reads a record after its type code. Values beyond the end of the stream are zero or empty.
[[nodiscard]] TextRecord readTextRecord(QDataStream& stream, const FileContext& file,
                                        qint64 itemNumber);

/// The result of building a text.
struct TextOutcome
{
    BuildResult result = BuildResult::NoItem;
    bool scaled = false; ///< the text was stretched, which the item cannot be
};

/// Creates the item, sets its properties and adds it to the canvas, which takes ownership.
TextOutcome buildText(const HostCanvas& host, const TextRecord& record,
                      const DatasourceBinder& binder);

/// The note to the user on a stretched text: its words and its font size.
[[nodiscard]] QString scaledTextNote(const QString& content, int fontSize);

} // namespace tavrel

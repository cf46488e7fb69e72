#pragma once

// The records of a canvas file as plain values for the writer. Members that a version does not
// have are not written. The defaults are a valid, simple record.

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace canvas {

/// The start of an item record.
enum TypeCode : qint32 {
    TextCode = 0x10000,
    SymbolCode = 0x10001,
    ShapeCode = 0x10002,
    LinearBarcodeCode = 0x10003,
    PictureCode = 0x10004,
    EmptyCode = 0x10005,
    TwoDimensionalBarcodeCode = 0x10006,
};

struct FileHeader
{
    qint32 leadingWord = 0;
    QImage preview;
};

struct CanvasRecord
{
    bool unusedFlag = false;
    /// Height and width: whole dots up to version 2000018 (300 and 305 to the inch), inches
    /// later. Unset: 2 by 3 inches in either unit.
    std::optional<double> height;
    std::optional<double> width;
    qint32 labelType = 0;
    qint32 ribbonType = 0;
    QString unusedText1;
    QString unusedText2;
    bool canvasFlag = false;
    qint32 orientation = 0;
    qint32 unusedValue = 0;
    bool unusedFlag2 = false;
    QSizeF unusedSize1 = {0.0, 0.0};
    QSizeF unusedSize2 = {0.0, 0.0};
    double resolutionX = 300.0;
    double resolutionY = 300.0;
};

struct SequenceRecord
{
    qint32 start = 1;
    qint32 end = 100;
    qint32 step = 1;
    qint32 zeroPad = 0;
    QString prefix;
    QString suffix;
    qint32 trailingValue = 1;
};

struct DatabaseEntry
{
    QString path;
    qint32 unusedValue = 0;
};

struct DatabaseList
{
    qint32 unused1 = 0;
    qint32 unused2 = 0;
    qint32 selected = 0;
    QList<DatabaseEntry> entries;
    /// The count in the record, if it must differ from the true one.
    std::optional<qint32> claimedCount;
};

struct ItemHeader
{
    bool locked = false;
    /// Upper left corner: dots up to version 2000016, inches later.
    double x = 0.0;
    double y = 0.0;
    double layer = 1.0;
    /// Degrees.
    double rotation = 0.0;
    /// Fractions: inches for shapes and barcodes, a scale for texts, symbols and pictures.
    QString width = u"1"_s;
    QString height = u"1"_s;
};

struct ShapeRecord
{
    ItemHeader header;
    /// Dots.
    qint32 lineWidth = 4;
    qint32 penStyle = 1;
    /// 0 empty, 1 filled with the label's color, 2 filled with the ribbon's.
    qint32 fillMode = 0;
    QString name;
};

struct PictureRecord
{
    ItemHeader header;
    QImage picture;
};

struct SymbolRecord
{
    ItemHeader header;
    QString name;
    QByteArray svg;
};

struct BarcodeRecord
{
    ItemHeader header;
    QString content;
    QString datasourceText;
    QString datasourceKey;
    qint32 symbology = 20;
    bool unusedFlag = false;
    QString unusedText;
    /// Dots.
    qint32 moduleWidth = 4;
    qint32 textPlacement = 0;
    bool flag1 = false;
    bool flag2 = false;
    bool flag3 = false;
    bool flag4 = false;
    QString numericText = u"0"_s;
    qint32 value1 = 0;
    qint32 value2 = 0;
    qint32 unusedValue = 0;
};

struct TextRecord
{
    ItemHeader header;
    /// Inches; no fixed size if not above zero.
    double fixedWidth = -1.0;
    double fixedHeight = -1.0;
    QString content;
    QString datasourceText;
    QString datasourceKey;
    /// Dots.
    qint32 lineWidth = 0;
    qint32 penStyle = 0;
    QString unusedText;
    /// Dots.
    qint32 fontSize = 42;
    bool styleFlag1 = false;
    bool styleFlag2 = false;
    bool styleFlag3 = false;
    qint32 alignment = 1;
    bool inverse = false;
    bool transparentBackground = false;
    bool optionA = false;
    /// The option is written twice; if unset, the first equals the second.
    std::optional<bool> optionAFirst;
    bool optionB = false;
    /// If unset, equal to fontSize.
    std::optional<qint32> fontSizeAgain;
    qint32 unusedValue1 = 0;
    qint32 unusedValue2 = 0;
};

} // namespace canvas

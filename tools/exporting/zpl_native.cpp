#include "exporting/zpl_native.h"

#include "exporting/label_walk.h"
#include "exporting/zpl_dots.h"
#include "exporting/zpl_graphic.h"
#include "exporting/zpl_serial.h"
#include "workbench/barcodes/barcode_encoder.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/items/canvas_item.h"
#include "workbench/rendering/page_painter.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

namespace exporting {
namespace {

using namespace Qt::StringLiterals;
using workbench::ItemValues;

/// A symbology that printers and the label's barcodes encode alike.
struct Symbology
{
    int code;             ///< as in workbench/barcodes/symbologies.h
    const char* contents; ///< a regular expression
    const char* command;  ///< %h is the height in dots, %m the module
    const char* prefix;   ///< before the content
};

// A ">" begins a control sequence of Code 128.
constexpr std::array Symbologies{
    Symbology{3, "([0-9][0-9])+", "^B2N,%h,N,N,N", ""},
    Symbology{8, "[0-9A-Z .$/+%-]+", "^B3N,N,%h,N,N", ""},
    Symbology{13, "[0-9]{12,13}", "^BEN,%h,N,N", ""},
    Symbology{14, "[0-9]{13}", "^BEN,%h,N,N", ""},
    Symbology{20, "[ -=?-}]+", "^BCN,%h,N,N,N,A", ""},
    Symbology{58, "[ -}]+", "^BQN,2,%m", "LA,"},
    Symbology{60, "[ -=?-}]+", "^BCN,%h,N,N,N,A", ""},
};
constexpr int QrCode = 58;
/// Printers place a QR code this much lower.
constexpr int QrOffset = 10;
/// Most dots of a module.
constexpr int WidestModule = 10;
/// Height of capitals and digits in the printer's font 0.
constexpr double CapitalHeight = 0.75;

/// Characters that are commands, or escapes of barcodes.
bool isPlain(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter >= u' ' && letter <= u'}' && !u"^_\\"_s.contains(letter);
    });
}

QByteArray at(const char* command, int x, int y)
{
    return command + QByteArray::number(x) + ',' + QByteArray::number(y);
}

/// Works on one label.
class NativeItems
{
public:
    /// @param counts whether counters may be serialized
    NativeItems(const ExportJob& job, qint64 record, const QImage& dots, double scale, bool counts)
        : m_job(job)
        , m_record(record)
        , m_dots(dots)
        , m_scale(scale)
        , m_counts(counts)
    {
        m_label.rest = dots;
    }

    NativeLabel take()
    {
        bool isSerial = m_counts;
        for (const WalkedItem& item : walkLabel(m_job.canvas, m_job.sources, m_record)) {
            const QByteArray serial =
                m_counts && item.isBound ? serialization(textsOf(item)) : QByteArray();
            const QByteArray field = fieldOf(item, serial);
            m_label.fields += field;
            isSerial = isSerial && (isConstant(item) || (!serial.isEmpty() && !field.isEmpty()));
        }
        m_label.isSerial = isSerial;
        return m_label;
    }

private:
    QStringList textsOf(const WalkedItem& item) const
    {
        QStringList texts;
        const workbench::DatasourceValues binding = *item.values.datasource;
        for (qint64 page = 0; page < m_job.recordCount; ++page) {
            texts.append(
                m_job.sources.recordText(binding.id, m_job.firstRecord + page, binding.fields)
                    .value_or(QString()));
        }
        return texts;
    }

    bool isConstant(const WalkedItem& item) const
    {
        if (!item.isBound) {
            return true;
        }
        const QStringList texts = textsOf(item);
        return std::count(texts.begin(), texts.end(), texts.first()) == texts.size();
    }

    QByteArray fieldOf(const WalkedItem& item, const QByteArray& serial)
    {
        if (item.toPage.type() > QTransform::TxTranslate) {
            return {}; // rotated or mirrored
        }
        const bool isText = item.values.text && !serial.isEmpty();
        if (!item.values.line && !item.values.barcode && !isText) {
            return {};
        }
        const QRect area = areaOf(item);
        if (area.isEmpty()) {
            return {};
        }
        const QImage alone = paintedAlone(item, area);
        const QRect ink = inkOf(alone);
        if (ink.isEmpty()) {
            return {};
        }
        if (item.values.line) {
            return lineField(alone, ink, area.topLeft());
        }
        if (m_dots.copy(ink.translated(area.topLeft())) != alone.copy(ink)) {
            return {}; // other items overlap it
        }
        return item.values.barcode ? barcodeField(item.values, alone, ink, area.topLeft(), serial)
                                   : textField(item.values, ink.translated(area.topLeft()), serial);
    }

    /// The dots that the item may print, on the page.
    QRect areaOf(const WalkedItem& item) const
    {
        const QRectF bounds = item.item->graphicsItem()->sceneBoundingRect();
        return QRectF(bounds.topLeft() * m_scale, bounds.size() * m_scale).toAlignedRect() &
               m_dots.rect();
    }

    QImage paintedAlone(const WalkedItem& item, const QRect& area) const
    {
        QImage picture(area.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.translate(-area.topLeft());
        painter.scale(m_scale, m_scale);
        workbench::paintItem(painter, *item.item);
        painter.end();
        return printerDots(picture,
                           item.values.barcode ? QList<QRect>{picture.rect()} : QList<QRect>());
    }

    QByteArray lineField(const QImage& alone, const QRect& ink, const QPoint& offset)
    {
        const QRect line = ink.translated(offset);
        if (!isFilled(alone, ink) || !isFilled(m_dots, line)) {
            return {}; // slanted or dashed, or something covers it
        }
        erase(m_label.rest, line);
        return at("^FO", line.left(), line.top()) + at("^GB", line.width(), line.height()) + ',' +
               QByteArray::number(std::min(line.width(), line.height())) + "^FS\n";
    }

    QByteArray barcodeField(const ItemValues& values, const QImage& alone, const QRect& ink,
                            const QPoint& offset, const QByteArray& serial)
    {
        const workbench::BarcodeValues& code = *values.barcode;
        const auto found =
            std::find_if(Symbologies.begin(), Symbologies.end(),
                         [&](const Symbology& row) { return row.code == code.symbology; });
        // Settings that the command does not have.
        const bool isUsual = !code.flag2 && code.option == 0 && code.number == 0 && code.value == 0;
        if (found == Symbologies.end() || !isUsual || !isPlain(code.content) ||
            !QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(found->contents)))
                 .match(code.content)
                 .hasMatch() ||
            !workbench::barcodes::encode({code.symbology, code.content}).isValid()) {
            return {};
        }
        const bool isMatrix = code.symbology == QrCode;
        const QRect bars = isMatrix ? ink : barsOf(alone, ink);
        const int module = moduleOf(alone, bars);
        if (module < 1 || module > WidestModule || (isMatrix && bars.width() != bars.height())) {
            return {};
        }
        // A caption is a picture, unless it counts.
        const bool countsCaption = !serial.isEmpty() && bars != ink;
        erase(m_label.rest, (countsCaption ? ink : bars).translated(offset));
        const QList<int> runs = runsIn(alone, bars, bars.top());
        const int widest = std::min(3, *std::max_element(runs.begin(), runs.end()) / module);
        const QByteArray command = QByteArray(found->command)
                                       .replace("%h,N", countsCaption ? "%h,Y" : "%h,N")
                                       .replace("%h", QByteArray::number(bars.height()))
                                       .replace("%m", QByteArray::number(module));
        const QPoint corner =
            bars.topLeft() + offset - QPoint(0, code.symbology == QrCode ? QrOffset : 0);
        return at("^FO", corner.x(), std::max(0, corner.y())) + "^BY" + QByteArray::number(module) +
               ',' + QByteArray::number(std::max(2, widest)) + command + "^FD" + found->prefix +
               code.content.toLatin1() + serialCommand(serial) + "^FS\n";
    }

    QByteArray textField(const ItemValues& values, const QRect& ink, const QByteArray& serial)
    {
        const QString text = values.text->text;
        const bool isBlack = values.textStyle && values.textStyle->color == Qt::black;
        if (!isBlack || !isPlain(text)) {
            return {};
        }
        erase(m_label.rest, ink);
        const QByteArray height = QByteArray::number(qRound(ink.height() / CapitalHeight));
        return at("^FT", ink.left(), ink.bottom() + 1) + "^A0N," + height + ',' + height + "^FD" +
               text.toLatin1() + serialCommand(serial) + "^FS\n";
    }

    static QByteArray serialCommand(const QByteArray& serial)
    {
        return serial.isEmpty() ? QByteArray() : "^SF" + serial;
    }

    const ExportJob& m_job;
    qint64 m_record;
    const QImage& m_dots;
    double m_scale;
    bool m_counts;
    NativeLabel m_label;
};

} // namespace

NativeLabel nativeLabel(const ExportJob& job, qint64 record, const QImage& dots, double scale)
{
    const bool mayCount = job.recordCount > 1 && record == job.firstRecord;
    if (mayCount) {
        NativeLabel label = NativeItems(job, record, dots, scale, true).take();
        if (label.isSerial) {
            return label;
        }
    }
    // Fields that count would count the copies of a label that does not count as a whole.
    return NativeItems(job, record, dots, scale, false).take();
}

} // namespace exporting

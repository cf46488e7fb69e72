#include "orvanta/legacy_orvanta.h"

#include "host/items/barcode_item.h"
#include "host/items/text_item.h"
#include "host/services/common_lists.h"
#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "limits/xml/bounded_document.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "orvanta/barcode_control.h"
#include "orvanta/date_time_control.h"
#include "orvanta/document_limits.h"
#include "orvanta/label_page.h"
#include "orvanta/list_control.h"
#include "orvanta/numeric_control.h"
#include "orvanta/picture_content.h"
#include "orvanta/picture_control.h"
#include "orvanta/raster_picture.h"
#include "orvanta/shape_control.h"
#include "orvanta/text_control.h"

#include <Logger.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

using orvanta::ControlProperties;

namespace {

CuteMessageLogger debugLog(int line, const char* function, const char* code = nullptr)
{
    return CuteMessageLogger(loggerInstance(), Logger::Debug, "legacy_orvanta.cpp", line, function,
                             refusals::category(code));
}

// Opening a pipe could wait for ever, and a device may have no end.
bool isEndless(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

LegacyOrvanta::LegacyOrvanta(TalCanvasModel* canvasModel,
                             DatasourceController* datasourceController)
    : m_canvasModel(canvasModel)
    , m_classFactory(canvasModel->getClassFactory())
    , m_datasourceController(datasourceController)
    , m_pixelsLeft(orvanta::MaximumLabelPixels)
{}

LegacyOrvanta::~LegacyOrvanta() = default;

bool LegacyOrvanta::importLabelFromFile(const QString& fileName)
{
    const QByteArray printableName = fileName.toLocal8Bit();
    QFile file(fileName);
    if (isEndless(fileName) || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        debugLog(__LINE__, Q_FUNC_INFO).write(messages::OpeningFailed, printableName.constData());
        return false;
    }
    orvanta::FileContent content = orvanta::readWithinLimits(file);
    if (!content.refusal.isEmpty()) {
        debugLog(__LINE__, Q_FUNC_INFO, refusals::FileTooLarge)
            .write("Error reading file: %s is too large: %s", printableName.constData(),
                   content.refusal.toLocal8Bit().constData());
        return false;
    }
    QDomDocument document;
    if (const auto failure =
            xmlbounds::parseDocument(content.bytes, document, orvanta::MaximumTreeBytes)) {
        debugLog(__LINE__, Q_FUNC_INFO)
            .write(messages::ParsingFailed, printableName.constData(), failure->line,
                   failure->column, failure->message.toLocal8Bit().constData());
        return false;
    }
    file.close();
    content.bytes.clear();
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("qmtx")) {
        debugLog(__LINE__, Q_FUNC_INFO).write(messages::RootElementUnknown);
        return false;
    }
    const QString refusal =
        orvanta::exceededLimit(root.firstChildElement(QStringLiteral("controls")));
    if (!refusal.isEmpty()) {
        debugLog(__LINE__, Q_FUNC_INFO, refusals::TooManyControls)
            .write("Error reading file: %s is too large: %s", printableName.constData(),
                   refusal.toLocal8Bit().constData());
        return false;
    }
    readLabel(root);
    return true;
}

void LegacyOrvanta::readLabel(const QDomElement& root)
{
    m_pixelsLeft = orvanta::MaximumLabelPixels;
    const orvanta::LabelPage page = orvanta::readLabelPage(root);
    m_canvasModel->importCanvasParameters(page.width, page.height, false, page.higherThanWide);
    const QDomElement image = root.firstChildElement(QStringLiteral("pre_printed_image"));
    if (!image.isNull()) {
        readPrePrintedImage(image, page);
    }
    const QDomElement controls = root.firstChildElement(QStringLiteral("controls"));
    if (!controls.isNull()) {
        readControls(controls);
    }
    m_canvasModel->completeCanvasLoading();
}

void LegacyOrvanta::readPrePrintedImage(const QDomElement& image, const orvanta::LabelPage& page)
{
    const QByteArray bytes = orvanta::readPictureContent(image);
    if (bytes.isEmpty()) {
        return;
    }
    ControlProperties properties;
    properties.bounds = QRectF(0.0, 0.0, page.width, page.height);
    properties.foreColor = m_canvasModel->canvasDefaultPenColor();
    properties.backColor = m_canvasModel->canvasBackgroundColor();
    if (QGraphicsItem* item = buildImage(properties, bytes)) {
        m_canvasModel->setUserBackgroundStateOnItemsInList(true, {item});
    }
}

void LegacyOrvanta::readControls(QDomElement controls)
{
    struct ControlReader
    {
        QLatin1String tag;
        void (LegacyOrvanta::*read)(const QDomElement&);
    };
    static constexpr ControlReader Readers[] = {
        {QLatin1String("barcode"), &LegacyOrvanta::readBarcode},
        {QLatin1String("combo_box"), &LegacyOrvanta::readList},
        {QLatin1String("date_time_picker"), &LegacyOrvanta::readDateTime},
        {QLatin1String("numeric_up_down"), &LegacyOrvanta::readNumeric},
        {QLatin1String("picture_box"), &LegacyOrvanta::readPicture},
        {QLatin1String("swap_text_box"), &LegacyOrvanta::readText},
        {QLatin1String("transparent_label"), &LegacyOrvanta::readText},
        {QLatin1String("transparent_shape"), &LegacyOrvanta::readShape},
        {QLatin1String("transparent_polygon"), &LegacyOrvanta::readShape},
    };
    for (QDomElement control = controls.firstChildElement(); !control.isNull();
         control = control.nextSiblingElement()) {
        const QString tag = control.tagName();
        const auto* reader =
            std::find_if(std::begin(Readers), std::end(Readers),
                         [&tag](const ControlReader& known) { return tag == known.tag; });
        if (reader == std::end(Readers)) {
            debugLog(__LINE__, Q_FUNC_INFO).write() << messages::ControlUnknown << tag;
            continue;
        }
        (this->*reader->read)(control);
    }
}

void LegacyOrvanta::readBarcode(const QDomElement& element)
{
    const auto control = orvanta::readBarcodeControl(element, CommonLists::isValidFamily);
    BarcodeItem* item = buildBarcode(control.hostType, control.properties);
    bindTextList(item, control.texts);
}

void LegacyOrvanta::readList(const QDomElement& element)
{
    const auto control = orvanta::readListControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    bindTextList(item, control.entries);
}

void LegacyOrvanta::readDateTime(const QDomElement& element)
{
    const auto control = orvanta::readDateTimeControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    // An object that names no format has no entries; value() then gives empty texts.
    bindDatasource(item, QStringLiteral("SystemDatasource"),
                   {{QStringLiteral("DateFormat"), control.formats.value(0)},
                    {QStringLiteral("TimeFormat"), control.formats.value(1)}});
}

void LegacyOrvanta::readNumeric(const QDomElement& element)
{
    const auto control = orvanta::readNumericControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    bindDatasource(item, QStringLiteral("SequenceDatasource"),
                   {{QStringLiteral("Start"), control.minimum},
                    {QStringLiteral("End"), control.maximum},
                    {QStringLiteral("Step"), control.increment}});
    if (item != nullptr) {
        m_canvasModel->setReadOnlyStateOnItemsInList(control.readOnly, {item});
    }
}

void LegacyOrvanta::readPicture(const QDomElement& element)
{
    const auto control = orvanta::readPictureControl(element, CommonLists::isValidFamily);
    if (!control.bytes.isEmpty()) {
        buildImage(control.properties, control.bytes);
    }
}

void LegacyOrvanta::readText(const QDomElement& element)
{
    const auto control = orvanta::readTextControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(control.scaleable, control.properties);
    if (item != nullptr) {
        item->setTextAlignment(control.alignment);
        bindTextList(item, control.items);
    }
}

void LegacyOrvanta::readShape(const QDomElement& element)
{
    const auto control = orvanta::readShapeControl(element, CommonLists::isValidFamily);
    // The host's pen has 16 bits: a stored width beyond them comes round again.
    buildShape(control.shapeIndex, static_cast<quint16>(control.lineWidth), control.sides,
               control.properties);
}

void LegacyOrvanta::logRefusal(const char* code, const QString& reason) const
{
    debugLog(__LINE__, Q_FUNC_INFO, code)
        .write("Left out of the label: %s", reason.toLocal8Bit().constData());
}

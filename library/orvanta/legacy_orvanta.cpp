#include "orvanta/legacy_orvanta.h"

#include "host/datasource_controller.h"
#include "host/items/barcode_item.h"
#include "host/items/text_item.h"
#include "host/services/common_lists.h"
#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "host/tal_datasource.h"
#include "limits/file/special_file.h"
#include "limits/xml/element_tree.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "orvanta/control_kinds.h"
#include "orvanta/file_limits.h"
#include "orvanta/page_geometry.h"
#include "orvanta/picture_content.h"
#include "orvanta/raster_picture.h"

#include <Logger.h>

#include <QFile>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

using orvanta::ControlProperties;
using orvanta::Element;

namespace {

// The signature is from when labels were document trees: old log filters depend on it.
constexpr char ReadControls[] = "void LegacyOrvanta::readControls(QDomElement)";

CuteMessageLogger debugLog(int line, const char* function, const char* code = nullptr)
{
    return CuteMessageLogger(loggerInstance(), Logger::Debug, "legacy_orvanta", line, function,
                             refusals::category(code));
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
    if (filelimits::isSpecialFile(fileName) || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
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
    xmllimits::ElementTree document;
    if (const auto failure = document.parse(content.bytes, orvanta::MaximumTreeBytes)) {
        debugLog(__LINE__, Q_FUNC_INFO)
            .write(messages::ParsingFailed, printableName.constData(), failure->line,
                   failure->column, failure->message.toLocal8Bit().constData());
        return false;
    }
    file.close();
    content.bytes.clear();
    const Element root = document.documentElement();
    if (root.tagName() != "qmtx"_L1) {
        debugLog(__LINE__, Q_FUNC_INFO).write(messages::RootElementUnknown);
        return false;
    }
    const QString refusal = orvanta::exceededLimit(root.firstChildElement(u"controls"_s));
    if (!refusal.isEmpty()) {
        debugLog(__LINE__, Q_FUNC_INFO, refusals::TooManyControls)
            .write("Error reading file: %s is too large: %s", printableName.constData(),
                   refusal.toLocal8Bit().constData());
        return false;
    }
    readLabel(root);
    return true;
}

void LegacyOrvanta::readLabel(const Element& root)
{
    m_pixelsLeft = orvanta::MaximumLabelPixels;
    const orvanta::LabelPage page = orvanta::readLabelPage(root);
    m_canvasModel->importCanvasParameters(page.width, page.height, false, page.higherThanWide);
    const Element image = root.firstChildElement(u"pre_printed_image"_s);
    if (!image.isNull()) {
        readPrePrintedImage(image, page);
    }
    const Element controls = root.firstChildElement(u"controls"_s);
    if (!controls.isNull()) {
        buildControls(controls);
    }
    m_canvasModel->completeCanvasLoading();
}

void LegacyOrvanta::readPrePrintedImage(const Element& image, const orvanta::LabelPage& page)
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
    const xmllimits::ElementTree tree(controls);
    buildControls(tree.documentElement());
}

void LegacyOrvanta::buildControls(const Element& controls)
{
    struct ControlReader
    {
        QLatin1String tag;
        void (LegacyOrvanta::*read)(const Element&);
    };
    static constexpr ControlReader Readers[] = {
        {"barcode"_L1, &LegacyOrvanta::readBarcode},
        {"combo_box"_L1, &LegacyOrvanta::readList},
        {"date_time_picker"_L1, &LegacyOrvanta::readDateTime},
        {"numeric_up_down"_L1, &LegacyOrvanta::readNumeric},
        {"picture_box"_L1, &LegacyOrvanta::readPicture},
        {"swap_text_box"_L1, &LegacyOrvanta::readText},
        {"transparent_label"_L1, &LegacyOrvanta::readText},
        {"transparent_shape"_L1, &LegacyOrvanta::readShape},
        {"transparent_polygon"_L1, &LegacyOrvanta::readShape},
    };
    for (Element control = controls.firstChildElement(); !control.isNull();
         control = control.nextSiblingElement()) {
        const QString tag = control.tagName();
        const auto* reader =
            std::find_if(std::begin(Readers), std::end(Readers),
                         [&tag](const ControlReader& known) { return tag == known.tag; });
        if (reader == std::end(Readers)) {
            debugLog(__LINE__, ReadControls).write() << messages::ControlUnknown << tag;
            continue;
        }
        (this->*reader->read)(control);
    }
}

void LegacyOrvanta::readBarcode(const Element& element)
{
    const auto control = orvanta::readBarcodeControl(element, CommonLists::isValidFamily);
    BarcodeItem* item = buildBarcode(control.hostType, control.properties);
    bindTextList(item, control.texts);
}

void LegacyOrvanta::readList(const Element& element)
{
    const auto control = orvanta::readListControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    bindTextList(item, control.entries);
}

void LegacyOrvanta::readDateTime(const Element& element)
{
    const auto control = orvanta::readDateTimeControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    // Without a `format` element the list is empty, and value() gives empty texts.
    bindDatasource(
        item, u"SystemDatasource"_s,
        {{u"DateFormat"_s, control.formats.value(0)}, {u"TimeFormat"_s, control.formats.value(1)}});
}

void LegacyOrvanta::readNumeric(const Element& element)
{
    const auto control = orvanta::readNumericControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(true, control.properties);
    bindDatasource(item, u"SequenceDatasource"_s,
                   {{u"Start"_s, control.minimum},
                    {u"End"_s, control.maximum},
                    {u"Step"_s, control.increment}});
    if (item != nullptr) {
        m_canvasModel->setReadOnlyStateOnItemsInList(control.readOnly, {item});
    }
}

void LegacyOrvanta::readPicture(const Element& element)
{
    const auto control = orvanta::readPictureControl(element, CommonLists::isValidFamily);
    if (!control.bytes.isEmpty()) {
        buildImage(control.properties, control.bytes);
    }
}

void LegacyOrvanta::readText(const Element& element)
{
    const auto control = orvanta::readTextControl(element, CommonLists::isValidFamily);
    TextItem* item = buildText(control.scaleable, control.properties);
    if (item != nullptr) {
        item->setTextAlignment(control.alignment);
        bindTextList(item, control.items);
    }
}

void LegacyOrvanta::readShape(const Element& element)
{
    const auto control = orvanta::readShapeControl(element, CommonLists::isValidFamily);
    // The host's pen width has 16 bits: larger widths wrap modulo 65536.
    buildShape(control.shapeIndex, static_cast<quint16>(control.lineWidth), control.sides,
               control.properties);
}

void LegacyOrvanta::bindDatasource(IDatasourceItem* item, const QString& kind,
                                   const QList<DatasourceProperty>& properties)
{
    if (item == nullptr) {
        return;
    }
    const int id = m_datasourceController->createDatasource(kind);
    TalDatasource* datasource = m_datasourceController->getDatasource(id);
    if (datasource == nullptr) {
        logRefusal(refusals::DatasourceRefused,
                   u"a data source of the kind %1, which the host did not make"_s.arg(kind));
        return;
    }
    for (const DatasourceProperty& property : properties) {
        datasource->setDatasourceProperty(property.name, property.value);
    }
    item->setDatasourceId(id);
    item->setDatasourceFields(datasource->fields());
    datasource->setSelectedFields(datasource->fields());
}

void LegacyOrvanta::bindTextList(IDatasourceItem* item, const QStringList& texts)
{
    if (!texts.isEmpty()) {
        bindDatasource(item, u"TextListDatasource"_s, {{u"TextList"_s, texts}});
    }
}

void LegacyOrvanta::logRefusal(const char* code, const QString& reason) const
{
    debugLog(__LINE__, Q_FUNC_INFO, code)
        .write("Left out of the label: %s", reason.toLocal8Bit().constData());
}

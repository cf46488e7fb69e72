// The order of an import: package, page, styles, body; and which element is read by which part.

#include "opendocument/open_office_reader.h"

#include "opendocument/code_table.h"
#include "opendocument/item_builder.h"
#include "opendocument/log.h"
#include "opendocument/opendocument_limits.h"
#include "opendocument/page_layout.h"
#include "opendocument/style_memory.h"

#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "limits/xml/element_tree.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"

#include <Logger.h>

#include <QApplication>
#include <QDebug>
#include <QFontInfo>

#include <cmath>

#include <private/qzipreader_p.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

const QString StylesMember = u"styles.xml"_s;
const QString ContentMember = u"content.xml"_s;
// The signature is from when bodies were document trees: old log filters depend on it.
constexpr char ReadBody[] = "void OpenOfficeReader::readBody(const QDomElement&)";

double pointsPerPixelOf(const QFont& font)
{
    const QFontInfo info(font);
    return info.pixelSize() > 0 ? info.pointSizeF() / info.pixelSize() : 1.0;
}

QString parseFailureMessage(const QString& member, const xmllimits::ParseFailure& failure)
{
    return QString::asprintf(messages::DocumentParsingFailed, member.toLocal8Bit().constData(),
                             failure.line, failure.column,
                             failure.message.toLocal8Bit().constData());
}

// Signatures by the names that the reader gives to the styles.
constexpr char TextStyleDebug[] = "void OpenOfficeReader::OOTextStyle::debugContent()";
constexpr char GraphicStyleDebug[] = "void OpenOfficeReader::OOGraphicStyle::debugContent() const";

constexpr char WrapLegend[] =
    "0 = none; 1 = left; 2 = right; 3 = parallel; 4 = run-through foreground; "
    "5 = run-through background; 6 = dynamic foreground; 7 = dynamic background\n";

CuteMessageLogger styleRecord(int line, const char* function)
{
    return {loggerInstance(), Logger::Debug, "open_office_reader", line, function};
}

QDebug operator<<(QDebug debug, const Margins& margins)
{
    return debug << margins.above << margins.below << margins.left << margins.right;
}

} // namespace

OpenOfficeReader::OpenOfficeReader(TalCanvasModel* canvasModel,
                                   DatasourceController* datasourceController)
    : m_canvasModel(canvasModel)
    , m_classFactory(canvasModel->getClassFactory())
    , m_controller(datasourceController)
    , m_pointsPerPixel(pointsPerPixelOf(QApplication::font()))
{}

OpenOfficeReader::~OpenOfficeReader() = default;

bool OpenOfficeReader::importLabelFromFile(const QString& fileName)
{
    openPackage(fileName);
    QByteArray stylesBytes = readDocument(StylesMember, limits::StylesBytes);
    if (stylesBytes.isEmpty()) {
        logDebug("open_office_reader", __LINE__, Q_FUNC_INFO,
                 QString::fromLatin1(messages::StylesMissing));
        return false;
    }
    QByteArray contentBytes = readDocument(ContentMember, limits::ContentBytes);
    if (contentBytes.isEmpty()) {
        logDebug("open_office_reader", __LINE__, Q_FUNC_INFO,
                 QString::fromLatin1(messages::ContentMissing));
        return false;
    }
    m_flowOffsetY = 0;

    // Both are read completely before the first call to the canvas, so that a damaged document
    // leaves it unchanged.
    xmllimits::ElementTree styles;
    if (const auto failure = styles.parse(stylesBytes, limits::StylesTreeBytes)) {
        logDebug("open_office_reader", __LINE__, Q_FUNC_INFO,
                 parseFailureMessage(StylesMember, *failure));
        return false;
    }
    xmllimits::ElementTree content;
    if (const auto failure = content.parse(contentBytes, limits::ContentTreeBytes)) {
        logDebug("open_office_reader", __LINE__, Q_FUNC_INFO,
                 parseFailureMessage(ContentMember, *failure));
        return false;
    }
    stylesBytes.clear();
    contentBytes.clear();

    const xmllimits::Element stylesRoot = styles.documentElement();
    const xmllimits::Element contentRoot = content.documentElement();
    dropTooManyStyles();
    importPageLayout(stylesRoot);
    readDefaultStyles(stylesRoot.firstChildElement(u"office:styles"_s));
    readStyles(stylesRoot.firstChildElement(u"office:styles"_s));
    // Last, so that they can have common styles as parents and replace those of the same name.
    readStyles(contentRoot.firstChildElement(u"office:automatic-styles"_s));
    readBody(contentRoot.firstChildElement(u"office:body"_s));
    m_canvasModel->completeCanvasLoading();
    return true;
}

void OpenOfficeReader::closePackage()
{
    m_zipReader.reset();
}

void OpenOfficeReader::openPackage(const QString& fileName)
{
    closePackage();
    m_pictures = std::make_unique<PictureStore>(
        [this](const QString& name, qint64 largest) { return readMember(name, largest); });
    if (const auto refusal = m_zipDirectory.open(fileName)) {
        // For a file that is not a zip package, the missing-document message is enough.
        if (m_zipDirectory.isPackage()) {
            logDebug("open_office_reader", __LINE__, Q_FUNC_INFO, *refusal,
                     refusals::PackageUnreadable);
        }
        return;
    }
    m_zipReader = std::make_unique<QZipReader>(fileName, QIODevice::ReadOnly);
}

// The caller logs its own message for a missing document; add no other.
QByteArray OpenOfficeReader::readDocument(const QString& name, qint64 largest)
{
    return m_zipDirectory.hasMember(name) ? readMember(name, largest) : QByteArray();
}

QByteArray OpenOfficeReader::readMember(const QString& name, qint64 largest)
{
    if (!m_zipReader) {
        return {};
    }
    if (const auto refusal = m_zipDirectory.refusalOf(name, largest)) {
        logDebug("open_office_reader", __LINE__, Q_FUNC_INFO, *refusal,
                 refusals::PackageMemberUnreadable);
        return {};
    }
    return m_zipReader->fileData(name);
}

void OpenOfficeReader::dropTooManyStyles()
{
    if (memoryOf(m_textStyles) + memoryOf(m_graphicStyles) <= limits::CarriedStylesBytes) {
        return;
    }
    m_textStyles.clear();
    m_graphicStyles.clear();
    logDebug("open_office_reader", __LINE__, Q_FUNC_INFO,
             u"The styles of earlier files are forgotten: they take more than %1 bytes"_s.arg(
                 limits::CarriedStylesBytes));
}

void OpenOfficeReader::importPageLayout(const xmllimits::Element& stylesRoot)
{
    const PageLayout layout = readPageLayout(stylesRoot);
    if (layout.width) {
        m_unitSuffix = unitOf(*layout.width);
        // An unknown unit keeps the previous factor: old labels depend on it.
        m_unitFactor = pointsPerUnit(m_unitSuffix).value_or(m_unitFactor);
        m_pageWidth = toLength(*layout.width, m_unitFactor).value_or(m_pageWidth);
        m_pageHeight =
            toLength(layout.height.value_or(QString()), m_unitFactor).value_or(m_pageHeight);
    }
    m_canvasModel->importCanvasParameters(m_pageWidth, m_pageHeight, false, layout.portrait);
}

void OpenOfficeReader::readBody(const xmllimits::Element& body)
{
    const xmllimits::Element document = body.firstChildElement();
    if (document.tagName() == "office:text"_L1) {
        readTextBody(document);
    } else if (document.tagName() == "office:drawing"_L1) {
        readDrawingBody(document);
    } else {
        logDebug("open_office_reader", __LINE__, ReadBody,
                 QString::fromLatin1(messages::DocumentTypeUnsupported));
    }
}

void OpenOfficeReader::readTextBody(const xmllimits::Element& text)
{
    for (xmllimits::Element element = text.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const QString tag = element.tagName();
        if (tag == "text:p"_L1 || tag == "text:h"_L1) {
            readParagraph(element);
        } else if (tag == "draw:frame"_L1) {
            advanceFlow(readFrame(element).height);
        }
    }
}

// Only the first page: a label has one.
void OpenOfficeReader::readDrawingBody(const xmllimits::Element& drawing)
{
    for (xmllimits::Element element = drawing.firstChildElement().firstChildElement();
         !element.isNull(); element = element.nextSiblingElement()) {
        readDrawingElement(element);
    }
}

void OpenOfficeReader::readDrawingElement(const xmllimits::Element& element)
{
    using Handler = void (*)(OpenOfficeReader&, const xmllimits::Element&);
    static constexpr NamedCode<Handler> Handlers[] = {
        {"draw:rect"_L1, [](auto& reader, auto& shape) { reader.readRectangle(shape, false); }},
        {"draw:circle"_L1, [](auto& reader, auto& shape) { reader.readEllipse(shape, false); }},
        {"draw:ellipse"_L1, [](auto& reader, auto& shape) { reader.readEllipse(shape, false); }},
        {"draw:line"_L1, [](auto& reader, auto& shape) { reader.readLine(shape); }},
        {"draw:measure"_L1, [](auto& reader, auto& shape) { reader.readLine(shape); }},
        {"draw:custom-shape"_L1, [](auto& reader, auto& shape) { reader.readCustomShape(shape); }},
        {"draw:frame"_L1, [](auto& reader, auto& shape) { reader.readFrame(shape); }},
        // No element has this name, only a type of custom shape; kept for compatibility.
        {"mso-spt100"_L1, [](auto& reader, auto& shape) { reader.readEllipse(shape, true); }},
    };
    if (const auto handler = codeOf(Handlers, element.tagName())) {
        (*handler)(*this, element);
    }
}

void OpenOfficeReader::advanceFlow(double height)
{
    if (std::isfinite(m_flowOffsetY + height)) {
        m_flowOffsetY += height;
    }
}

void OOTextStyle::debugContent()
{
    styleRecord(__LINE__, TextStyleDebug).write()
        << "font" << fontFamily << fontSize << bold << italic << underline //
        << "paragraph" << alignment << auxValue                            //
        << "\nmargins" << margins                                          //
        << "textColor:" << textColor;
}

void OOGraphicStyle::debugContent() const
{
    styleRecord(__LINE__, GraphicStyleDebug).write()
        << "alignment" << horizontalPos << verticalPos               //
        << "\nanchorParagraph" << anchorParagraph                    //
        << "margins" << margins                                      //
        << "props" << mirrorHorizontal << mirrorVertical << rotation //
        << "\nwrap" << wrap << WrapLegend                            //
        << "pen" << static_cast<Qt::PenStyle>(penStyle) << penWidth << penColor;
}

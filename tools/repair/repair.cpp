#include "repair/repair.h"

#include "repair/controls_step.h"
#include "repair/document.h"
#include "repair/flow_step.h"
#include "repair/lengths.h"
#include "repair/list_labels.h"
#include "repair/master_objects.h"
#include "repair/numbering.h"
#include "repair/package.h"
#include "repair/page_area.h"
#include "repair/page_end.h"
#include "repair/page_steps.h"
#include "repair/shape_steps.h"
#include "repair/text_step.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

/// One repair of a document.
struct Step
{
    QLatin1StringView code;
    const char* text;
    int (*apply)(Document& document);
};

int convertAllLengths(Document& document)
{
    const int count = convertLengths(*document.styles) + convertLengths(*document.content);
    document.forgetTable();
    return count;
}

int labelParagraphs(Document& document)
{
    const StyleTable& table = document.table();
    writeLabels(table, nullptr, *document.styles);
    return writeLabels(table, outlineStyle(table), *document.content);
}

/// A repair before the page is known.
struct Preparation
{
    QLatin1StringView code;
    const char* text;
};

constexpr Preparation Preparations[] = {
    {"lengths-converted"_L1, QT_TRANSLATE_N_NOOP("repair", "%n length(s) converted to inches")},
    {"page-layout-chosen"_L1, QT_TRANSLATE_NOOP("repair", "Page size taken from the master page")},
    {"page-layout-completed"_L1,
     QT_TRANSLATE_N_NOOP("repair",
                         "A4 or margins of 2 cm assumed for %n page layout(s) without them")},
    {"controls-replaced"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n form control(s) replaced by boxes with their text")},
    {"headings-numbered"_L1, QT_TRANSLATE_N_NOOP("repair", "%n heading(s) numbered")},
    {"text-laid-out"_L1,
     QT_TRANSLATE_NOOP("repair", "Text laid out with its margins, spacing, pictures and tables")},
    // Made by who imports the pages one by one.
    {"pages-separated"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n further page(s) imported as separate labels")},
};

// In the order in which they are applied.
constexpr Step Steps[] = {
    {"master-page-objects"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n object(s) of the master page copied to the page"),
     addMasterObjects},
    {"layers-left-out"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n object(s) left out that the document does not print"),
     removeUnprinted},
    {"documents-unpacked"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n embedded document(s) replaced by their content"),
     unpackDocuments},
    {"charts-drawn"_L1, QT_TRANSLATE_N_NOOP("repair", "%n chart(s) drawn again from their values"),
     drawCharts},
    {"groups-dissolved"_L1, QT_TRANSLATE_N_NOOP("repair", "%n group(s) dissolved"), dissolveGroups},
    {"tables-split"_L1, QT_TRANSLATE_N_NOOP("repair", "%n table(s) replaced by boxes with text"),
     splitTables},
    {"captions-split"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n caption(s) replaced by boxes with lines"), splitCaptions},
    {"dimension-lines-split"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n dimension line(s) replaced by lines and text"),
     splitMeasures},
    {"line-texts-kept"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n text(s) on lines moved into text boxes"), splitLineTexts},
    {"connectors-drawn"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n connector(s) replaced by lines or drawings"),
     drawConnectors},
    {"paths-drawn"_L1, QT_TRANSLATE_N_NOOP("repair", "%n freeform shape(s) replaced by drawings"),
     drawPaths},
    {"shapes-drawn"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n unsupported shape(s) replaced by drawings"), drawShapes},
    {"pictures-chosen"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n frame(s) reduced to a readable picture"), choosePictures},
    {"pictures-mirrored"_L1, QT_TRANSLATE_N_NOOP("repair", "%n picture(s) mirrored"),
     mirrorPictures},
    {"rotations-rewritten"_L1,
     QT_TRANSLATE_N_NOOP("repair", "Position of %n rotated object(s) corrected"), rewriteRotations},
    {"order-written"_L1, QT_TRANSLATE_N_NOOP("repair", "Stacking order of %n object(s) kept"),
     writeOrder},
};

struct TextRepair
{
    QLatin1StringView code;
    const char* text;
    int TextCounts::*count;
};

constexpr TextRepair TextRepairs[] = {
    {"blanks-kept"_L1,
     QT_TRANSLATE_N_NOOP("repair", "%n space(s) or line break(s) between words kept"),
     &TextCounts::blanks},
    {"fields-replaced"_L1, QT_TRANSLATE_N_NOOP("repair", "%n field(s) or link(s) replaced by text"),
     &TextCounts::fields},
    {"lists-replaced"_L1, QT_TRANSLATE_N_NOOP("repair", "%n list(s) replaced by paragraphs"),
     &TextCounts::lists},
    {"sections-dissolved"_L1, QT_TRANSLATE_N_NOOP("repair", "%n section(s) dissolved"),
     &TextCounts::sections},
    {"notes-appended"_L1, QT_TRANSLATE_N_NOOP("repair", "%n note(s) appended to the text"),
     &TextCounts::notes},
};

void note(QList<Repair>& repairs, QLatin1StringView code, int count)
{
    if (count > 0) {
        repairs.append({QString(code), count});
    }
}

void rewrite(Document& document, QList<Repair>& repairs)
{
    for (const Step& step : Steps) {
        note(repairs, step.code, step.apply(document));
    }
    const TextCounts counts = simplifyTexts(document);
    for (const TextRepair& row : TextRepairs) {
        note(repairs, row.code, counts.*row.count);
    }
}

} // namespace

DocumentRepair::DocumentRepair(const QString& fileName)
    : m_package(std::make_unique<Package>(fileName))
{
    std::optional<Document> document = m_package->readDocument();
    if (!document) {
        return;
    }
    m_document = std::make_unique<Document>(std::move(*document));
    note(m_repairs, "lengths-converted"_L1, convertAllLengths(*m_document));
    note(m_repairs, "page-layout-completed"_L1, completePageLayouts(*m_document));
    note(m_repairs, "controls-replaced"_L1, showControls(*m_document));
    note(m_repairs, "headings-numbered"_L1, labelParagraphs(*m_document));
    if (m_document->isText()) {
        m_document->spaces = readSpaceRules(*m_document);
        note(m_repairs, "page-layout-chosen"_L1, usePageLayout(*m_document));
        note(m_repairs, "text-laid-out"_L1, 1);
        m_pages = layOutPages(*m_document);
    } else {
        m_pages = takePages(*m_document);
    }
}

DocumentRepair::~DocumentRepair() = default;

// The last page's document if it has a rest for this one. Otherwise the whole document for its
// only page; else a copy, which shares the characters.
Document DocumentRepair::documentOf(int number)
{
    std::unique_ptr<Node> page = std::move(m_pages.at(static_cast<std::size_t>(number - 1)));
    if (m_last != nullptr && number == m_lastNumber + 1 && !m_rest.empty()) {
        m_last->pageNumber = number;
        countRowsFrom(m_rest, *page);
        m_last->body()->children.clear();
        m_last->body()->append(std::move(page));
        return std::move(*m_last);
    }
    m_rest.clear();
    if (m_pages.size() > 1) {
        return m_document->withPage(std::move(page), number);
    }
    m_document->body()->append(std::move(page));
    return std::move(*m_document);
}

std::optional<RepairedPage> DocumentRepair::takePage(int number)
{
    const bool isThere = number >= 1 && number <= std::min(pageCount(), MaximumPages) &&
                         m_pages.at(static_cast<std::size_t>(number - 1)) != nullptr;
    if (!isThere) {
        return std::nullopt;
    }
    m_last = std::make_unique<Document>(documentOf(number));
    m_lastNumber = number;
    Document& document = *m_last;
    QList<Repair> repairs = std::exchange(m_repairs, {});
    note(repairs, "page-layout-chosen"_L1, usePageLayout(document));
    rewrite(document, repairs);
    if (!m_rest.empty()) {
        putRest(document, std::exchange(m_rest, {}));
    }
    if (const auto end = document.wasText ? endOfCharacters(document) : std::nullopt) {
        keepForNextPage(takeRest(document, *end));
    }
    RepairedPage page = finished(std::move(repairs));
    if (!document.wasText) {
        m_last.reset();
    }
    return page.package.isEmpty() ? std::nullopt : std::optional(std::move(page));
}

RepairedPage DocumentRepair::finished(QList<Repair> repairs)
{
    RepairedPage page;
    page.repairs = std::move(repairs);
    page.plan = planItems(*m_last);
    page.pageCount = pageCount();
    page.package = m_package->written(*m_last);
    return page;
}

// A page that begins with a break of the document takes no text of the one before.
void DocumentRepair::keepForNextPage(std::vector<std::unique_ptr<Node>> rest)
{
    const auto next = m_pages.begin() + m_lastNumber;
    const bool isOpen = next != m_pages.end() && *next != nullptr &&
                        (!m_rest.empty() || (*next)->hasAttribute(ContinuesAttribute));
    if (!rest.empty() && !isOpen) {
        m_pages.insert(next, emptyPage(*m_last));
    }
    m_rest.insert(m_rest.begin(), std::make_move_iterator(rest.begin()),
                  std::make_move_iterator(rest.end()));
}

std::optional<RepairedPage> DocumentRepair::breakPage(const PageEnd& end)
{
    if (m_last == nullptr || m_lastNumber >= MaximumPages) {
        return std::nullopt;
    }
    // They come before the rest that is known already.
    Node::Children rest = takeRest(*m_last, end);
    if (rest.empty()) {
        return std::nullopt;
    }
    Node shown;
    shown.children = std::move(m_rest);
    countRowsFrom(rest, shown);
    m_rest = std::move(shown.children);
    keepForNextPage(std::move(rest));
    RepairedPage page = finished({});
    return page.package.isEmpty() ? std::nullopt : std::optional(std::move(page));
}

std::optional<RepairedPage> repairPage(const QString& fileName, int number)
{
    return DocumentRepair(fileName).takePage(number);
}

QString repairText(const Repair& repair)
{
    const auto translated = [&repair](const char* text) {
        return QCoreApplication::translate("repair", text, nullptr, repair.count);
    };
    for (const Preparation& row : Preparations) {
        if (row.code == repair.code) {
            return translated(row.text);
        }
    }
    for (const Step& step : Steps) {
        if (step.code == repair.code) {
            return translated(step.text);
        }
    }
    for (const TextRepair& row : TextRepairs) {
        if (row.code == repair.code) {
            return translated(row.text);
        }
    }
    return repair.code;
}

} // namespace repair

#include "repair/repair.h"

#include "repair/document.h"
#include "repair/flow_step.h"
#include "repair/lengths.h"
#include "repair/package.h"
#include "repair/page_steps.h"
#include "repair/shape_steps.h"
#include "repair/text_step.h"

#include <QCoreApplication>

#include <algorithm>
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

/// A repair before the page is known.
struct Preparation
{
    QLatin1StringView code;
    const char* text;
};

constexpr Preparation Preparations[] = {
    {"lengths-converted"_L1, QT_TRANSLATE_NOOP("repair", "%n lengths were converted to inches")},
    {"page-layout-chosen"_L1,
     QT_TRANSLATE_NOOP("repair", "The page got the size of its master page")},
    {"text-laid-out"_L1, QT_TRANSLATE_NOOP("repair", "The text was laid out with its margins, "
                                                     "spacing, pictures and tables")},
    // Made by who imports the pages one by one.
    {"pages-separated"_L1,
     QT_TRANSLATE_NOOP("repair", "%n further pages became labels of their own")},
};

// In the order in which they are applied.
constexpr Step Steps[] = {
    {"master-page-objects"_L1,
     QT_TRANSLATE_NOOP("repair", "%n objects of the master page were brought onto the page"),
     addMasterObjects},
    {"groups-dissolved"_L1, QT_TRANSLATE_NOOP("repair", "%n groups were dissolved"),
     dissolveGroups},
    {"tables-split"_L1, QT_TRANSLATE_NOOP("repair", "%n tables became boxes with texts"),
     splitTables},
    {"captions-split"_L1, QT_TRANSLATE_NOOP("repair", "%n captions became boxes with lines"),
     splitCaptions},
    {"dimension-lines-split"_L1,
     QT_TRANSLATE_NOOP("repair", "%n dimension lines became lines and texts"), splitMeasures},
    {"line-texts-kept"_L1, QT_TRANSLATE_NOOP("repair", "%n texts of lines got boxes of their own"),
     splitLineTexts},
    {"connectors-drawn"_L1, QT_TRANSLATE_NOOP("repair", "%n connectors became lines or drawings"),
     drawConnectors},
    {"paths-drawn"_L1,
     QT_TRANSLATE_NOOP("repair", "%n polygons, polylines, and curves became drawings"), drawPaths},
    {"shapes-drawn"_L1,
     QT_TRANSLATE_NOOP("repair", "%n shapes that no item can show became drawings"), drawShapes},
    {"pictures-chosen"_L1,
     QT_TRANSLATE_NOOP("repair", "%n frames got the one of their pictures that can be read"),
     choosePictures},
    {"pictures-mirrored"_L1, QT_TRANSLATE_NOOP("repair", "%n pictures were mirrored"),
     mirrorPictures},
    {"rotations-rewritten"_L1,
     QT_TRANSLATE_NOOP("repair", "%n rotated objects got their position before the rotation"),
     rewriteRotations},
    {"order-written"_L1, QT_TRANSLATE_NOOP("repair", "The stacking order of %n objects was kept"),
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
     QT_TRANSLATE_NOOP("repair", "%n spaces and line breaks between words were kept"),
     &TextCounts::blanks},
    {"fields-replaced"_L1,
     QT_TRANSLATE_NOOP("repair", "%n fields and links were replaced by their text"),
     &TextCounts::fields},
    {"lists-replaced"_L1, QT_TRANSLATE_NOOP("repair", "%n lists became paragraphs"),
     &TextCounts::lists},
    {"sections-dissolved"_L1, QT_TRANSLATE_NOOP("repair", "%n sections were dissolved"),
     &TextCounts::sections},
    {"notes-appended"_L1, QT_TRANSLATE_NOOP("repair", "%n notes were appended to their text"),
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
    if (m_document->isText()) {
        note(m_repairs, "page-layout-chosen"_L1, usePageLayout(*m_document));
        note(m_repairs, "text-laid-out"_L1, 1);
        m_pages = layOutPages(*m_document);
    } else {
        m_pages = takePages(*m_document);
    }
}

DocumentRepair::~DocumentRepair() = default;

// The whole document for its only page; else a copy, which shares the characters.
Document DocumentRepair::documentOf(int number)
{
    std::unique_ptr<Node> page = std::move(m_pages.at(static_cast<std::size_t>(number - 1)));
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
    Document document = documentOf(number);
    RepairedPage page;
    page.pageCount = pageCount();
    page.repairs = std::exchange(m_repairs, {});
    if (!document.wasText) {
        note(page.repairs, "page-layout-chosen"_L1, usePageLayout(document));
    }
    rewrite(document, page.repairs);
    page.plan = planItems(document);
    page.package = m_package->written(document);
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

#include "repair/flow_page.h"

#include "repair/anchored_shapes.h"
#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/master_objects.h"
#include "repair/page_grounds.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Points: text on lower pages is not broken into further pages.
constexpr double LowestPage = 20.0;
// Of the bottom margin: room for lines that do not fit.
constexpr double MarginShare = 0.5;
constexpr double EditorsMarginShare = 0.75;
// Pages that objects add to a text: a few bytes can claim billions.
constexpr std::size_t MaximumObjectPages = 100;

// Header and footer: texts of the master page.
void addMargin(Document& document, const Node* margin, const PageArea& area, bool isHeader,
               Node::Children& objects, Node::Children& texts)
{
    if (margin == nullptr) {
        return;
    }
    QRectF box = isHeader ? area.header : area.footer;
    box.setHeight(linesHeight(document, *margin));
    auto frame = textFrame(document, box, {});
    Node& text = *frame->child(u"draw:text-box");
    const auto copy = copyFromMaster(document, *margin);
    takeParagraphs(*copy, text, 0);
    Node::Children taken = takeAllShapes(document, text, {area, area.box});
    if (taken.empty() && text.allText().trimmed().isEmpty()) {
        return;
    }
    std::move(taken.begin(), taken.end(), std::back_inserter(objects));
    texts.push_back(std::move(frame));
}

// Objects in their own order, then the text, which nothing may cover.
Node::Children textLast(Node::Children objects)
{
    std::stable_sort(objects.begin(), objects.end(), [](const auto& a, const auto& b) {
        return a->attribute(u"draw:z-index").toInt() < b->attribute(u"draw:z-index").toInt();
    });
    std::stable_sort(objects.begin(), objects.end(),
                     [](const auto& a, const auto& b) { return layerOf(*a) < layerOf(*b); });
    for (const auto& object : objects) {
        object->removeAttribute(u"draw:z-index");
    }
    return objects;
}

} // namespace

const Node* nextMaster(const Document& document, const Node* master)
{
    const Node* const next = master != nullptr
                                 ? masterPage(document, master->attribute(u"style:next-style-name"))
                                 : nullptr;
    return next != nullptr ? next : master;
}

void placeOnPages(Document& document, std::vector<FlowPage>& pages, Node::Children objects)
{
    const std::size_t most = std::max(MaximumObjectPages, pages.size());
    std::vector<Node::Children> placed;
    for (auto& object : objects) {
        const auto number =
            static_cast<std::size_t>(object->attribute(AnchorPageAttribute).toInt());
        const std::size_t wanted = std::clamp(number, std::size_t{1}, most);
        while (pages.size() < wanted) {
            const Node* const master = nextMaster(document, pages.back().master);
            pages.push_back({master, pageArea(document, master), {}, true});
        }
        placed.resize(pages.size());
        const PageArea& area = pages[wanted - 1].area;
        auto holder = Node::element(u"text:p"_s);
        holder->append(std::move(object));
        TakenShapes taken = takeShapes(document, *holder, {area, area.box}, true);
        std::move(taken.anchored.begin(), taken.anchored.end(),
                  std::back_inserter(placed[wanted - 1]));
    }
    // Below the text: it is not known to leave them room.
    for (std::size_t i = 0; i < placed.size(); ++i) {
        std::move(pages[i].objects.begin(), pages[i].objects.end(), std::back_inserter(placed[i]));
        pages[i].objects = std::move(placed[i]);
    }
}

std::unique_ptr<Node> pageOf(Document& document, FlowPage flow, bool isFull)
{
    auto page = Node::element(u"draw:page"_s);
    const PageArea& area = flow.area;
    page->children = pageGrounds(document, flow.master, area);
    Node::Children marginTexts;
    if (flow.master != nullptr) {
        // Its objects are below the body: backgrounds and watermarks are in headers.
        addMargin(document, flow.master->child(u"style:header"), area, true, page->children,
                  marginTexts);
        addMargin(document, flow.master->child(u"style:footer"), area, false, page->children,
                  marginTexts);
        page->setAttribute(u"draw:master-page-name"_s, flow.master->attribute(u"style:name"));
    }
    std::ranges::move(textLast(std::move(flow.objects)), std::back_inserter(page->children));
    std::ranges::move(marginTexts, std::back_inserter(page->children));
    page->setAttribute(TopAttribute, toInches(area.box.top()));
    if (area.box.height() >= LowestPage) {
        const double lowest = lowestLine(area, isFull ? EditorsMarginShare : MarginShare);
        page->setAttribute(BottomAttribute, toInches(isFull ? lowest : area.box.bottom()));
        page->setAttribute(LowestAttribute, toInches(lowest));
    }
    if (flow.isContinued) {
        page->setAttribute(ContinuesAttribute, u"true"_s);
    }
    return page;
}

std::unique_ptr<Node> emptyPage(Document& document)
{
    const Node* const master = nextMaster(document, masterPage(document));
    return pageOf(document, {master, pageArea(document, master), {}});
}

} // namespace repair

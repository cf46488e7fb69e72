#include "migration/losses/repaired_losses.h"

#include "migration/losses/compare.h"

#include <algorithm>
#include <array>
#include <utility>

namespace migration {

using namespace Qt::StringLiterals;

namespace {

// What repair avoids in the document: it counts where the repaired document still has it. Also
// what the label and the log show, which are those of the repaired document.
constexpr std::array SeenInRepaired{
    LossKind::GroupedObject,
    LossKind::FurtherPage,
    LossKind::MasterPageObject,
    LossKind::Connector,
    LossKind::FreeformShape,
    LossKind::Callout,
    LossKind::EmbeddedObject,
    LossKind::ShapeInText,
    LossKind::Table,
    LossKind::List,
    LossKind::TextSection,
    LossKind::LinkText,
    LossKind::TextField,
    LossKind::TextElement,
    LossKind::ShapeText,
    LossKind::Footnote,
    LossKind::FormControl,
    LossKind::PictureUnreadable,
    LossKind::DrawingUnreadable,
    LossKind::SymbolUnreadable,
    LossKind::OverLimit,
    LossKind::ObjectMissing,
    LossKind::LogCut,
    LossKind::UnknownShape,
    LossKind::OutsidePage,
    LossKind::OverPageEdge,
    LossKind::SizeLimited,
    LossKind::MillimetersEnlarged,
    LossKind::MixedUnits,
    LossKind::UnitUnknown,
    LossKind::PageSizeAssumed,
    LossKind::TransformDropped,
    LossKind::FontReplaced,
    LossKind::TextSpacing,
    LossKind::FillSimplified,
    LossKind::PictureFill,
    LossKind::Other,
    LossKind::LineText,
    LossKind::TextDiffers,
    LossKind::TextUnreadable,
    LossKind::TextsOverlap,
    LossKind::Covered,
    LossKind::Moved,
    LossKind::Mirrored,
    LossKind::Invisible,
    LossKind::FillAdded,
    LossKind::PenWidth,
};

// What is set on the items after the import, or given by rows: the repaired document shows no
// trace of it.
constexpr std::array SetOnItems{
    LossKind::TextColor,   LossKind::TextFormat, LossKind::PositionAssumed,
    LossKind::PageMargins, LossKind::PageBreak,  LossKind::Transparency,
};

template <std::size_t Count>
bool contains(const std::array<LossKind, Count>& kinds, const QString& code)
{
    return std::any_of(kinds.begin(), kinds.end(),
                       [&code](LossKind kind) { return lossCode(kind) == code; });
}

template <class Findings>
auto findingOf(Findings& findings, const QString& code)
{
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&code](const Finding& each) { return each.code == code; });
    return found != findings.end() ? &*found : nullptr;
}

void forgetWhatIsSetLater(Census& census)
{
    for (CountedObject& object : census.objects) {
        object.changes.remove(SetOnItems);
    }
    // Their texts are on the page, and are searched for there.
    census.objects.removeIf(
        [](const CountedObject& object) { return object.lost == LossKind::HeaderOrFooter; });
    for (const LossKind kind : SetOnItems) {
        census.tallies.erase(kind);
    }
}

void forgetPlaces(QList<Finding>& findings)
{
    for (Finding& finding : findings) {
        finding.places.reset();
    }
}

// In the order of the kinds.
void sortByKind(QList<Finding>& findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return lossRowOf(a.code)->kind < lossRowOf(b.code)->kind;
    });
}

} // namespace

void addCounts(QList<KindCount>& sums, const QList<KindCount>& counts)
{
    for (const KindCount& count : counts) {
        const auto same = std::find_if(sums.begin(), sums.end(), [&count](const KindCount& sum) {
            return sum.kind == count.kind;
        });
        if (same != sums.end()) {
            same->count += count.count;
        } else {
            sums.append(count);
        }
    }
}

RepairedLosses::RepairedLosses(const Census& original)
    : m_original(original)
    , m_searched(original)
{}

void RepairedLosses::addPage(Census repaired, const LabelFacts& label, const LogLosses& log)
{
    forgetWhatIsSetLater(repaired);
    m_searched.addPage(label);
    FileReport page;
    compare(repaired, label, log, page);
    m_texts.addPage(label);
    m_textsOnOneSide += label.textsOnOneSide;
    if (m_lastPage > 0) {
        // Places are those on the label that is shown: the first page.
        forgetPlaces(page.lost);
        forgetPlaces(page.changed);
    }
    ++m_lastPage;
    addTo(m_pages.lost, page.lost);
    addTo(m_pages.changed, page.changed);
    addCounts(m_pages.complete, page.complete);
    m_pages.objects.imported += page.objects.imported;
}

void RepairedLosses::leaveOutPages(int count)
{
    const int first = m_lastPage + 1;
    m_lastPage += count;
    for (int page = first; page <= m_lastPage; ++page) {
        m_pagesLeftOut.insert(page);
    }
    m_pageRanges.append(count == 1 ? QString::number(first)
                                   : u"%1–%2"_s.arg(first).arg(m_lastPage));
}

// Counts their objects, or else the pages.
void RepairedLosses::addPagesLeftOut(QList<Finding>& lost) const
{
    const qint64 texts = m_texts.leftOut(m_original);
    const qint64 objects =
        texts + std::count_if(m_original.objects.begin(), m_original.objects.end(),
                              [this](const CountedObject& object) {
                                  return object.lost == LossKind::FurtherPage &&
                                         m_pagesLeftOut.contains(object.page);
                              });
    QStringList ranges = m_pageRanges.mid(0, Tally::MaximumDetails);
    // Pages of a text that are full would add further ones.
    ranges.last() += texts > 0 ? u"…"_s : QString();
    lost.append({lossCode(LossKind::PagesLeftOut), lossText(LossKind::PagesLeftOut),
                 objects > 0 ? objects : m_pagesLeftOut.size(), objects > 0, ranges});
    sortByKind(lost);
}

// Pictures in places that the repaired document does not have anymore.
void RepairedLosses::addMissingPictures(qint64 unreadable, QList<Finding>& lost) const
{
    qint64 missing = m_searched.missingPictures(unreadable);
    for (const Finding& finding : lost) {
        const bool isUnreadable = finding.code == lossCode(LossKind::PictureUnreadable);
        missing -= finding.countsObjects && !isUnreadable ? finding.count : 0;
    }
    if (missing > 0) {
        addTo(lost, {{lossCode(LossKind::ObjectMissing),
                      lossText(LossKind::ObjectMissing),
                      missing,
                      true,
                      {}}});
        sortByKind(lost);
    }
}

void RepairedLosses::addTo(QList<Finding>& sums, const QList<Finding>& findings) const
{
    for (const Finding& finding : findings) {
        if (Finding* const sum = findingOf(sums, finding.code)) {
            sum->count += finding.count;
            sum->details += finding.details;
            sum->details.removeDuplicates();
            sum->details = sum->details.mid(0, Tally::MaximumDetails);
            sum->countsObjects = sum->countsObjects || finding.countsObjects;
        } else {
            sums.append(finding);
        }
    }
}

QList<Finding> RepairedLosses::remaining(const QList<Finding>& original,
                                         const QList<Finding>& repaired) const
{
    QList<Finding> findings = repaired;
    for (const Finding& finding : original) {
        if (contains(SeenInRepaired, finding.code) || contains(SetOnItems, finding.code)) {
            continue;
        }
        if (Finding* const same = findingOf(findings, finding.code)) {
            same->count = std::max(same->count, finding.count);
            same->countsObjects = finding.countsObjects;
        } else {
            findings.append(finding);
            findings.last().places.reset();
        }
    }
    sortByKind(findings);
    return findings;
}

// Repair draws all sides of a cell or none, and none in tables within tables. Other boxes may have
// a pen, too.
void RepairedLosses::fill(FileReport& report) const
{
    FileReport original;
    const Finding* const damaged = findingOf(m_pages.lost, lossCode(LossKind::PictureUnreadable));
    const qint64 unreadable = damaged != nullptr ? damaged->count : 0;
    compare(m_searched.withoutShown(unreadable), {}, {}, original);
    report.lost = remaining(original.lost, m_pages.lost);
    if (m_pagesLeftOut.isEmpty()) {
        addMissingPictures(unreadable, report.lost);
    }
    QList<Finding> changed = m_pages.changed;
    if (!m_pagesLeftOut.isEmpty()) {
        addPagesLeftOut(report.lost);
    } else if (const Tally missing = m_texts.missing(m_original); missing.count > 0) {
        addTo(changed, {{lossCode(LossKind::TextDiffers), lossText(LossKind::TextDiffers),
                         missing.count, false, missing.details}});
    }
    for (const auto& [kind, count] :
         {std::pair(LossKind::TextWrap,
                    std::min<qint64>(m_textsOnOneSide, m_original.sizesBetweenText.size())),
          std::pair(LossKind::CellBorders, m_original.otherBorderedCells),
          std::pair(LossKind::ObjectRedrawn, m_redrawn)}) {
        if (count > 0) {
            addTo(changed, {{lossCode(kind), lossText(kind), count, false, {}}});
        }
    }
    // The same words may be on other pages.
    if (Finding* const numbers = findingOf(changed, lossCode(LossKind::Numbering))) {
        numbers->count = std::min<qint64>(numbers->count, m_original.numberedHeadings.size());
    }
    report.changed = remaining(original.changed, changed);
    report.complete = m_pages.complete;
    report.objects.unknown = m_original.unknown;
    report.objects.imported = m_pages.objects.imported;
    if (m_original.unknown.isEmpty()) {
        qint64 lost = 0;
        for (const Finding& finding : report.lost) {
            lost += finding.countsObjects ? finding.count : 0;
        }
        report.objects.inFile = m_original.objects.size();
        report.objects.imported = std::max<qint64>(0, m_original.objects.size() - lost);
    }
}

} // namespace migration

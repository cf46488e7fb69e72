#include "migration/losses/repaired_losses.h"

#include "migration/losses/compare.h"
#include "migration/losses/matching.h"

#include <algorithm>
#include <array>

namespace migration {

namespace {

// What repair avoids in the document: it counts where the repaired document still has it. Also
// what the label and the log show, which are those of the repaired document.
constexpr std::array SeenInRepaired{LossKind::GroupedObject,
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
                                    LossKind::PenWidth};

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

Finding* findingOf(QList<Finding>& findings, const QString& code)
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

// Whether all of a text is shown: a paragraph may begin at the end of a page, and continue on the
// next one. Pieces of a few letters are found in any text.
bool isTextIn(QStringView text, const QString& shown)
{
    constexpr int PageCount = 4; // of one paragraph
    constexpr qsizetype ShortestPiece = 8;
    for (int piece = 0; piece < PageCount && !text.isEmpty(); ++piece) {
        if (shown.contains(text)) {
            return true;
        }
        qsizetype found = 0; // as many letters are on one page
        for (qsizetype tooMany = text.size(); tooMany - found > 1;) {
            const qsizetype middle = (found + tooMany) / 2;
            (shown.contains(text.left(middle)) ? found : tooMany) = middle;
        }
        if (found < ShortestPiece) {
            return false;
        }
        text = text.mid(found);
    }
    return text.isEmpty();
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
{
    for (qsizetype index = 0; index < original.objects.size(); ++index) {
        const CountedObject& object = original.objects.at(index);
        if (object.lost == LossKind::HeaderOrFooter && object.appearance >= 0) {
            m_missingHeaders.append(index);
        }
    }
}

void RepairedLosses::findHeaders(const LabelFacts& label)
{
    QString shown;
    for (const ItemFacts& item : m_missingHeaders.isEmpty() ? QList<ItemFacts>() : label.items) {
        shown += squeezed(item.text);
    }
    m_missingHeaders.removeIf([&](qsizetype index) {
        const qsizetype appearance = m_original.objects.at(index).appearance;
        const QString text = squeezed(m_original.appearances.at(appearance).text);
        return !text.isEmpty() && shown.contains(text);
    });
}

void RepairedLosses::findTexts(const LabelFacts& label)
{
    for (const QString& text : label.missingTexts) {
        ++m_missingTexts[text];
    }
    for (const ItemFacts& item : label.items) {
        m_shownText += squeezed(item.text);
    }
    m_shownText += QChar::LineFeed;
}

// Each page of a text is compared with all of it: what is on one page is missing on all others.
QList<Finding> RepairedLosses::missingTexts(bool allPages) const
{
    QMap<QString, qint64> runningTexts;
    for (const CountedObject& object : m_original.objects) {
        if (object.objectClass == ObjectClass::Text && object.appearance >= 0 &&
            m_original.appearances.at(object.appearance).page == 0) {
            ++runningTexts[m_original.appearances.at(object.appearance).text.simplified()];
        }
    }
    LabelFacts label;
    for (auto text = m_missingTexts.begin(); text != m_missingTexts.end(); ++text) {
        const qint64 count = runningTexts.value(text.key());
        const qint64 missing = text.value() - count * (m_pageCount - 1);
        const bool isOnNoPage = missing >= count;
        if (missing <= 0 || (count > 0 && !allPages) ||
            (isOnNoPage && isTextIn(squeezed(text.key()), m_shownText))) {
            continue;
        }
        for (qint64 each = 0; each < missing; ++each) {
            noteMissingText(text.key(), label.tallies[LossKind::TextDiffers]);
        }
    }
    FileReport report;
    compare({}, label, {}, report);
    return report.changed;
}

Census RepairedLosses::withoutShownHeaders() const
{
    Census census = m_original;
    census.objects.clear();
    for (qsizetype index = 0; index < m_original.objects.size(); ++index) {
        const CountedObject& object = m_original.objects.at(index);
        const bool isShown = object.lost == LossKind::HeaderOrFooter && object.appearance >= 0 &&
                             !m_missingHeaders.contains(index);
        if (!isShown) {
            census.objects.append(object);
        }
    }
    return census;
}

void RepairedLosses::addPage(Census repaired, const LabelFacts& label, const LogLosses& log)
{
    forgetWhatIsSetLater(repaired);
    findHeaders(label);
    FileReport page;
    compare(repaired, label, log, page);
    findTexts(label);
    if (m_pageCount > 0) {
        // Places are those on the label that is shown: the first page.
        forgetPlaces(page.lost);
        forgetPlaces(page.changed);
    }
    ++m_pageCount;
    addTo(m_pages.lost, page.lost);
    addTo(m_pages.changed, page.changed);
    addCounts(m_pages.complete, page.complete);
    m_pages.objects.imported += page.objects.imported;
}

void RepairedLosses::addTo(QList<Finding>& sums, const QList<Finding>& findings) const
{
    for (const Finding& finding : findings) {
        if (Finding* const sum = findingOf(sums, finding.code)) {
            sum->count += finding.count;
            sum->countsObjects = sum->countsObjects || finding.countsObjects;
        } else {
            sums.append(finding);
        }
    }
}

QList<Finding> RepairedLosses::remaining(const QList<Finding>& original,
                                         const QList<Finding>& repaired, bool allPages) const
{
    QList<Finding> findings = repaired;
    for (const Finding& finding : original) {
        const bool isPage = finding.code == lossCode(LossKind::FurtherPage);
        if (isPage ? allPages
                   : contains(SeenInRepaired, finding.code) || contains(SetOnItems, finding.code)) {
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

void RepairedLosses::fill(FileReport& report, bool allPages) const
{
    FileReport original;
    compare(withoutShownHeaders(), {}, {}, original);
    report.lost = remaining(original.lost, m_pages.lost, allPages);
    QList<Finding> changed = m_pages.changed;
    addTo(changed, missingTexts(allPages));
    report.changed = remaining(original.changed, changed, allPages);
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

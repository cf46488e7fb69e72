#include "migration/losses/compare.h"

#include <QMap>

#include <algorithm>
#include <array>
#include <limits>

namespace migration {

namespace {

/// The sum of one kind.
struct Sum
{
    qint64 objects = 0; ///< lost objects, or changed items
    qint64 others = 0;  ///< concerns no single object
    QStringList details;
    FindingPlaces places;
};

// The numbers of the file's symbology that are the default's own.
constexpr std::array Code39Types{8, 9};
constexpr int DefaultSymbology = 8;

/// One comparison.
class Comparison
{
public:
    Comparison(const Census& census, const LabelFacts& label, const LogLosses& log,
               FileReport& report)
        : m_census(census)
        , m_label(label)
        , m_log(log)
        , m_report(report)
    {}

    void run();

private:
    [[nodiscard]] Sum& sum(LossKind kind) { return m_sums[static_cast<std::size_t>(kind)]; }
    void compareClass(ObjectClass objectClass);
    void findMissing(ObjectClass objectClass, qint64 missing);
    [[nodiscard]] qint64 emptyPictures() const;
    void match(const QList<qsizetype>& objects, const QList<qsizetype>& items);
    void matchByNumber(const QList<qsizetype>& objects, const QList<qsizetype>& items);
    void comparePair(const CountedObject& object, const ItemFacts& item, LossSet& changes) const;
    void addTallies(const std::map<LossKind, Tally>& tallies, bool isCounted);
    void sumItems();
    void list(Outcome outcome, QList<Finding>& findings);
    void listComplete();

    const Census& m_census;
    const LabelFacts& m_label;
    const LogLosses& m_log;
    FileReport& m_report;
    std::array<Sum, static_cast<std::size_t>(LossKind::Other) + 1> m_sums;
    QList<LossSet> m_itemChanges;
    /// Numbers of changed items by kind, if it is unknown which items changed.
    QMap<QString, qint64> m_changedByNumber;
};

void Comparison::run()
{
    for (const ItemFacts& item : m_label.items) {
        m_itemChanges.append(item.changes);
    }
    for (const auto& [item, kind] : m_log.items) {
        if (item < m_itemChanges.size()) {
            m_itemChanges[item].add(kind);
        }
    }
    for (const CountedObject& object : m_census.objects) {
        if (object.lost) {
            ++sum(*object.lost).objects;
            if (object.place) {
                sum(*object.lost).places.missing.append(*object.place);
            }
        }
    }
    m_report.objects.imported = 0;
    for (int index = 0; index < ObjectClasses; ++index) {
        compareClass(static_cast<ObjectClass>(index));
    }
    if (m_census.unknown.isEmpty()) {
        m_report.objects.inFile = m_census.objects.size();
    }
    m_report.objects.unknown = m_census.unknown;
    sumItems();
    addTallies(m_label.tallies, true);
    addTallies(m_census.tallies, true);
    addTallies(m_log.tallies, true);
    list(Outcome::Lost, m_report.lost);
    list(Outcome::Changed, m_report.changed);
    listComplete();
}

// A vector drawing may be a symbol or, in other formats, a picture on the label.
ObjectClass merged(ObjectClass objectClass, bool symbolsArePictures)
{
    return symbolsArePictures && objectClass == ObjectClass::Symbol ? ObjectClass::Picture
                                                                    : objectClass;
}

void Comparison::compareClass(ObjectClass objectClass)
{
    const bool fileHasSymbols = std::any_of(
        m_census.objects.begin(), m_census.objects.end(),
        [](const CountedObject& object) { return object.objectClass == ObjectClass::Symbol; });
    QList<qsizetype> objects;
    for (qsizetype index = 0; index < m_census.objects.size(); ++index) {
        const CountedObject& object = m_census.objects.at(index);
        if (!object.lost && object.objectClass == objectClass) {
            objects.append(index);
        }
    }
    QList<qsizetype> items;
    for (qsizetype index = 0; index < m_label.items.size(); ++index) {
        const ItemFacts& item = m_label.items.at(index);
        if (item.hasContent && merged(item.objectClass, !fileHasSymbols) == objectClass) {
            items.append(index);
        }
    }
    const bool isCounted = m_census.unknown.isEmpty() || !m_census.objects.isEmpty();
    m_report.objects.imported += isCounted ? std::min(objects.size(), items.size()) : items.size();
    if (objects.size() == items.size()) {
        match(objects, items);
    } else {
        matchByNumber(objects, items);
    }
    findMissing(objectClass, objects.size() - items.size());
}

void Comparison::findMissing(ObjectClass objectClass, qint64 missing)
{
    QList<Reason> reasons = m_log.reasons[static_cast<std::size_t>(objectClass)];
    if (objectClass == ObjectClass::Picture) {
        reasons.append({LossKind::PictureUnreadable, emptyPictures()});
        reasons.append({LossKind::DrawingUnreadable, m_census.drawings});
    }
    for (const Reason& reason : reasons) {
        const qint64 explained = std::clamp<qint64>(missing, 0, reason.atMost);
        sum(reason.kind).objects += explained;
        missing -= explained;
    }
    sum(LossKind::ObjectMissing).objects += std::max<qint64>(missing, 0);
}

// Items whose picture could not be read.
qint64 Comparison::emptyPictures() const
{
    return std::count_if(m_label.items.begin(), m_label.items.end(), [](const ItemFacts& item) {
        return item.objectClass == ObjectClass::Picture && !item.hasContent;
    });
}

void Comparison::comparePair(const CountedObject& object, const ItemFacts& item,
                             LossSet& changes) const
{
    changes.add(object.changes);
    if (object.needsSource && !item.isBound) {
        changes.add(LossKind::DatasourceUnbound);
    }
    if (object.hasPlaceholder && item.isBound) {
        changes.add(LossKind::PlaceholderText);
    }
    const bool isCode39 =
        std::find(Code39Types.begin(), Code39Types.end(), object.barcodeType) != Code39Types.end();
    if (object.barcodeType != NoBarcodeType && !isCode39 && item.symbology == DefaultSymbology) {
        changes.add(LossKind::BarcodeTypeAssumed);
    }
}

void Comparison::match(const QList<qsizetype>& objects, const QList<qsizetype>& items)
{
    for (qsizetype index = 0; index < objects.size(); ++index) {
        const CountedObject& object = m_census.objects.at(objects.at(index));
        comparePair(object, m_label.items.at(items.at(index)), m_itemChanges[items.at(index)]);
    }
}

// It is unknown which item an object became, so only changes of the objects count.
void Comparison::matchByNumber(const QList<qsizetype>& objects, const QList<qsizetype>& items)
{
    qint64 changed = 0;
    for (const qsizetype index : objects) {
        const LossSet changes = m_census.objects.at(index).changes;
        for (const LossRow& row : lossRows()) {
            sum(row.kind).objects += changes.has(row.kind) ? 1 : 0;
        }
        changed += changes.isEmpty() ? 0 : 1;
    }
    for (const qsizetype index : items) {
        const QString& kind = m_label.items.at(index).kind;
        if (changed > 0 && m_itemChanges.at(index).isEmpty()) {
            ++m_changedByNumber[kind];
            --changed;
        }
    }
}

void Comparison::sumItems()
{
    for (qsizetype index = 0; index < m_itemChanges.size(); ++index) {
        for (const LossRow& row : lossRows()) {
            if (m_itemChanges.at(index).has(row.kind)) {
                ++sum(row.kind).objects;
                sum(row.kind).places.items.append(static_cast<int>(index));
            }
        }
    }
    for (const LossRow& row : lossRows()) {
        sum(row.kind).others += m_label.pageChanges.has(row.kind) ? 1 : 0;
    }
}

void Comparison::addTallies(const std::map<LossKind, Tally>& tallies, bool isCounted)
{
    for (const auto& [kind, tally] : tallies) {
        // The file and the log may report the same loss.
        sum(kind).others = std::max(sum(kind).others, isCounted ? tally.count : 0);
        for (const QString& detail : tally.details) {
            if (sum(kind).details.size() < Tally::MaximumDetails) {
                sum(kind).details.append(detail);
            }
        }
    }
}

void Comparison::list(Outcome outcome, QList<Finding>& findings)
{
    for (const LossRow& row : lossRows()) {
        Sum& found = sum(row.kind);
        if (row.outcome != outcome || (found.objects == 0 && found.others == 0)) {
            continue;
        }
        found.details.removeDuplicates();
        const bool countsObjects = outcome == Outcome::Lost && found.objects > 0;
        const qint64 count = countsObjects ? found.objects : found.objects + found.others;
        Finding finding{lossCode(row.kind), lossText(row.kind), count, countsObjects,
                        found.details};
        if (found.places != FindingPlaces()) {
            finding.places = found.places;
        }
        findings.append(finding);
    }
}

void Comparison::listComplete()
{
    QMap<QString, qint64> complete;
    for (qsizetype index = 0; index < m_label.items.size(); ++index) {
        const ItemFacts& item = m_label.items.at(index);
        complete[item.kind] += item.hasContent && m_itemChanges.at(index).isEmpty() ? 1 : 0;
    }
    for (auto kind = complete.begin(); kind != complete.end(); ++kind) {
        const qint64 count = kind.value() - m_changedByNumber.value(kind.key());
        if (count > 0) {
            m_report.complete.append({kind.key(), count});
        }
    }
}

} // namespace

void compare(const Census& census, const LabelFacts& label, const LogLosses& log,
             FileReport& report)
{
    Comparison(census, label, log, report).run();
}

} // namespace migration
